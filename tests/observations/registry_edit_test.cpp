#include "observations/registry_edit.h"

#include <gtest/gtest.h>

#include "observations/memo.h"
#include "observations/observation_place.h"
#include "platform/failures.h"

namespace {

using namespace observations;
using support::point_at;

struct Registry_edit : testing::Test, support::Observation_place {
  bool sinki(Numbering scheme = by_date, double x = 400, double y = 300) {
    return mnu_sinki(context(), entry, registry, scheme, click(x, y), {"tani", "sawa"});
  }
  bool henkou(double x = 0, double y = 0) { return mnu_henkou(context(), entry, registry, click(x, y)); }
  bool del(double x = 0, double y = 0) { return mnu_del(context(), entry, registry, click(x, y)); }
  void three_points() {
    put_lines({point_at("100.0", "100.0", "081115-001*7"), point_at("200.0", "100.0", "081115-002*"),
               point_at("300.0", "100.0", "081115-003")});
    read();
  }
};
using Nearest_record = Registry_edit;
using Mnu_sinki = Registry_edit;
using Mnu_henkou = Registry_edit;
using Mnu_del = Registry_edit;
using Right_press_on_map = Registry_edit;

TEST_F(Nearest_record, LiesWithinFiftyUnits) {
  three_points();
  EXPECT_EQ(nearest_record(registry, click(149.99, 100).position), 1);
  EXPECT_EQ(nearest_record(registry, click(150, 100).position), 0) << "exactly 50 from both";
  EXPECT_EQ(nearest_record(registry, click(170, 130).position), 2);
  EXPECT_EQ(nearest_record(registry, click(230, 140).position), 0) << "30 and 40 away is 50";
  EXPECT_EQ(nearest_record(registry, click(230, 139.9).position), 2);
}

TEST_F(Nearest_record, IsTheFirstOfTwoAtOneDistance) {
  put_lines({point_at("0.0", "0.0", "far"), point_at("110.0", "100.0", "a"), point_at("90.0", "100.0", "b")});
  read();
  EXPECT_EQ(nearest_record(registry, click(100, 100).position), 2);
}

TEST_F(Nearest_record, ComparesEachRecordInItsOwnCoordinates) {
  put_lines({point_at("13900400.0", "3600300.0", "a"), point_at("400.0", "300.0", "b")});
  read();
  maps::Map_position position{400, 300, 13900400, 3600300};
  EXPECT_EQ(nearest_record(registry, position), 1);
  position.geo_x = 13900450;
  EXPECT_EQ(nearest_record(registry, position), 2);
  position.x = 450;
  EXPECT_EQ(nearest_record(registry, position), 0);
}

TEST_F(Mnu_sinki, MakesARowWithTheNextNumber) {
  three_points();
  ASSERT_TRUE(sinki());
  EXPECT_EQ(registry.N, 4);
  EXPECT_EQ(entry.touroku, 4);
  EXPECT_EQ(registry.rows[4].touroku_no, "081115-004");
  EXPECT_EQ(entry.boxes.Text14[box_touroku_no], "081115-004");
  EXPECT_EQ(entry.boxes.Text13, "8") << "one above the highest measurement number";
  EXPECT_EQ(entry.boxes.Text14[box_X], "400.0");
  EXPECT_EQ(entry.boxes.Text14[box_Y], "300.0");
  EXPECT_EQ(entry.boxes.Combo2_list, (std::vector<std::string>{"tani", "sawa"}));
  EXPECT_TRUE(entry.open);
}

TEST_F(Mnu_sinki, TitlesThePanelInBothLanguages) {
  sinki();
  EXPECT_EQ(entry.boxes.frame_title, "地点登録ファイル<tani.csv>");
  settings.language = "English";
  sinki();
  EXPECT_EQ(entry.boxes.frame_title, "PointRegistrationFile<tani.csv>");
}

TEST_F(Mnu_sinki, PutsTheMarkerOnThePosition) {
  // 390 m east of the frame's corner at half a unit a metre, margin 100, view 10 units right; 800 m high, view 20 up.
  sinki();
  EXPECT_TRUE(entry.marker_visible);
  EXPECT_EQ(entry.marker.x, 390 * 0.5F + 100 + 10);
  EXPECT_EQ(entry.marker.y, (800 - 300) * 0.5F + 100 - 20);
}

TEST_F(Mnu_sinki, ClearsTheBoxesOfTheLastRecord) {
  Entry_boxes& boxes = entry.boxes;
  boxes.Text14 = {"1", "2", "3", "4", "5", "6", "7", "8"};
  boxes.Combo6 = boxes.Combo7 = boxes.Label3 = boxes.memo = "old";
  boxes.Combo1 = "●";
  sinki();
  EXPECT_EQ(boxes.Text14, (std::array<std::string, 8>{"400.0", "300.0", "", "", "", "", "", "081115-001"}));
  EXPECT_EQ(boxes.Combo6 + boxes.Combo7 + boxes.Label3 + boxes.memo, "");
  EXPECT_EQ(boxes.Combo1, "●");
}

TEST_F(Mnu_sinki, KeepsTheHeightWithCheck1) {
  entry.boxes.Check1 = true;
  entry.boxes.Text14[box_Z] = "120";
  sinki();
  EXPECT_EQ(entry.boxes.Text14[box_Z], "120");
}

TEST_F(Mnu_sinki, NumbersByMeshFromTheClickOnAGeographicSheet) {
  // 139 degrees 0 minutes 45 seconds, 36 degrees 0 minutes 30 seconds, and a little more.
  canvas = support::geographic_canvas();
  Click at = click(0, 0);
  at.position.geo_x = 13901251;
  at.position.geo_y = 3600834;
  ASSERT_TRUE(mnu_sinki(context(), entry, registry, by_mesh, at, {}));
  EXPECT_EQ(entry.boxes.Text14[box_touroku_no], "54390011-01");
  EXPECT_EQ(entry.boxes.Text14[box_X], "13901251.0");
}

TEST_F(Mnu_sinki, OnlyEmptiesTheNumberWhenItIsTypedByHand) {
  entry.boxes.Text14[box_soukou] = "N15W";
  entry.boxes.Text14[box_touroku_no] = "old";
  entry.boxes.Combo6 = "砂岩";
  sinki(by_hand);
  EXPECT_EQ(registry.N, 1);
  EXPECT_EQ(entry.boxes.Text14[box_touroku_no], "");
  EXPECT_EQ(entry.boxes.Text14[box_soukou], "N15W");
  EXPECT_EQ(entry.boxes.Combo6, "砂岩");
}

TEST_F(Mnu_sinki, StartsFromAnEmptyRow) {
  registry.rows[1].vertices = {{1, 2}};
  registry.rows[1].keisoku_jikoku = "old";
  sinki();
  EXPECT_TRUE(registry.rows[1].vertices.empty());
  EXPECT_EQ(registry.rows[1].keisoku_jikoku, "");
}

TEST_F(Mnu_sinki, GivesBackARowThatWasNeverSaved) {
  three_points();
  sinki();
  sinki();
  EXPECT_EQ(registry.N, 4);
  entry_close(entry, registry);
  EXPECT_EQ(registry.N, 3);
  EXPECT_FALSE(entry.open);
}

TEST_F(Mnu_sinki, IsRefusedWithSeveralFiles) {
  settings.registry_count = 2;
  EXPECT_FALSE(sinki());
  EXPECT_EQ(registry.N, 0);
  EXPECT_EQ(prompts.shown,
            (std::vector<std::string>{"基本設定で地点登録ファイルが複数選択されている場合この機能は使えません。"}));
}

TEST_F(Mnu_sinki, FailsInAFullTable) {
  registry.N = record_limit;
  EXPECT_THROW(sinki(), platform::Subscript_failure);
  EXPECT_EQ(registry.N, record_limit);
  EXPECT_FALSE(entry.open);
}

TEST_F(Mnu_henkou, ShowsTheRecordNearTheClick) {
  three_points();
  disk.make_folder(path("txt"));
  disk.write_whole(memo_path(project, "081115-001"), support::lines_932({"崖の下", "二枚目"}));
  ASSERT_TRUE(henkou(110, 100));
  EXPECT_EQ(entry.touroku, 1);
  EXPECT_EQ(entry.boxes.Text14[box_touroku_no], "081115-001");
  EXPECT_EQ(entry.boxes.Text13, "7");
  EXPECT_EQ(entry.boxes.memo, "崖の下\n二枚目");
  EXPECT_TRUE(entry.open);
}

TEST_F(Mnu_henkou, OpensThePanelBesideTheClick) {
  three_points();
  Click at = click(110, 100);
  at.x = 300;
  mnu_henkou(context(), entry, registry, at);
  EXPECT_EQ(entry.left, 2300);
  at.x = 900;
  mnu_henkou(context(), entry, registry, at);
  EXPECT_EQ(entry.left, 2300) << "a panel that is shown stays";
}

TEST_F(Mnu_henkou, DoesNothingWhereNoRecordIsNear) {
  three_points();
  EXPECT_FALSE(henkou(150, 100));
  EXPECT_FALSE(entry.open);
  EXPECT_TRUE(prompts.shown.empty());
}

TEST_F(Mnu_henkou, TakesTheCurrentRecordWithoutASearch) {
  three_points();
  entry.touroku = 3;
  ASSERT_TRUE(henkou(100, 100));
  EXPECT_EQ(entry.boxes.Text14[box_touroku_no], "081115-003");
}

TEST_F(Mnu_henkou, ReadsNoMemoOutsideItsFolder) {
  put_lines({point_at("100.0", "100.0", "..\\souzyo")});
  put("secret", "souzyo.txt");
  read();
  henkou(100, 100);
  EXPECT_EQ(entry.boxes.memo, "");
}

TEST_F(Right_press_on_map, MovesTheRecordWhileThePanelIsOpen) {
  three_points();
  henkou(100, 100);
  EXPECT_EQ(right_press(context(), entry, registry, click(120.456, 60)), Right_press::moved);
  EXPECT_EQ(entry.boxes.Text14[box_X], "120.46");
  EXPECT_EQ(entry.boxes.Text14[box_Y], "60.0");
  EXPECT_EQ(registry.rows[1].X, 100) << "nothing is stored before the save";
  EXPECT_TRUE(entry.marker_visible);
  EXPECT_FLOAT_EQ(entry.marker.x, 110.456F * 0.5F + 110);  // it goes along
  EXPECT_FLOAT_EQ(entry.marker.y, 740 * 0.5F + 80);
  EXPECT_EQ(entry.touroku, 1);
}

TEST_F(Right_press_on_map, OpensTheMenuForTheRecordUnderIt) {
  three_points();
  EXPECT_EQ(right_press(context(), entry, registry, click(205, 100)), Right_press::menu);
  EXPECT_EQ(entry.touroku, 2);
  EXPECT_EQ(right_press(context(), entry, registry, click(900, 100)), Right_press::menu);
  EXPECT_EQ(entry.touroku, 0);
}

TEST_F(Right_press_on_map, IsRefusedWithSeveralFiles) {
  settings.registry_count = 2;
  EXPECT_EQ(right_press(context(), entry, registry, click(1, 1)), Right_press::refused);
  EXPECT_EQ(prompts.shown.size(), 1u);
}

TEST_F(Mnu_del, AsksForTheRecordByItsLabel) {
  three_points();
  for (const double x : {100.0, 200.0, 300.0}) del(x, 100);
  prompts.use_language("English");
  del(100, 100);
  EXPECT_EQ(prompts.shown, (std::vector<std::string>{
                               "[7]を削除してよろしいですか。", "[081115-002]を削除してよろしいですか。",
                               "[081115-003]を削除してよろしいですか。", "[May I delete the specified point?7]"}));
  EXPECT_EQ(files.calls("write_whole"), 0);
  EXPECT_EQ(entry.touroku, 0);
}

// What the map shows while a question is asked.
struct Looking_prompts : support::Scripted_prompts {
  const Entry& entry;
  std::vector<std::pair<float, float>> markers;
  explicit Looking_prompts(const Entry& looked_at) : entry(looked_at) {}

