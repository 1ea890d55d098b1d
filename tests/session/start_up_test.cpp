#include "core/session/start_up.h"

#include "core/session/redraw.h"
#include "session/session_fixture.h"
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
