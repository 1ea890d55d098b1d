#include "core/session/start_up.h"

#include "core/session/redraw.h"
#include "session/session_fixture.h"
#include "support/fault_files.h"
#include "support/recorder.h"

using session::Activated;
using Start_up = support::Session_fixture;

TEST_F(Start_up, MakesTheSubfoldersOfTheProgramFolder) {
  session::form_load(session, ports, program());
  for (const char* name : {"map", "map50000", "mps", "data", "pda_chizu", "dummy"})
    EXPECT_TRUE(files.folder_exists(program() + "/" + name)) << name;
}

TEST_F(Start_up, WritesTheProgramFolderToDempathEachTime) {
  files.write_whole(program() + "/dempath.dat", "elsewhere\r\n");
  session::form_load(session, ports, program());
  EXPECT_EQ(files.read_bytes(program() + "/dempath.dat"), program() + "\r\n");
}

TEST_F(Start_up, ComesUpInEnglishWithoutALanguageFile) {
  session::form_load(session, ports, program());
  EXPECT_EQ(session.settings.language, "English");
}

TEST_F(Start_up, BeginsWithTheEmptyFolderAsItsProject) {
  session::form_load(session, ports, program());
  EXPECT_EQ(session.settings.project_path, program() + "\\dummy");
  EXPECT_EQ(session.canvas.zoom_factor, 0.5);
  EXPECT_EQ(session.start_guard, 1);
  EXPECT_TRUE(prompts.shown.empty());
}

// Two squares of a third-level mesh code and their shifts in seconds, below the two lines of the heading.
TEST_F(Start_up, LoadsTheDatumTableOfTheProgramFolder) {
  session::form_load(session, ports, program());
  EXPECT_EQ(session.shifts.count, 0);
  write(program() + "/TKY2JGD.par", {"JGD2000-TokyoDatum Ver.S.1.0", "MeshCode   dB(sec)   dL(sec)",
                                     "53385601  11.66320 -11.60012", "53385602  11.66300 -11.60100"});
  session::form_load(session, ports, program());
  EXPECT_EQ(session.shifts.count, 2);
}

TEST_F(Start_up, AProgramFolderThatCannotBeWrittenIsNoFailure) {
  write_settings();
  write_free_sheet("free");
  support::Fault_files refusing(files);
  refusing.read_only = true;
  session::Ports read_only{refusing,    pictures,      prompts,      processes,
                           other.clock, other.journal, other.sheets, other.sounds};
  session::form_load(session, read_only, program());
  session::form_activate(session, read_only, {});
  EXPECT_EQ(session::form_activate(session, read_only, {}), Activated::list_filled);
  EXPECT_EQ(session.sheets.List1.size(), 1u);
  EXPECT_TRUE(prompts.shown.empty());
}

TEST_F(Start_up, TheVeryFirstPassOnlyTurnsTheGuard) {
  write_settings();
  session::form_load(session, ports, program());
  EXPECT_EQ(session.start_guard, 1);
  EXPECT_EQ(session::form_activate(session, ports, {}), Activated::nothing);
  EXPECT_EQ(session.start_guard, 2);
  EXPECT_TRUE(session.settings.registry_name.empty());
}

TEST_F(Start_up, WithoutSettingsAsksOnceAndReadsNothingElse) {
  files.make_folder(program() + "/map");
  files.write_whole(program() + "/map/543920.bmp", "x");
  write(program() + "/BoringOut.set", {"C:\\bor"});
  EXPECT_EQ(start(), Activated::settings_asked);
  EXPECT_EQ(prompts.shown, std::vector<std::string>{"Please Do [BasicSetting]"});
  EXPECT_TRUE(session.sheets.List1.empty());
  EXPECT_TRUE(session.boring_out_folder.empty());
}

TEST_F(Start_up, AsksInJapaneseWhenThatIsTheLanguage) {
  write(program() + "/Language.set", {"Japanese"});
  start();
  EXPECT_EQ(prompts.shown, std::vector<std::string>{"基本設定を行なって下さい"});
}

