#include "observations/registry_save.h"

#include <gtest/gtest.h>

#include "observations/memo.h"
#include "observations/observation_place.h"
#include "observations/vertices.h"

namespace {

using namespace observations;
using support::point_at;

struct Registry_save : testing::Test, support::Observation_place {
  void sinki() { mnu_sinki(context(), entry, registry, by_date, click(400, 300), {}); }
  void open(int record) {
    entry.touroku = record;
    mnu_henkou(context(), entry, registry, {});
  }
  Save_result save() { return Command9(context(), entry, registry); }
  void two_points() {
    put_lines({point_at("100.0", "100.0", "081115-001*7"), point_at("200.0", "100.0", "081115-002")});
    read();
  }
};
using Surface_add = Registry_save;

TEST_F(Registry_save, WritesTheFirstRecordOfAProject) {
  read();
  sinki();
  Entry_boxes& boxes = entry.boxes;
  boxes.Text14 = {"-1234.5", "6789.25", "120", "", "", "N15W", "30E", "081115-001"};
  boxes.Text13 = "3";
  boxes.Combo7 = "露頭";
  boxes.Combo6 = "砂岩";
  boxes.Shape1 = {255, 0, 0};
  boxes.Check7 = true;
  EXPECT_TRUE(save().saved);
  EXPECT_EQ(bytes(), support::lines_932({support::simple_point}));
  EXPECT_FALSE(entry.open);
  EXPECT_TRUE(prompts.shown.empty());
}

TEST_F(Registry_save, MakesTheFolderOfAProjectThatHasNone) {
  settings.project_path = project = folder.text() + "\\fresh";
  disk.make_folder(project);
  read();
  sinki();
  EXPECT_TRUE(save().saved);
  EXPECT_GT(disk.length(path()), 0);
  EXPECT_EQ(bytes("csv\\tani.csv"), bytes());
  EXPECT_TRUE(prompts.shown.empty());
}

// The folder that can't be made is passed over in silence; that the file can't be written then is told.
TEST_F(Registry_save, TellsOnceWhereNeitherFolderNorFileCanBeMade) {
  settings.project_path = project = folder.text() + "\\fresh";
  disk.make_folder(project);
  read();
  sinki();
  files.read_only = true;
  EXPECT_FALSE(save().saved);
  ASSERT_EQ(prompts.shown.size(), 1u);
  EXPECT_NE(prompts.shown.front().find("tani.csv"), std::string::npos);
  EXPECT_FALSE(disk.folder_exists(path("")));
}

TEST_F(Registry_save, MarksACorrectedRecord) {
  two_points();
  open(2);
  EXPECT_FALSE(entry.boxes.Check9);
  entry.boxes.Check9 = true;
  EXPECT_TRUE(save().saved);
  EXPECT_EQ(bytes(), support::lines_932({point_at("100.0", "100.0", "081115-001*7"),
                                         " 0 ,200.0,100.0,,,,,,081115-002,,○, 2 , 0 , 0 , 0 , 0 , 0 , 0 ,1,,,,, 0 ,"}));
}

TEST_F(Registry_save, WritesTheMarkOfTheLanguageInWhichItWasMade) {
  for (const char* language : {"Japanese", "English"}) {
    settings.language = language;
    put("");
    entry = {};
    read();
    sinki();
    EXPECT_TRUE(save().saved);
    EXPECT_EQ(registry.rows[1].mark, settings.language == "English" ? "circle" : "○");
  }
  EXPECT_NE(bytes().find(",circle, 2 ,"), std::string::npos);
}

// A line that the reading skipped is in no row, so the file loses it.
TEST_F(Registry_save, DropsTheLinesThatCountAsDeleted) {
  put_lines(
      {point_at("100.0", "100.0", "a"), " 0 ,1.0,2.0,,x-9999y,,,,gone,,○, 2 , 0 , 0 , 0 , 0 , 0 , 0 ,0,,,,, 0 ,"});
  read();
  open(1);
  EXPECT_TRUE(save().saved);
  EXPECT_EQ(bytes(), support::lines_932({point_at("100.0", "100.0", "a")}));
}

TEST_F(Registry_save, KeepsARecordWhoseYAloneIsNoDataUntilTheNextReading) {
  two_points();
  open(1);
  entry.boxes.Text14[box_Y] = "-9999";
  EXPECT_TRUE(save().saved);
  EXPECT_EQ(bytes(), support::lines_932(
                         {point_at("100.0", "-9999.0", "081115-001*7"), point_at("200.0", "100.0", "081115-002")}));
  read();
  ASSERT_EQ(registry.N, 1);
  EXPECT_EQ(registry.rows[1].touroku_no, "081115-002");
}

TEST_F(Registry_save, WritesAChangedRecordInItsPlaceAndBacksTheFolderUp) {
  two_points();
  put("other", "other.csv");
  open(1);
  entry.boxes.Text14[box_X] = "150";
  EXPECT_TRUE(save().saved);
  EXPECT_EQ(bytes(),
            support::lines_932({point_at("150.0", "100.0", "081115-001*7"), point_at("200.0", "100.0", "081115-002")}));
  EXPECT_EQ(bytes("csv\\tani.csv"), bytes());
  EXPECT_EQ(bytes("csv\\other.csv"), "other");
}

TEST_F(Registry_save, TakesARecordAtNoDataOut) {
  two_points();
  open(1);
  entry.boxes.Text14[box_X] = "-9999";
  save();
  EXPECT_EQ(bytes(), support::lines_932({point_at("200.0", "100.0", "081115-002")}));
}

TEST_F(Registry_save, StoresADrawnEnclosure) {
  read();
  sinki();
  entry.boxes.Text13.clear();
  entry.boxes.Combo1 = "範囲";
  core::Interaction flags;
  Line_input line;
  Command6(flags, line);
  for (const geodesy::Point p : {geodesy::Point{1, 2}, {3.5, 2}, {3.5, 4}}) line_vertex(flags, line, p, true, prompts);
  line_store(flags, line, registry, entry.touroku);
  save();
  EXPECT_EQ(bytes(), support::lines_932({" 0 ,400.0,300.0,,,,,,081115-001,,範囲, 2 , 0 , 0 , 0 , 0 , 0 , 0 ,0,,,,, 3 , "
                                         "1 , 2 , 3.5 , 2 , 3.5 , 4 ,"}));
}

TEST_F(Registry_save, NeedsAFileInUse) {
  settings.registry_name.clear();
  entry.touroku = 1;
  EXPECT_FALSE(save().saved);
  settings.registry_name = "..\\a.csv";
  EXPECT_FALSE(save().saved);
  EXPECT_EQ(prompts.shown, (std::vector<std::string>{"面を選択して下さい。", "面を選択して下さい。"}));
}

TEST_F(Registry_save, IsRefusedWithSeveralFiles) {
  two_points();
  open(1);
  settings.registry_count = 2;
  EXPECT_FALSE(save().saved);
  EXPECT_EQ(prompts.shown,
            (std::vector<std::string>{"基本設定で地点登録ファイルが複数選択されている場合この機能は使えません。"}));
}

TEST_F(Registry_save, IsRefusedWithoutACurrentRecord) {
  two_points();
  EXPECT_FALSE(save().saved);
  EXPECT_EQ(prompts.shown.size(), 1u);
}

TEST_F(Registry_save, IsRefusedAfterAReadThatBrokeOff) {
  put_lines({point_at("100.0", "100.0", "a"), "0,1,2,,,,,,b,,線,2,0,0,0,0,0,0,0,,,,,139,5,6,"});
  EXPECT_THROW(read(), platform::Subscript_failure);
  const std::string before = bytes();
  open(1);
  EXPECT_FALSE(save().saved);
  EXPECT_EQ(bytes(), before);
  EXPECT_EQ(prompts.shown.size(), 1u);
  EXPECT_TRUE(entry.open);
}

TEST_F(Registry_save, IsRefusedForAFileThatCouldNotBeRead) {
  two_points();
  const std::string before = bytes();
  files.unreadable = "tani.csv";
  read();
  files.unreadable.clear();
  sinki();
  EXPECT_FALSE(save().saved);
  EXPECT_EQ(bytes(), before);
}

TEST_F(Registry_save, IsRefusedForATableOfAnotherFile) {
  two_points();
  put_lines({point_at("1.0", "1.0", "z")}, "sawa.csv");
  open(1);
  settings.registry_name = "sawa.csv";
  EXPECT_FALSE(save().saved);
  EXPECT_EQ(bytes("sawa.csv"), support::lines_932({point_at("1.0", "1.0", "z")}));
  registry = {};
  registry.N = 1;
  entry = {};
  open(1);
  EXPECT_FALSE(save().saved) << "a table that was never read";
}

TEST_F(Registry_save, NamesCharactersThatCanNotBeStored) {
  two_points();
  const std::string before = bytes();
  open(1);
  entry.boxes.Combo6 = "砂岩😀";
  EXPECT_FALSE(save().saved);
  ASSERT_EQ(prompts.shown.size(), 1u);
  EXPECT_NE(prompts.shown.front().find("😀"), std::string::npos);
  EXPECT_EQ(bytes(), before);
  EXPECT_TRUE(entry.open);
}

TEST_F(Registry_save, LeavesTableAndFileAsTheyWereWhenTheDiskIsFull) {
  two_points();
  const std::string before = bytes();
  sinki();
  entry.boxes.Combo6 = "砂岩";
  const Record row = registry.rows[3];
  files.room = 20;
  EXPECT_FALSE(save().saved);
  EXPECT_EQ(bytes(), before);
  EXPECT_EQ(registry.rows[3], row);
  EXPECT_TRUE(entry.open);
  files.room = -1;
  EXPECT_TRUE(save().saved);
  EXPECT_EQ(prompts.shown.size(), 1u);
}

TEST_F(Registry_save, RaisesTheCountToTheCurrentRecord) {
  two_points();
  sinki();
  read();  // a redraw while the panel is open reads the table again
  EXPECT_EQ(registry.N, 2);
  entry.boxes.Text13.clear();
  EXPECT_TRUE(save().saved);
  EXPECT_EQ(registry.N, 3);
  EXPECT_EQ(bytes(),
            support::lines_932({point_at("100.0", "100.0", "081115-001*7"), point_at("200.0", "100.0", "081115-002"),
                                point_at("400.0", "300.0", "081115-003")}));
}

TEST_F(Registry_save, PutsANewRecordBehindThoseThatCameMeanwhile) {
  two_points();
  sinki();
  put_lines({point_at("1.0", "1.0", "a"), point_at("2.0", "2.0", "b"), point_at("3.0", "3.0", "c")});
  read();
  entry.boxes.Text13.clear();
  EXPECT_TRUE(save().saved);
  EXPECT_EQ(bytes(), support::lines_932({point_at("1.0", "1.0", "a"), point_at("2.0", "2.0", "b"),
                                         point_at("3.0", "3.0", "c"), point_at("400.0", "300.0", "081115-003")}));
}

TEST_F(Registry_save, LeavesARecordThatIsAnotherOneByNow) {
  two_points();
  open(1);
  put_lines({point_at("200.0", "100.0", "081115-002")});
  read();
  const std::string before = bytes();
  EXPECT_FALSE(save().saved);
  EXPECT_EQ(bytes(), before);
}

TEST_F(Registry_save, KeepsBytesWithoutACharacter) {
  const std::string line = " 0 ,1.0,2.0,z\x81,,,,,a,,\x85\x40, 2 , 0 , 0 , 0 , 0 , 0 , 0 ,0,,,,, 0 ,\r\n";
  put(line);
  read();
  open(1);
  EXPECT_TRUE(save().saved);
  EXPECT_EQ(bytes(), line);
}

TEST_F(Registry_save, ReadsTheLanguageTableWhenThereIsOne) {
  two_points();
  open(1);
  EXPECT_TRUE(save().captions.empty());
  EXPECT_EQ(settings.language, "Japanese");
  disk.write_whole(folder.text() + "\\Language.set", "English\r\n");
  open(1);
  EXPECT_FALSE(save().captions.empty());
  EXPECT_EQ(settings.language, "English");
}

TEST_F(Registry_save, NotesAMeasurementNumberInUseWithoutAMessage) {
  two_points();
  open(2);
  entry.boxes.Text13 = "7";
  const Save_result result = save();
  EXPECT_TRUE(result.saved);
  EXPECT_TRUE(result.measurement_in_use);
  EXPECT_TRUE(prompts.shown.empty());
}

TEST_F(Registry_save, WritesTheMemoUnderTheRegistrationNumber) {
  two_points();
  open(1);
  entry.boxes.memo = "崖の下";
  EXPECT_TRUE(save().saved);
  EXPECT_EQ(bytes("txt\\081115-001.txt"), support::lines_932({"崖の下"}));
  open(1);
  entry.boxes.Text14[box_touroku_no] = "A-1";
  EXPECT_TRUE(save().saved);
  EXPECT_EQ(bytes("txt\\A-1.txt"), support::lines_932({"崖の下"})) << "the memo goes along to the new number";
}

TEST_F(Registry_save, WritesNoMemoOutsideItsFolder) {
  two_points();
  open(1);
  entry.boxes.Text14[box_touroku_no] = "..\\evil";
  EXPECT_TRUE(save().saved) << "a record without a memo may have any number";
  open(1);
  entry.boxes.memo = "x";
  EXPECT_FALSE(save().saved);
  EXPECT_EQ(disk.length(path("evil.txt")), 0);
  EXPECT_EQ(prompts.shown.size(), 1u);
}

TEST_F(Surface_add, AppendsAShortRecordAndDropsDeletedLines) {
  put_lines({"1,2,3", "-9999", "4,5,6,x"}, "sawa.csv");
  entry.boxes.Text14 = {"-1234.5", "6789.25", "120", "5", "N1E", "N15W", "30E", "081115-001"};
  entry.boxes.Text13 = "3";
  entry.boxes.Combo7 = "露頭";
  entry.boxes.Combo6 = "砂岩";
  entry.boxes.Combo2 = "sawa";
  EXPECT_TRUE(surface_add(context(), entry));
  EXPECT_EQ(bytes("sawa.csv"),
            support::lines_932({"1,2,3", "4,5,6,x", "1,-1234.5,6789.25,120,露頭,砂岩,N15W,30E,081115-001"}));
  EXPECT_EQ(prompts.shown, (std::vector<std::string>{"sawa面に書き込みました。"}));
}

TEST_F(Surface_add, ReadsBackAsARecordOfEmptyColumnsBehindTheNumber) {
  entry.boxes.Text14 = {"100", "200", "5", "", "", "N15W", "30E", "081115-001"};
  entry.boxes.Combo2 = "sawa";
  EXPECT_TRUE(surface_add(context(), entry));
  settings.registry_name = "sawa.csv";
  chisoumen_read(registry, files, 1, {path("sawa.csv")});
  ASSERT_EQ(registry.N, 1);
  const Record& copied = registry.rows[1];
  EXPECT_EQ(copied.boundary, 1);
  EXPECT_EQ(copied.X, 100);
  EXPECT_EQ(copied.keisha, "30E");
  EXPECT_EQ(copied.touroku_no, "081115-001");
  EXPECT_EQ(copied.gazou + copied.mark + copied.henkaku_done, "");
  EXPECT_EQ(copied.size, 2);
  EXPECT_EQ(copied.R + copied.G + copied.B + copied.R2 + copied.G2 + copied.B2, 0);
  EXPECT_TRUE(copied.vertices.empty());
}

TEST_F(Surface_add, SaysThatTheCopyOfACorrectedStrikeIsNotMarked) {
  entry.boxes.Combo2 = "sawa";
  entry.boxes.Check9 = true;
  EXPECT_TRUE(surface_add(context(), entry));
  EXPECT_EQ(prompts.shown.size(), 1u) << "there is no strike";
  entry.boxes.Text14[box_soukou] = "N15W";
  EXPECT_TRUE(surface_add(context(), entry));
  EXPECT_EQ(prompts.shown.back(), "追加した地点には偏角補正済みの印が付かないため、走向に偏角が加えられます。");
  EXPECT_EQ(bytes("sawa.csv"), "1,,,,,,,,\r\n1,,,,,,N15W,,\r\n");
}

TEST_F(Surface_add, NeedsAnotherSurface) {
  EXPECT_FALSE(surface_add(context(), entry));
  entry.boxes.Combo2 = "TANI";
  EXPECT_FALSE(surface_add(context(), entry));
  entry.boxes.Combo2 = "..\\sawa";
  EXPECT_FALSE(surface_add(context(), entry));
  EXPECT_EQ(prompts.shown, (std::vector<std::string>{"地層名を選択して下さい。", "他の地層名を選択して下さい。",
                                                     "地層名を選択して下さい。"}));
  EXPECT_EQ(files.calls("write_whole"), 0);
}

TEST_F(Surface_add, LeavesATargetThatCanNotBeRead) {
  put_lines({"1,2,3"}, "sawa.csv");
  entry.boxes.Combo2 = "sawa";
  files.unreadable = "sawa.csv";
  EXPECT_FALSE(surface_add(context(), entry));
  EXPECT_EQ(bytes("sawa.csv"), "1,2,3\r\n");
  EXPECT_EQ(prompts.shown.size(), 1u);
}

TEST_F(Surface_add, MakesASurfaceThatIsNotThereYet) {
  entry.boxes.Combo2 = "sawa";
  EXPECT_TRUE(surface_add(context(), entry));
  EXPECT_EQ(bytes("sawa.csv"), "1,,,,,,,,\r\n");
}

TEST_F(Surface_add, ReadsTheTargetOnce) {
  put_lines({"1,2,3"}, "sawa.csv");
  entry.boxes.Combo2 = "sawa";
  files.log.clear();
  EXPECT_TRUE(surface_add(context(), entry));
  EXPECT_EQ(files.calls("read_bytes"), 1) << "read again it may fail, and the lines would be lost";
  EXPECT_EQ(bytes("sawa.csv"), "1,2,3\r\n1,,,,,,,,\r\n");
}

TEST_F(Registry_save, IsRefusedWhereAMemoOfANewNumberCannotBeRemoved) {
  disk.make_folder(path("txt"));
  put_lines({"an old memo"}, "txt\\081115-001.txt");
  read();
  sinki();
  ASSERT_EQ(entry.boxes.Text14[box_touroku_no], "081115-001");
  files.read_only = true;
  EXPECT_FALSE(save().saved);
  EXPECT_EQ(prompts.shown, (std::vector<std::string>{"削除できません: " + path("txt\\081115-001.txt")}));
  files.read_only = false;
  EXPECT_TRUE(save().saved);
  EXPECT_EQ(disk.length(path("txt\\081115-001.txt")), 0);
}

}  // namespace
