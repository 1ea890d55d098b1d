#include "core/session/first_start.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include "core/language.h"
#include "core/settei.h"
#include "platform/failures.h"
#include "platform/text_files.h"
#include "support/fault_files.h"
#include "support/memory_files.h"
#include "support/scripted_prompts.h"
#include "support/temporary_folder.h"

namespace {

using platform::Answer;
using session::Sample_making;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

// A machine with an installed program, a user's home and a sample as its maker leaves it.
struct First_start : testing::Test {
  support::Temporary_folder machine;
  platform::Disk_files disk;
  support::Fault_files files{disk};
  support::Scripted_prompts prompts;
  session::First_start start;
  std::string program = machine.text() + "/home/.local/share/terranote";
  std::string documents = machine.text() + "/home/Documents";
  std::string made = machine.text() + "/made";
  int makings = 0;
  bool in_japanese = false;
  Sample_making making = Sample_making::made;

  void SetUp() override {
    put("templates/igrf10.coef", "coefficients");
    put("templates/def.dbf", "attributes");
    std::filesystem::create_directories(documents);
    make_sample();
    start.place = {machine.text() + "/home\\.local\\share\\terranote", machine.text() + "/templates", ""};
    start.language = "Japanese";
    start.documents = documents;
    start.make_sample = [this](bool japanese, const session::Take_sample& take) {
      ++makings;
      in_japanese = japanese;
      if (making == Sample_making::made) take(made);
      return making;
    };
  }

  void put(const std::string& name, const std::string& bytes) { put_at(machine.text() + "/" + name, bytes); }
  void put_at(const std::filesystem::path& path, const std::string& bytes) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << bytes;
  }

  void make_sample() {
    for (const char* name : {"program/ZUMEI.CSV", "program/igrf10.coef", "program/TKY2JGD.par",
                             "program/map/533856.bmp", "program/map50000/50000.CSV", "program/mps/kirisawa.mps",
                             "project/chisou_men/観測点.csv", "project/chisou_men/souzyo.dat"})
      put(std::string("made/") + name, std::string("sample's ") + name);
    put("made/program/Language.set", "Japanese\r\n");
    core::Settings settings;
    settings.program_path = made + "/program";
    core::Settings_boxes boxes = core::settei_defaults(settings);
    boxes.Dir3 = settings.program_path;
    boxes.Dir4 = made + "/project";
    boxes.Dir10 = settings.program_path + "/map";
    boxes.Text5 = "750";
    boxes.File11 = {{"観測点.csv", true}};
    core::settei_w(settings, boxes, disk);
  }

  std::string run() { return session::first_start(start, files, prompts); }
  std::string run_answering(Answer answer) {
    prompts.answers = {answer};
    return run();
  }
  std::string content(const std::string& name) { return disk.read_bytes(program + "/" + name); }
  bool is_there(const std::string& path) { return std::filesystem::exists(path); }
  std::vector<std::string> lines(const std::string& name) { return platform::read_lines(disk, program + "/" + name); }
};

}  // namespace

TEST_F(First_start, OfAProgramThatIsNotInstalledTouchesAndAsksNothing) {
  start.place = {"/opt/terranote", "", "/opt/terranote"};
  EXPECT_EQ(run(), "/opt/terranote");
  EXPECT_THAT(prompts.shown, IsEmpty());
  EXPECT_THAT(files.log, IsEmpty());
}

TEST_F(First_start, MakesTheProgramFolderFromTheTemplates) {
  EXPECT_EQ(run(), program);
  EXPECT_EQ(content("igrf10.coef"), "coefficients");
  EXPECT_EQ(content("def.dbf"), "attributes");
}

TEST_F(First_start, ComesUpInTheMachinesLanguage) {
  run();
  EXPECT_EQ(content("Language.set"), "Japanese\r\n");
  EXPECT_THAT(prompts.shown, ElementsAre(HasSubstr("サンプルを入れますか。")));
}

TEST_F(First_start, LeavesTheLanguageThatTheUserChose) {
  put_at(program + "/Language.set", "English\r\n");
  run();
  EXPECT_EQ(content("Language.set"), "English\r\n");
  EXPECT_THAT(prompts.shown, ElementsAre(HasSubstr("Do you want the sample?")));
}

TEST_F(First_start, DoesNotBringBackALanguageThatTheUserTookAway) {
  put_at(program + "/dempath.dat", program + "\r\n");
  run();
  EXPECT_FALSE(is_there(program + "/Language.set"));
}

TEST_F(First_start, AddsWhatALaterVersionBringsAndLeavesChangedFilesAlone) {
  run();
  put_at(program + "/igrf10.coef", "the user's newer coefficients");
  put_at(program + "/def.dbf", "");
  put("templates/igrf10.coef", "next edition");
  put("templates/new.dat", "new");
  run();
  EXPECT_EQ(content("igrf10.coef"), "the user's newer coefficients");
  EXPECT_EQ(content("def.dbf"), "");
  EXPECT_EQ(content("new.dat"), "new");
}