TEST_F(Start_up, AnotherWordAsTheLanguageLeavesTheMessagesSilent) {
  write(program() + "/Language.set", {"Esperanto"});
  EXPECT_EQ(start(), Activated::settings_asked);
  EXPECT_TRUE(prompts.shown.empty());
}

TEST_F(Start_up, AnEmptySettingsFileCountsAsMissing) {
  files.write_whole(program() + "/settei.ini", "");
  EXPECT_EQ(start(), Activated::settings_asked);
}

TEST_F(Start_up, ReadsTheSmallSettingsFiles) {
  write_settings();
  write(program() + "/BoringOut.set", {"C:\\bor,out"});
  write(program() + "/Rockview3d.set", {"C:\\rv"});
  write(program() + "/danmen.dat", {"A-A',2", " 100.5 , 200 ", " 300 , 400.25 "});
  EXPECT_EQ(start(), Activated::list_filled);
  EXPECT_EQ(session.boring_out_folder, "C:\\bor,out");
  EXPECT_EQ(session.rockview_folder, "C:\\rv");
  ASSERT_TRUE(session.section_known);
  EXPECT_EQ(session.section.x1, 100.5);
  EXPECT_EQ(session.section.y1, 200);
  EXPECT_EQ(session.section.x2, 300);
  EXPECT_EQ(session.section.y2, 400.25);
}

TEST_F(Start_up, TheSmallSettingsFilesMayBeMissing) {
  write_settings();
  EXPECT_EQ(start(), Activated::list_filled);
  EXPECT_EQ(session.boring_out_folder, "");
  EXPECT_EQ(session.rockview_folder, "");
  EXPECT_FALSE(session.section_known);
}

TEST_F(Start_up, TheListShowsTheMapFolderOfTheSettings) {
  write_settings();
  write_free_sheet("standard");
  files.make_folder(folder.text() + "/sheets,old");
  files.write_whole(folder.text() + "/sheets,old/own.BMP", "PICTURE 4 3 2");
  std::vector<std::string> lines = platform::read_lines(files, program() + "/settei.ini");
  lines[24] = folder.text() + "/sheets,old";
  write(program() + "/settei.ini", lines);
  EXPECT_EQ(start(), Activated::list_filled);
  EXPECT_EQ(session.sheets.List2, std::vector<std::string>{"own"});
}

TEST_F(Start_up, TheListShowsTheNamesOfTheCatalogueAndTheStemsBesideThem) {
  write_settings();
  write(program() + "/Language.set", {"Japanese"});
  write(program() + "/ZUMEI.CSV",
        {"533856,霧沢,KIRISAWA,,,,,354500.0,1385230.0,354511.6,1385218.3,,355000.0,1384500.0,355011.5,1384448.2"});
  files.make_folder(program() + "/map");
  files.write_whole(program() + "/map/533856.bmp", "PICTURE 4 3 2");
  EXPECT_EQ(start(), Activated::list_filled);
  EXPECT_NE(session.sheets.List1.at(0).find("霧沢"), std::string::npos) << session.sheets.List1[0];
  EXPECT_EQ(session.sheets.List2, std::vector<std::string>{"533856"});
}

TEST_F(Start_up, APassThatGoesOnClearsTheToolsAndLetsTheBarsMoveTheView) {
  write_settings();
  session::form_load(session, ports, program());
  session::form_activate(session, ports, {});
  core::Interaction& flags = session.flags;
  flags.section_step = flags.zoom_box_step = flags.line_mode = flags.line_count = flags.model_box_step = 2;
  flags.point_mode = flags.data_dirty = 1;
  EXPECT_EQ(session::form_activate(session, ports, {}), Activated::list_filled);
  EXPECT_EQ(flags.section_step + flags.zoom_box_step + flags.line_mode + flags.line_count + flags.model_box_step, 0);
  EXPECT_EQ(flags.point_mode + flags.data_dirty, 0);
  EXPECT_EQ(flags.pan_flag, 1);
  EXPECT_EQ(flags.pan_flag_v, 1);
  EXPECT_EQ(session.start_guard, 2);
  EXPECT_EQ(session.settings.project_path, project());
}

