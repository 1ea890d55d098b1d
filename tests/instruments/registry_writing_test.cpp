#include "instruments/registry_writing.h"

#include <gtest/gtest.h>

#include "instruments/data_place.h"
#include "platform/failures.h"

namespace {

using namespace instruments;
using Texts = std::vector<std::string>;

const std::string old_point =
    " 1 ,-1234.5,6789.25,120,露頭,砂岩,N15W,30E,081115-001*2,,○, 2 , 255 , 0 , 0 , 0 , 0 , 0 ,0,,,,, 0 ,";
const std::string place = ",3541.1234,N,13945.6789,E";

struct Registry_writing : testing::Test, support::Data_place {
  Tiltvane_boxes boxes;
  Registry_writing() { boxes.DirGPS = boxes.DirGPS2 = folder.text(); }
  File_make_result press() { return Tiltvane_File_Make(context(), registry, list, boxes); }
  // The first kind's log: its times are UTC.
  void walk(const std::vector<std::string>& times) {
    Texts lines{"start"};
    for (const std::string& time : times) lines.push_back(time + ",3541.1234,N,13945.6789,E");
    put_program("log.csv", lines);
    boxes.FileGPS = "log.csv";
    boxes.Check8 = true;
  }
  void show_at(const std::string& time) { show({"12,P,N20W,30E,0,  ,  ," + time + ",m,0,0,,,,,,0,-,-,-,-,0"}); }
  int count() const { return registry.N; }
};

TEST_F(Registry_writing, AddsWhatStandsSomewhereAndTurnsWhatIsKnown) {
  put_lines({old_point});
  show_three();
  const File_make_result result = press();
  EXPECT_TRUE(result.written);
  EXPECT_EQ(result.count, 3);
  EXPECT_TRUE(support::same_as_golden(bytes(), "instruments/registry_japanese.csv"));
  EXPECT_EQ(prompts.shown, Texts{"3個のデータを書き込みました。"});
}

TEST_F(Registry_writing, NamesTheMarkOfNewRecordsInEnglish) {
  put_lines({old_point});
  speak("English");
  show_three();
  EXPECT_EQ(press().count, 3);
  EXPECT_TRUE(support::same_as_golden(bytes(), "instruments/registry_english.csv"));
  EXPECT_EQ(prompts.shown, Texts{"3 Data Saved"});
}

TEST_F(Registry_writing, TakesThePlacesOfATrack) {
  for (const std::string language : {"Japanese", "English"}) {
    put_lines({old_point});
    speak(language);
    show_three();
    walk({"2008/11/15,012030", "2008/11/14,230509"});
    EXPECT_EQ(press().count, 2);
    const bool japanese = language == "Japanese";
    EXPECT_TRUE(support::same_as_golden(
        bytes(), japanese ? "instruments/registry_track_japanese.csv" : "instruments/registry_track_english.csv"));
    EXPECT_EQ(prompts.shown.back(), japanese ? "2個のデータを書き込みました。" : "2 Data Saved");
  }
}

TEST_F(Registry_writing, IsTakenBackAloneAndNotWhatWasSavedBefore) {
  platform::Journal journal(disk);
  platform::Journal_files kept(disk, journal);
  disk.make_folder(folder.text() + "\\state");
  ASSERT_EQ(journal.open(folder.text() + "\\state", project, folder.text()), platform::Journal_state::kept);
  put_lines({old_point});
  show_three();
  const Data_context with_journal{settings, kept, clock, prompts, &journal};
  const std::string saved = Command10(with_journal, list, "-7");
  EXPECT_EQ(Tiltvane_File_Make(with_journal, registry, list, boxes).count, 3);
  EXPECT_EQ(journal.undo().outcome, platform::Undo_outcome::done);
  EXPECT_EQ(bytes(), support::lines_932({old_point}));
  EXPECT_GT(disk.length(tiltvane_folder(folder.text(), saved)), 0);
  EXPECT_GT(disk.length(folder.text() + "\\RSPORT.dat"), 0);
  EXPECT_EQ(journal.undo_title(), nullptr);
}

TEST_F(Registry_writing, CopiesTheFolderAsEachSaveDoes) {
  put_lines({old_point});
  show_three();
  press();
  EXPECT_EQ(bytes("csv\\tani.csv"), bytes());
}

TEST_F(Registry_writing, MakesTheFileOfANewProject) {
  show_three();
  EXPECT_EQ(press().count, 2);  // the plane alone has no place
  EXPECT_EQ(count(), 2);
  EXPECT_GT(disk.length(path()), 0);
}

TEST_F(Registry_writing, AddsNothingTwice) {
  show_three();
  walk({"2008/11/15,012030", "2008/11/14,230509"});
  EXPECT_EQ(press().count, 2);
  const std::string before = bytes();
  EXPECT_EQ(press().count, 0);
  EXPECT_EQ(bytes(), before);
  EXPECT_EQ(prompts.shown.back(), "0個のデータを書き込みました。");
}

TEST_F(Registry_writing, AddsAMeasurementOfAnotherTimeAtTheSamePlace) {
  walk({"2008/11/15,012030", "2008/11/15,012100"});
  show_at("2008/11/15 10:20:30");
  EXPECT_EQ(press().count, 1);
  show_at("2008/11/15 10:21:00");
  EXPECT_EQ(press().count, 1);
}

TEST_F(Registry_writing, TakesATrackPointFifteenSecondsAway) {
  walk({"2008/11/15,012030"});
  show_at("2008/11/15 10:20:45");
  EXPECT_EQ(press().count, 1);
  EXPECT_EQ(registry.rows[1].X, 13976131.5);
}

TEST_F(Registry_writing, LeavesOutAMeasurementSixteenSecondsAway) {
  walk({"2008/11/15,012030"});
  for (const char* time : {"2008/11/15 10:20:46", "2008/11/15 10:20:14"}) {
    show_at(time);
    EXPECT_EQ(press().count, 0) << time;
  }
}

TEST_F(Registry_writing, TakesTheTickedReceiversLogs) {
  put_program("a.nme", {"$GPRMC,032030,A,3541.1234,N,13945.6789,E,0,0,151108,,"});
  put_program("b.nme", {"$GPRMC,032030,A,3500.0000,N,13500.0000,E,0,0,151108,,"});
  boxes.FileGPS2_list = {{"a.nme", false}, {"b.nme", true}};
  boxes.Check1 = true;
  boxes.Text2 = "7";
  show_at("2008/11/15 10:20:30");
  EXPECT_EQ(press().count, 1);
  EXPECT_EQ(registry.rows[1].X, 13500000.0);
  EXPECT_EQ(registry.rows[1].Y, 3500000.0);
}

TEST_F(Registry_writing, RefusesBothKindsOfTrack) {
  put_lines({old_point});
  const std::string before = bytes();
  show_three();
  boxes.Check1 = boxes.Check8 = true;
  EXPECT_FALSE(press().written);
  EXPECT_EQ(prompts.shown, Texts{"２種類のGPSファイルの同時読み込みは出来ません。"});
  EXPECT_EQ(bytes(), before);
  EXPECT_GT(disk.length(folder.text() + "\\RSPORT.dat"), 0);  // the boxes are kept before the refusal
}

TEST_F(Registry_writing, NeedsARegistrationFile) {
  settings.registry_name.clear();
  show_three();
  EXPECT_FALSE(press().written);
  EXPECT_EQ(prompts.shown, Texts{"データ地点ファイルが設定してありません。地点台帳システムの基本設定を行って下さい"});
  EXPECT_EQ(disk.length(folder.text() + "\\RSPORT.dat"), 0);
}

TEST_F(Registry_writing, IsRefusedWithSeveralFiles) {
  settings.registry_count = 2;
  show_three();
  EXPECT_FALSE(press().written);
  EXPECT_EQ(prompts.shown, Texts{"基本設定で地点登録ファイルが複数選択されている場合この機能は使えません。"});
}

TEST_F(Registry_writing, KeepsTheDialogsSettings) {
  boxes.Combo8 = "07";
  boxes.Text15 = "5";
  show_three();
  press();
  EXPECT_EQ(program_bytes("RSPORT.dat").substr(0, 9), "07\r\n005\r\n");
}

TEST_F(Registry_writing, WritesOverNoFileThatItCouldNotReadWhole) {
  put(support::lines_932({old_point}) + "\x1a text behind the end");
  const std::string before = bytes();
  show_three();
  EXPECT_FALSE(press().written);
  EXPECT_EQ(bytes(), before);
  EXPECT_EQ(prompts.shown.size(), 1u);
}

TEST_F(Registry_writing, PutsTheTableBackWhereTheFileCouldNotBeWritten) {
  put_lines({old_point});
  const std::string before = bytes();
  show_three();
  files.failing_write = 2;  // the first is RSPORT.dat's
  EXPECT_FALSE(press().written);
  EXPECT_EQ(bytes(), before);
  EXPECT_EQ(count(), 1);
  EXPECT_EQ(registry.rows[1].soukou, "N15W");
  EXPECT_EQ(prompts.shown, Texts{"保存できません: " + path()});
}

TEST_F(Registry_writing, PutsTheTableBackWhereItIsFull) {
  Texts lines(14'999, support::point_at("1.0", "2.0", "a"));
  lines[0] = old_point;
  put_lines(lines);
  show_three();
  EXPECT_THROW(press(), platform::Subscript_failure);
  EXPECT_EQ(count(), 14'999);
  EXPECT_EQ(registry.rows[1].soukou, "N15W");
  EXPECT_EQ(bytes(), support::lines_932(lines));
}

TEST_F(Registry_writing, LeavesTheDeletedRecordsOut) {
  put_lines({old_point, support::point_at("-9999", "2.0", "a")});
  show({support::plane_alone});
  EXPECT_EQ(press().count, 1);
  EXPECT_EQ(bytes().find("-9999"), std::string::npos);
}

TEST_F(Registry_writing, ComparesNumbersAsNumbers) {
  put_lines({old_point});
  show({"002,P,N20W,30E,0,  ,  ,2008/11/15 08:05:09,m,0,0,,,,,,0,-,-,-,-,0"});
  EXPECT_EQ(press().count, 1);
  EXPECT_EQ(registry.rows[1].soukou, "N20W");
}

TEST_F(Registry_writing, FindsNoRecordForAMeasurementWithoutANumber) {
  put_lines({support::point_at("1.0", "2.0", "081115-001*"), support::point_at("1.0", "2.0", "5")});
  show({",P,N20W,30E,0,  ,  ,2008/11/15 08:05:09,m,0,0,,,,,,0" + place, "0,P,N20W,30E,0"});
  EXPECT_EQ(press().count, 1);
  EXPECT_EQ(registry.rows[3].touroku_no, "081115-");
}

TEST_F(Registry_writing, AddsNoSecondRecordAtAPlace) {
  show({"5,P,N20W,30E,0,  ,  ,2008/11/15 08:05:09,m,0,0,,,,,,0" + place,
        "6,P,N20W,30E,0,  ,  ,2008/11/15 09:05:09,m,0,0,,,,,,0" + place});
  EXPECT_EQ(press().count, 1);
}

// Its letter puts the first west of 0 and the second, read from the longitude's column, south of it; the third lies at
// 0.
TEST_F(Registry_writing, AddsNothingSouthOrWestOfZero) {
  const std::string row = ",P,N20W,30E,0,  ,  ,2008/11/15 08:05:09,m,0,0,,,,,,0,";
  show({"5" + row + "3541.1234,N,13945.6789,W", "6" + row + "3541.1234,N,13945.6789,S",
        "7" + row + "0000.0000,N,00000.0000,E"});
  EXPECT_EQ(press().count, 1);
  ASSERT_EQ(count(), 1);
  EXPECT_EQ(registry.rows[1].touroku_no, "081115-7*7");
}

TEST_F(Registry_writing, MarksADeclinationOfTheInstrument) {
  put_lines({old_point});
  show({"2,P,N20W,30E,0,  ,  ,2008/11/15 08:05:09,m,0,-7.5,,,,,,0,-,-,-,-,0",
        "5,P,N20W,30E,0,  ,  ,2008/11/15 08:05:09,m,0,-7.5,,,,,,0" + place});
  EXPECT_EQ(press().count, 2);
  EXPECT_EQ(registry.rows[1].henkaku_done, "1");
  EXPECT_EQ(registry.rows[1].decl_flag2, "");
  EXPECT_EQ(registry.rows[2].henkaku_done, "");
  EXPECT_EQ(registry.rows[2].decl_flag2, "1");
}

TEST_F(Registry_writing, TakesTheFirstNineHundredNinetyNineRows) {
  Texts lines(1000, support::plane_alone);
  lines[999] = support::with_lineation;
  show(lines);
  EXPECT_EQ(press().count, 0);
  EXPECT_EQ(prompts.shown,
            (Texts{"選択されたデータは最初の999個だけを書き込みます。", "0個のデータを書き込みました。"}));
}

TEST_F(Registry_writing, TellsOfATrackThatIsTooLong) {
  walk(Texts(10'001, "2008/11/15,012030"));
  show_at("2008/11/15 10:20:45");
  EXPECT_EQ(press().count, 1);
  EXPECT_EQ(prompts.shown[0], "GPS位置記録は最初の10,000点だけを使います。");
}

TEST_F(Registry_writing, SkipsALineOfThreeFields) {
  show({"12,P,N20W", "13,P,N20W,30E"});
  const std::vector<Measurement> measurements = ticked_measurements(list);
  ASSERT_EQ(measurements.size(), 1u);
  EXPECT_EQ(measurements[0].number, "13");
}

TEST(Measurement_of, HasNoPlaneWhereNoneWasMeasured) {
  const Measurement measurement = measurement_of(support::without_plane);
  EXPECT_EQ(measurement.strike, "");
  EXPECT_EQ(measurement.dip, "");
  EXPECT_EQ(measurement.azimuth, "");
  EXPECT_EQ(measurement_of(support::plane_alone).azimuth, "");
}

TEST(Measurement_of, TakesBothSignsFromTheLastLetter) {
  const auto at = [](const std::string& letters) {
    return measurement_of("1,P,N,1,0,,,,,,,,,,,,," + letters).position;
  };
  EXPECT_EQ(at("3500.0,S,13500.0,E").y, 3500000.0);  // its own letter isn't seen
  EXPECT_EQ(at("3500.0,N,13500.0,S").y, -3500000.0);
  EXPECT_EQ(at("3500.0,N,13500.0,W").x, -13500000.0);
  EXPECT_EQ(at("3500.0,N,13500.0,W").y, 3500000.0);
}

TEST(Measurement_of, HasNoPositionInShortFields) {
  for (const char* fields :
       {"-,-,-,-", ",,,", "3,N,13500.0,E", "3500.0,N,-,E", "- ,N,13500.0,E", "3500.0,N,1391e300,E"}) {
    const Measurement measurement = measurement_of(std::string("1,P,N,1,0,,,,,,,,,,,,,") + fields);
    EXPECT_EQ(measurement.position.x, -999999999) << fields;
    EXPECT_EQ(measurement.position.y, -999999999) << fields;
  }
}

TEST(Touroku_no_of, HoldsDateAndNumber) {
  Measurement measurement;
  measurement.time = "2008/11/15 08:05:09";
  measurement.number = "12";
  EXPECT_EQ(touroku_no_of(measurement), "081115-12*12");
  measurement.number.clear();
  EXPECT_EQ(touroku_no_of(measurement), "081115-");
}

}  // namespace