TEST_F(First_start, WritesNothingTheSecondTime) {
  run();
  files.log.clear();
  run();
  EXPECT_EQ(files.calls("copy") + files.calls("write_whole"), 0);
}

TEST_F(First_start, SaysInOneSentenceWhyThereIsNoProgramFolder) {
  files.read_only = true;
  EXPECT_EQ(run(), program);
  EXPECT_THAT(prompts.shown, ElementsAre("プログラムフォルダを作れないため、設定を保存できません: " + program));
  EXPECT_FALSE(is_there(program));
}

TEST_F(First_start, SaysWhenTheDiskIsFullAndEndsTheJobNextTime) {
  files.room = 12;  // igrf10.coef, of 12 bytes, comes behind def.dbf, of 10
  start.language = "English";
  run();
  ASSERT_THAT(prompts.shown, SizeIs(1));
  EXPECT_THAT(prompts.shown[0], HasSubstr("igrf10.coef could not be written: No space left on device"));
  files.room = -1;
  run();
  EXPECT_EQ(content("igrf10.coef"), "coefficients");
  EXPECT_EQ(content("Language.set"), "English\r\n");
}

TEST_F(First_start, WithoutAHomeSaysSoAndGivesNoFolder) {
  start.place.folder.clear();
  EXPECT_EQ(run(), "");
  EXPECT_THAT(prompts.shown, ElementsAre(HasSubstr("HOME")));
}

TEST_F(First_start, MakesTheProgramFolderOnFilesInMemoryToo) {
  support::Memory_files memory;
  memory.write_whole("C:\\templates\\igrf10.coef", "coefficients");
  start.place = {"C:\\data\\terranote", "C:\\templates", ""};
  EXPECT_TRUE(session::program_folder_make(start, memory, prompts));
  const std::string made_at = memory.native_path(start.place.folder);
  EXPECT_EQ(memory.read_bytes(made_at + "\\igrf10.coef"), "coefficients");
  EXPECT_EQ(core::language_r(memory, made_at), "Japanese");
}

TEST_F(First_start, PutsTheWantedSampleInPlace) {
  run_answering(Answer::yes);
  EXPECT_EQ(makings, 1);
  EXPECT_TRUE(in_japanese);
  for (const char* name : {"ZUMEI.CSV", "TKY2JGD.par", "map/533856.bmp", "map50000/50000.CSV", "mps/kirisawa.mps"})
    EXPECT_EQ(content(name), std::string("sample's program/") + name);
  const std::string data = documents + "/Terranote sample/chisou_men/";
  EXPECT_EQ(disk.read_bytes(data + "観測点.csv"), "sample's project/chisou_men/観測点.csv");
  EXPECT_EQ(disk.read_bytes(data + "souzyo.dat"), "sample's project/chisou_men/souzyo.dat");
}

TEST_F(First_start, TheSamplesSettingsNameThePlacesWhereItLies) {
  run_answering(Answer::yes);
  core::Settings settings;
  settings.program_path = program;
  core::Settings_boxes boxes = core::settei_defaults(settings);
  ASSERT_TRUE(core::settei_r(settings, boxes, disk, prompts));
  EXPECT_EQ(boxes.Dir3, program);
  EXPECT_EQ(boxes.Dir4, documents + "/Terranote sample");
  EXPECT_EQ(boxes.Dir10, program + "/map");
  EXPECT_EQ(settings.registry_name, "観測点.csv");
  EXPECT_EQ(boxes.Text5, "750");
}

TEST_F(First_start, RemembersWhatWasAnswered) {
  run_answering(Answer::no);
  EXPECT_EQ(content("sample.set"), "No\r\n");
  run();
  EXPECT_THAT(prompts.shown, SizeIs(1));
  EXPECT_EQ(makings, 0);
  EXPECT_FALSE(is_there(program + "/settei.ini"));
}

TEST_F(First_start, RemembersWhereTheSampleWasPut) {
  run_answering(Answer::yes);
  EXPECT_THAT(lines("sample.set"), ElementsAre("Yes", documents + "/Terranote sample"));
  std::filesystem::remove(program + "/settei.ini");
  run();
  EXPECT_THAT(prompts.shown, SizeIs(1));
}

TEST_F(First_start, AStopWhileItIsMadeIsANo) {
  making = Sample_making::stopped;
  run_answering(Answer::yes);
  EXPECT_EQ(content("sample.set"), "No\r\n");
}

TEST_F(First_start, AsksAgainAfterAMakingThatFailed) {
  making = Sample_making::failed;
  run_answering(Answer::yes);
  EXPECT_FALSE(is_there(program + "/sample.set"));
  making = Sample_making::made;
  run_answering(Answer::yes);
  EXPECT_EQ(content("ZUMEI.CSV"), "sample's program/ZUMEI.CSV");
}

TEST_F(First_start, DoesNotOfferASampleToAUserWithSettings) {
  put_at(program + "/settei.ini", "C:\\waku\r\n");
  run();
  EXPECT_THAT(prompts.shown, IsEmpty());
}