// Without a sheet every return to the window is such a pass, and the receiver may run by then.
TEST_F(Start_up, AReceiverThatIsReadGoesOnThroughAReturnToTheWindow) {
  write_settings();
  start();
  session.flags.gps_running = 1;
  EXPECT_EQ(session::form_activate(session, ports, {}), Activated::list_filled);
  EXPECT_EQ(session.flags.gps_running, 1);
}

TEST_F(Start_up, ACutMapProjectHasAHundredCellsEachWayAndKeepsItsScale) {
  write_settings();
  files.write_whole(project() + "/chisou_men/gazou_01.bmp", "BM");
  write(project() + "/chisou_men/souzyo.dat", {"1, 2 ,砂岩,200,180,90,"});
  session::form_load(session, ports, program());
  session::form_activate(session, ports, {});
  session.canvas.grid_nx = session.canvas.grid_ny = 7;
  session.canvas.canvas_scale0 = 0.25;
  EXPECT_EQ(session::form_activate(session, ports, {}), Activated::list_filled);
  EXPECT_TRUE(session.cut_map_project);
  EXPECT_EQ(session.canvas.grid_nx, 100);
  EXPECT_EQ(session.canvas.grid_ny, 100);
  EXPECT_EQ(session.canvas.canvas_scale0, 0.25);
  EXPECT_EQ(session.stratum_names, std::vector<std::string>{"砂岩"});
}

TEST_F(Start_up, TheListKeepsTheSelectedSheetAndForgetsOneThatIsGone) {
  start_with_sheet();
  write_free_sheet("alpha");
  session::sheet_list_r(session, ports);
  EXPECT_EQ(session.sheets.List2, (std::vector<std::string>{"alpha", "free"}));
  EXPECT_EQ(session.sheets.selected, 1);
  EXPECT_EQ(session.current_sheet, "free");
  files.remove(program() + "/map/free.bmp");
  session::sheet_list_r(session, ports);
  EXPECT_EQ(session.sheets.selected, -1);
}

TEST_F(Start_up, AnEmptyListClearsTheMap) {
  start_with_sheet();
  files.remove(program() + "/map/free.bmp");
  session::sheet_list_r(session, ports);
  EXPECT_FALSE(session.sheet_shown());
  support::Recorder surface;
  session::画面再表示(session, surface);
  ASSERT_EQ(surface.calls.size(), 1u);
  EXPECT_EQ(surface.calls[0].what, "clear");
}

TEST_F(Start_up, FillsTheListWithTheSheetsOfTheFolderAndDrawsNone) {
  write_settings();
  write_free_sheet("beta");
  write_free_sheet("alpha");
  files.write_whole(program() + "/map/notes.txt", "x");
  EXPECT_EQ(start(), Activated::list_filled);
  EXPECT_EQ(session.sheets.List1, (std::vector<std::string>{"alpha", "beta"}));
  EXPECT_EQ(session.sheets.List2, (std::vector<std::string>{"alpha", "beta"}));
  EXPECT_FALSE(session.sheet_shown());
}

TEST_F(Start_up, TheReturnFromADialogOverAShownSheetChangesNothing) {
  start_with_sheet();
  write_free_sheet("later");
  EXPECT_EQ(session::form_activate(session, ports, {}), Activated::nothing);
  EXPECT_EQ(session.sheets.List1.size(), 1u);
}

