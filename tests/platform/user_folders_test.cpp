#include "platform/user_folders.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <string>

#include "platform/disk_io.h"

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