 protected:
  platform::Answer show(Kind kind, const std::string& text) override {
    if (entry.marker_visible) markers.emplace_back(entry.marker.x, entry.marker.y);
    return Scripted_prompts::show(kind, text);
  }
};

// (200, 100) lies 190 m east of the frame's corner and 700 m below its upper edge, half a unit to the metre.
TEST_F(Mnu_del, MarksTheRecordBeforeItAsksAndNoMoreAfterwards) {
  three_points();
  Looking_prompts looking(entry);
  EXPECT_FALSE(mnu_del({settings, canvas, files, clock, looking}, entry, registry, click(205, 100)));
  EXPECT_EQ(looking.markers, (std::vector<std::pair<float, float>>{{190 * 0.5F + 110, 700 * 0.5F + 80}}));
  EXPECT_FALSE(entry.marker_visible);
  EXPECT_EQ(entry.touroku, 0);
}

TEST_F(Mnu_del, TakesTheCurrentRecordWithoutASearch) {
  three_points();
  entry.touroku = 3;
  prompts.answers = {platform::Answer::ok};
  EXPECT_TRUE(del(100, 100));
  EXPECT_EQ(bytes(), support::lines_932(
                         {point_at("100.0", "100.0", "081115-001*7"), point_at("200.0", "100.0", "081115-002*")}));
}

TEST_F(Mnu_del, TakesTheLineOutAndLeavesTheOthersAsTheyStand) {
  const std::string first = "1,5,5,odd \x81,,,,,a,,x";
  put(first + "\r\n" + support::lines_932({point_at("100.0", "100.0", "b"), "0,300,300,,,,,,c"}));
  read();
  prompts.answers = {platform::Answer::ok};
  EXPECT_TRUE(del(100, 100));
  EXPECT_EQ(bytes(), first + "\r\n" + support::lines_932({"0,300,300,,,,,,c"}));
  EXPECT_EQ(entry.touroku, 0);
  EXPECT_FALSE(entry.open);
}

TEST_F(Mnu_del, CountsRecordsAndNotTheDeletedLinesBetweenThem) {
  put_lines({"0,-9999,1,,,,,,gone", point_at("100.0", "100.0", "b"), point_at("300.0", "100.0", "c")});
  read();
  prompts.answers = {platform::Answer::ok};
  EXPECT_TRUE(del(300, 100));
  EXPECT_EQ(bytes(), support::lines_932({"0,-9999,1,,,,,,gone", point_at("100.0", "100.0", "b")}));
}

TEST_F(Mnu_del, SaysWhenNoRecordIsNear) {
  three_points();
  EXPECT_FALSE(del(150, 100));
  EXPECT_EQ(prompts.shown, (std::vector<std::string>{"削除する点が特定できません。"}));
}

TEST_F(Mnu_del, FailsInAFileOfMoreThanAThousandLines) {
  std::vector<std::string> lines(1000, point_at("500.0", "100.0", "x"));
  lines.front() = point_at("100.0", "100.0", "first");
  put_lines(lines);
  read();
  prompts.answers = {platform::Answer::ok, platform::Answer::ok};
  EXPECT_TRUE(del(100, 100));
  EXPECT_EQ(bytes().size(), support::lines_932(std::vector<std::string>(999, lines.back())).size());
  lines.push_back(lines.back());
  put_lines(lines);
  read();
  const std::string before = bytes();
  EXPECT_THROW(del(100, 100), platform::Subscript_failure);
  EXPECT_EQ(bytes(), before);
}

TEST_F(Mnu_del, LeavesAFileThatChangedMeanwhile) {
  three_points();
  put_lines({point_at("100.0", "100.0", "other")});
  const std::string before = bytes();
  prompts.answers = {platform::Answer::ok, platform::Answer::ok};
  EXPECT_TRUE(del(100, 100)) << "the table is read again";
  EXPECT_TRUE(del(300, 100)) << "a record that the file no longer has";
  EXPECT_EQ(bytes(), before);
  EXPECT_EQ(prompts.shown.size(), 4u);
}

TEST_F(Mnu_del, LeavesAFileThatCanNotBeReadOrWritten) {
  three_points();
  const std::string before = bytes();
  prompts.answers = {platform::Answer::ok, platform::Answer::ok};
  files.unreadable = "tani.csv";
  EXPECT_FALSE(del(100, 100));
  files.unreadable.clear();
  files.room = 10;
  EXPECT_FALSE(del(100, 100));
  EXPECT_EQ(bytes(), before);
  EXPECT_EQ(prompts.shown.size(), 4u);
}

TEST_F(Mnu_del, OnlyGivesARowBackThatWasNeverSaved) {
  three_points();
  sinki();
  const std::string before = bytes();
  prompts.answers = {platform::Answer::ok};
  EXPECT_TRUE(del(0, 0));
  EXPECT_EQ(bytes(), before);
  EXPECT_EQ(registry.N, 3);
}

TEST_F(Mnu_del, IsRefusedWithSeveralFiles) {
  three_points();
  settings.registry_count = 2;
  EXPECT_FALSE(del(100, 100));
  EXPECT_EQ(prompts.shown.size(), 1u);
  EXPECT_EQ(files.calls("write_whole"), 0);
}

}  // namespace