TEST_F(Start_up, StopsWhileTheSettingsOrTheSheetDialogAreUp) {
  write_settings();
  session::form_load(session, ports, program());
  EXPECT_EQ(session::form_activate(session, ports, {}), Activated::nothing);
  EXPECT_EQ(session::form_activate(session, ports, {true, false}), Activated::nothing);
  EXPECT_EQ(session::form_activate(session, ports, {false, true}), Activated::nothing);
  EXPECT_TRUE(session.settings.registry_name.empty());
}

TEST_F(Start_up, TheCaptionNamesTheDatum) {
  EXPECT_EQ(session::window_caption(session), "Terranote Ver '08.06.05 (Tokyo Datum)");
  session.settings.datum_mode = 1;
  EXPECT_EQ(session::window_caption(session), "Terranote Ver '08.06.05 (WGS-84)");
}

TEST_F(Start_up, TheStrataAreTheThirdFieldsOfTheStackButTheBase) {
  write_settings();
  write(project() + "/chisou_men/souzyo.dat", {"1, 1 ,Base,0,0,0,", "1, 2 ,砂岩,200,180,90,", "1,3,Tuff,1,2,3,"});
  start();
  EXPECT_EQ(session.stratum_names, (std::vector<std::string>{"砂岩", "Tuff"}));
}

TEST_F(Start_up, ASheetWithoutAReadablePictureIsToldInOneSentence) {
  write_settings();
  write_free_sheet("broken");
  files.write_whole(program() + "/map/broken.bmp", "BMnothing");
  start();
  session::chizu_out(session, ports, 0);
  ASSERT_EQ(prompts.shown.size(), 1u);
  EXPECT_NE(prompts.shown[0].find("broken.bmp"), std::string::npos);
}

TEST_F(Start_up, ClosingTheEntryAsksOnlyAboutUnsavedEntries) {
  int saved = 0;
  const auto save = [&] { ++saved; };
  session::Command22(session, ports, save);
  EXPECT_TRUE(prompts.shown.empty());
  session.flags.data_dirty = 1;
  prompts.answers = {platform::Answer::no, platform::Answer::yes};
  session::Command22(session, ports, save);
  EXPECT_EQ(saved, 0);
  session::Command22(session, ports, save);
  EXPECT_EQ(saved, 1);
  EXPECT_EQ(prompts.shown[0], "Data is not preserved. Do preserve it?");
  prompts.use_language("Japanese");
  EXPECT_EQ(session::Command22(session, ports, save), session::Redraw::all);
  EXPECT_EQ(prompts.shown.back(), "データが保存されていません。保存しますか。");
}

TEST_F(Start_up, TheEndClearsTheGpsFlag) {
  session.flags.gps_running = 1;
  session::menu_end(session);
  EXPECT_EQ(session.flags.gps_running, 0);
}

TEST_F(Start_up, TheMapDownloadRunsItsProgramFromTheProgramFolder) {
  session::form_load(session, ports, program());
  session::menu_web_henkann(session, ports);
  EXPECT_EQ(processes.started, std::vector<std::string>{program() + "\\Tilefetch.exe"});
}

TEST_F(Start_up, AMissingMapDownloadShowsNothing) {
  processes.works = false;
  session::form_load(session, ports, program());
  session::menu_web_henkann(session, ports);
  EXPECT_TRUE(prompts.shown.empty());
}

TEST_F(Start_up, ATableLongerThanTheCatalogueIsToldOnceAndUsedAsFarAsItFits) {
  write_settings();
  write(program() + "/ZUMEI.CSV", std::vector<std::string>(5001, "543920,霧沢"));
  write_free_sheet("free");
  EXPECT_EQ(start(), Activated::list_filled);
  EXPECT_EQ(session::form_activate(session, ports, {}), Activated::list_filled);
  EXPECT_EQ(prompts.shown,
            std::vector<std::string>{"The table of sheet names is too long. Its first 5000 rows are used."});
  EXPECT_EQ(session.catalogue.sheet_count, 5000);
  EXPECT_EQ(session.sheets.List1.size(), 1u);
}
