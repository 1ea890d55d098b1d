#include "platform/user_folders.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <string>

#include "platform/disk_io.h"
#include "platform/files.h"
#include "support/temporary_folder.h"

namespace {

std::string folder_with(const std::map<std::string, std::string>& variables) {
  return platform::state_folder([&](const char* name) {
    const auto found = variables.find(name);
    return found == variables.end() ? std::string() : found->second;
  });
}

}  // namespace

TEST(State_folder, IsEmptyWhereNothingIsSet) {
  EXPECT_EQ(folder_with({}), "");
}

TEST(State_folder, LiesWhereTheUsersStateLies) {
  if (platform::machine_folds_case) {
    EXPECT_EQ(folder_with({{"LOCALAPPDATA", "C:\\Users\\sato\\AppData\\Local"}}),
              "C:\\Users\\sato\\AppData\\Local\\Terranote");
    return;
  }
  EXPECT_EQ(folder_with({{"HOME", "/home/sato"}}), "/home/sato\\.local\\state\\terranote");
  EXPECT_EQ(folder_with({{"HOME", "/home/sato"}, {"XDG_STATE_HOME", "/data/state"}}), "/data/state\\terranote");
}

TEST(State_folder, TakesNoRelativePath) {
  EXPECT_EQ(folder_with({{"XDG_STATE_HOME", "state"}, {"HOME", "sato"}, {"LOCALAPPDATA", "local"}}), "");
  if (platform::machine_folds_case) return;
  EXPECT_EQ(folder_with({{"XDG_STATE_HOME", "state"}, {"HOME", "/home/sato"}}), "/home/sato\\.local\\state\\terranote");
}

namespace {

std::string data_folder_with(const std::map<std::string, std::string>& variables) {
  return platform::data_folder([&](const char* name) {
    const auto found = variables.find(name);
    return found == variables.end() ? std::string() : found->second;
  });
}

// A root such as /usr, with the executable's folder in it.
struct Program_place : testing::Test {
  support::Temporary_folder root;
  std::string bin = (root.path() / "bin").string();

  void SetUp() override { std::filesystem::create_directory(bin); }
  void install() { std::filesystem::create_directories(root.path() / "share" / "terranote" / "program"); }
  platform::Program_place place() {
    return platform::program_place(bin, [](const char* name) {
      return std::string(name) == "HOME"           ? "/home/sato"
             : std::string(name) == "LOCALAPPDATA" ? "C:\\Users\\sato\\AppData\\Local"
                                                   : "";
    });
  }
};

}  // namespace

TEST(Data_folder, LiesWhereTheUsersDataLie) {
  if (platform::machine_folds_case) {
    EXPECT_EQ(data_folder_with({{"LOCALAPPDATA", "C:\\Users\\sato\\AppData\\Local"}}),
              "C:\\Users\\sato\\AppData\\Local\\Terranote\\program");
    return;
  }
  EXPECT_EQ(data_folder_with({{"HOME", "/home/sato"}}), "/home/sato\\.local\\share\\terranote");
  EXPECT_EQ(data_folder_with({{"HOME", "/home/sato"}, {"XDG_DATA_HOME", "/data/share"}}), "/data/share\\terranote");
}

TEST(Data_folder, TakesNoRelativePath) {
  EXPECT_EQ(data_folder_with({{"XDG_DATA_HOME", "share"}, {"HOME", "sato"}, {"LOCALAPPDATA", "local"}}), "");
  if (platform::machine_folds_case) return;
  EXPECT_EQ(data_folder_with({{"XDG_DATA_HOME", "share"}, {"HOME", "/home/sato"}}),
            "/home/sato\\.local\\share\\terranote");
}

TEST_F(Program_place, OfABuildOrACopiedProgramFolderIsTheExecutablesOwn) {
  const platform::Program_place found = place();
  EXPECT_EQ(found.folder, bin);
  EXPECT_EQ(found.helpers, bin);
  EXPECT_EQ(found.templates, "");
}

TEST_F(Program_place, OfAnInstalledProgramIsTheUsersOwn) {
  install();
  const platform::Program_place found = place();
  EXPECT_EQ(found.folder, platform::machine_folds_case ? "C:\\Users\\sato\\AppData\\Local\\Terranote\\program"
                                                       : "/home/sato\\.local\\share\\terranote");
  EXPECT_EQ(found.templates, (root.path() / "share" / "terranote" / "program").string());
  EXPECT_EQ(found.helpers, (root.path() / "libexec" / "terranote").string());
}

TEST_F(Program_place, IsNotInstalledByAFileOfTheTemplatesName) {
  std::filesystem::create_directories(root.path() / "share" / "terranote");
  platform::Disk_files().write_whole((root.path() / "share" / "terranote" / "program").string(), "x");
  EXPECT_EQ(place().folder, bin);
}

TEST_F(Program_place, OfAnInstalledProgramIsNowhereWithoutAHome) {
  install();
  EXPECT_EQ(platform::program_place(bin, [](const char*) { return std::string(); }).folder, "");
}
