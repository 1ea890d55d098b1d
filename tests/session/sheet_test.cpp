#include "core/session/sheet.h"

#include "core/settei.h"
#include "session/session_fixture.h"
#include "support/fault_files.h"

using session::Redraw;

namespace {

const std::string point = " 0 ,13900500,3500500,,,,,,A,,●, 5 , 255 , 0 , 0 , 0 , 0 , 0 ,0,,,,, 0 ,";

struct Sheet : support::Session_fixture {
  std::string registry() const { return project() + "/chisou_men/genchi.csv"; }

  void SetUp() override {
    Session_fixture::SetUp();
    write_settings();
    write_free_sheet("free");
  }
  void put_picture(const std::string& stem) {
    files.write_whole(program() + "/map/" + stem + ".bmp", "PICTURE 40 30 200");
  }
  Redraw open(const std::string& stem) {
    return session::chizu_out(session, ports, session::row_of(session.sheets, stem));
  }
};

}  // namespace

TEST_F(Sheet, ARowThatIsNotThereChangesNothing) {
  start_with_sheet();
  for (const int row : {-1, 1, 5000}) {
    EXPECT_EQ(session::chizu_out(session, ports, row), Redraw::none) << row;
    EXPECT_EQ(session.current_sheet, "free");
    EXPECT_EQ(session.sheets.selected, 0);
  }
}

TEST_F(Sheet, ComesUpAtItsOwnSizeWithTheBarsAtTheirStart) {
  start_with_sheet();
  const double scale = session.canvas.canvas_scale;
  session.canvas.canvas_scale *= 3;
  session.canvas.view_x = -500;
  session.canvas.zoom_count = 4;
  session.bars.horizontal.value = session.bars.horizontal.last = 77;
  session.view.Text1 = 11;
  EXPECT_EQ(session::chizu_out(session, ports, 0), Redraw::all);
  EXPECT_EQ(session.canvas.canvas_scale, scale);
  EXPECT_EQ(session.canvas.view_x, 0);
  EXPECT_EQ(session.canvas.zoom_count, 1);
  EXPECT_EQ(session.canvas.label_scale, 11);
  EXPECT_EQ(session.bars.horizontal.value, 0);
  EXPECT_EQ(session.bars.horizontal.last, 0);
}

TEST_F(Sheet, ReadsThePointRegistrationFileOfTheSettings) {
  write(registry(), {point});
  write(project() + "/chisou_men/free.csv", {point, point, point});
  start();
  open("free");
  EXPECT_EQ(session.registry.N, 1);
}

TEST_F(Sheet, ReadsThatFileOnceForEachFileOfTheSettings) {
  write(registry(), {point});
  start();
  session.settings.registry_count = 3;
  open("free");
  EXPECT_EQ(session.registry.N, 3);
}

TEST_F(Sheet, ReadsTheBaseDataOfTheThreeFixedNamesInTheirOrder) {
  const auto row = [](const std::string& name) { return " 1 ,13900500,3500500, 1 , 2 , 3 ," + name + ","; };
  write(project() + "/chisou_men/全国鉱山情報.csv", {row("鉱山")});
  write(project() + "/chisou_men/関東山梨市町村.csv", {row("市町村")});
  write(project() + "/chisou_men/関東山梨情報.csv", {row("情報")});
  write(project() + "/chisou_men/other.csv", {row("other")});
  start_with_sheet();
  ASSERT_EQ(session.reference_points.count, 3);
  EXPECT_EQ(session.reference_points.rows[1].name, "情報");
  EXPECT_EQ(session.reference_points.rows[2].name, "市町村");
  EXPECT_EQ(session.reference_points.rows[3].name, "鉱山");
}