TEST_F(First_start, NeverPutsTheSampleOverTheUsersFiles) {
  put_at(program + "/ZUMEI.CSV", "mine");
  put_at(program + "/map/533856.bmp", "my sheet");
  run_answering(Answer::yes);
  EXPECT_EQ(content("ZUMEI.CSV"), "mine");
  EXPECT_EQ(content("map/533856.bmp"), "my sheet");
  EXPECT_EQ(content("mps/kirisawa.mps"), "sample's program/mps/kirisawa.mps");
}

TEST_F(First_start, LeavesAFolderOfTheSamplesNameThatIsTheUsers) {
  put_at(documents + "/Terranote sample/sample.txt", "my own words");
  put_at(documents + "/Terranote sample 2", "a file");
  run_answering(Answer::yes);
  EXPECT_FALSE(is_there(documents + "/Terranote sample/chisou_men"));
  EXPECT_TRUE(is_there(documents + "/Terranote sample 3/chisou_men/souzyo.dat"));
}

TEST_F(First_start, TakesTheFolderOfAnEarlierSampleAndKeepsWhatTheUserDidThere) {
  run_answering(Answer::yes);
  put_at(documents + "/Terranote sample/chisou_men/観測点.csv", "my observations");
  std::filesystem::remove(documents + "/Terranote sample/chisou_men/souzyo.dat");
  std::filesystem::remove_all(program);
  run_answering(Answer::yes);
  EXPECT_FALSE(is_there(documents + "/Terranote sample 2"));
  EXPECT_EQ(disk.read_bytes(documents + "/Terranote sample/chisou_men/観測点.csv"), "my observations");
  EXPECT_TRUE(is_there(documents + "/Terranote sample/chisou_men/souzyo.dat"));
}

TEST_F(First_start, PutsTheProjectIntoTheProgramFolderWhereThereAreNoDocuments) {
  std::filesystem::remove_all(documents);
  EXPECT_EQ(session::sample_project_folder(start, files), program + "/sample");
  start.documents.clear();
  EXPECT_EQ(session::sample_project_folder(start, files), program + "/sample");
}

// A comma ends the line of settei.ini that names the project; 한 has no code in code page 932.
TEST_F(First_start, PutsTheProjectWhereTheSettingsCanNameIt) {
  for (const char* name : {"papers, old", "한글"}) {
    start.documents = machine.text() + "/" + name;
    std::filesystem::create_directory(start.documents);
    EXPECT_EQ(session::sample_project_folder(start, files), program + "/sample");
  }
}

TEST_F(First_start, OffersNoSampleWhereTheSettingsCannotNameTheProgramFolder) {
  start.place.folder = machine.text() + "/한글";
  run();
  EXPECT_THAT(prompts.shown, IsEmpty());
  EXPECT_TRUE(is_there(start.place.folder + "/igrf10.coef"));
}

TEST_F(First_start, SaysWhenTheFolderOfTheProjectCannotBeMade) {
  struct : support::Fault_files {
    using Fault_files::Fault_files;
    bool make_folder(const std::string& path) override {
      return path.find("Terranote sample") == std::string::npos && Fault_files::make_folder(path);
    }
  } refusing{disk};
  start.language = "English";
  prompts.answers = {Answer::yes};
  session::first_start(start, refusing, prompts);
  ASSERT_THAT(prompts.shown, SizeIs(2));
  EXPECT_EQ(prompts.shown[1],
            "The sample could not be put in place: " + documents + "/Terranote sample could not be made");
  EXPECT_FALSE(is_there(program + "/sample.set"));
}

// Every write of the road fails in turn; the next start, on a disk that works, brings it to its end.
TEST_F(First_start, AFaultAtAnyWriteIsToldAndTheNextStartGoesOn) {
  start.language = "English";
  int faults = 0;
  for (int write = 1; faults == write - 1; ++write) {
    std::filesystem::remove_all(program);
    std::filesystem::remove_all(documents + "/Terranote sample");
    prompts.shown.clear();
    files.failing_write = write;
    run_answering(Answer::yes);
    faults += files.failing_write == 0;
    files.failing_write = 0;
    const bool told = testing::Value(prompts.shown, testing::Contains(HasSubstr("could not be written")));
    EXPECT_EQ(told, faults == write) << "write " << write;
    run_answering(Answer::yes);
    EXPECT_EQ(content("mps/kirisawa.mps"), "sample's program/mps/kirisawa.mps");
    EXPECT_EQ(content("igrf10.coef"), "coefficients");
    EXPECT_GT(files.length(program + "/settei.ini"), 0);
  }
  // Two templates, the language, the marker, two files of the project, five tables and maps, the settings, the answer.
  EXPECT_EQ(faults, 13);
}

TEST_F(First_start, DoesNotTakeASampleThatWasNotMadeToItsEnd) {
  std::filesystem::remove(made + "/program/settei.ini");
  start.language = "English";
  run_answering(Answer::yes);
  ASSERT_THAT(prompts.shown, SizeIs(2));
  EXPECT_THAT(prompts.shown[1], HasSubstr("holds no whole sample"));
  EXPECT_FALSE(is_there(documents + "/Terranote sample"));
}