TEST_F(Sheet, EachReadingOfTheListTakesTheCornersOfTheDatumInForce) {
  write(program() + "/ZUMEI.CSV",
        {"543817,杉沢,,,,,,360500.0,1390000.0,360511.5,1385948.4,,361000.0,1385230.0,361011.5,"
         "1385218.4"});
  put_picture("543817");
  ASSERT_EQ(start(), session::Activated::list_filled);
  open("543817");
  EXPECT_EQ(session.canvas.geo_x0, 13'887'500);
  session.settings.datum_mode = core::wgs_84;
  session::sheet_list_r(session, ports);
  open("543817");
  // 138 degrees 52 minutes 18.4 seconds: 499938.4 / 3600 degrees, in single precision.
  EXPECT_EQ(session.canvas.geo_x0, static_cast<float>(499938.4 / 3600 * 100000));
}

TEST_F(Sheet, ANewReadingKeepsTheSheetWhoseStemIsStillThere) {
  write_free_sheet("zeta");
  start_with_sheet();
  open("zeta");
  write_free_sheet("alpha");
  session::sheet_list_r(session, ports);
  EXPECT_EQ(session.sheets.List2, (std::vector<std::string>{"alpha", "free", "zeta"}));
  EXPECT_EQ(session.sheets.selected, 2);
  files.remove(program() + "/map/zeta.bmp");
  session::sheet_list_r(session, ports);
  EXPECT_EQ(session.sheets.selected, -1);
  EXPECT_EQ(session.current_sheet, "zeta");  // it stays on the canvas
}

TEST_F(Sheet, TheMapIsClearedWhereTheListIsEmpty) {
  start_with_sheet();
  files.remove(program() + "/map/free.bmp");
  session::sheet_list_r(session, ports);
  EXPECT_FALSE(session.sheet_shown());
}

TEST_F(Sheet, SeveralPicturesThatCantBeReadAreToldInOneMessage) {
  write(program() + "/Language.set", {"Japanese"});
  put_picture("54381750");
  files.write_whole(program() + "/map/54381700.bmp", "broken");
  files.write_whole(program() + "/map/54381755.bmp", "PICTURE 40000 30000 1");
  ASSERT_EQ(start(), session::Activated::list_filled);
  open("54381750");
  EXPECT_EQ(prompts.shown, std::vector<std::string>{"「54381700.bmp」は画像として読み込めません。\n"
                                                    "「54381755.bmp」は大きすぎて読み込めません。"});
  EXPECT_TRUE(session.sheet_shown());
}

TEST_F(Sheet, ALongTableIsToldInJapaneseToo) {
  write(program() + "/Language.set", {"Japanese"});
  write(program() + "/ZUMEI.CSV", std::vector<std::string>(5001, "543920,霧沢"));
  start();
  EXPECT_EQ(prompts.shown, std::vector<std::string>{"図葉一覧表が大きすぎます。先頭の5000行だけを使います。"});
}

// Every file that opening a sheet reads, torn off, emptied and filled with bytes of all kinds: nothing on disk changes
// and no message comes but that of the picture.
TEST_F(Sheet, BrokenFilesOfASheetChangeNothingOnDisk) {
  files.make_folder(program() + "/mps");
  std::string binary;
  for (int i = 0; i < 20'000; ++i) binary += static_cast<char>(i * 7919 % 253 + (i % 47 == 0));
  for (const std::string& bytes : {std::string(), std::string("139,0,"), binary}) {
    for (const char* name : {"/ZUMEI.CSV", "/map/free.set", "/mps/a.mps", "/TKY2JGD.par"})
      files.write_whole(program() + name, bytes);
    session = session::Session();
    ASSERT_EQ(start(), session::Activated::list_filled);
    support::Fault_files watched(files);
    session::Ports watching{watched,     pictures,      prompts,      processes,
                            other.clock, other.journal, other.sheets, other.sounds};
    EXPECT_EQ(session::chizu_out(session, watching, 0), Redraw::all);
    for (const char* name : {"/ZUMEI.CSV", "/map/free.set", "/mps/a.mps", "/TKY2JGD.par"})
      EXPECT_EQ(files.length(program() + name), static_cast<std::int64_t>(bytes.size())) << name;
    EXPECT_EQ(watched.calls("write_whole"), 0);
    EXPECT_TRUE(prompts.shown.empty());
  }
}
