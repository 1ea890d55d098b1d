#include "platform/left_over.h"

#include <gtest/gtest.h>

#include "platform/files.h"
#include "support/temporary_folder.h"

namespace {

using platform::process_of_temporary;

// No process of this machine can have the largest number.
constexpr const char* left_by_a_dead_process = ".terranote-2147483647-1.tmp";

}  // namespace

TEST(Left_over, ATemporaryFilesNameTellsItsProcess) {
  EXPECT_EQ(process_of_temporary(".terranote-4711-3.tmp"), 4711u);
  for (const char* other : {"", ".terranote-.tmp", ".terranote-4711.tmp", ".terranote-4711-.tmp", ".terranote--1-3.tmp",
                            ".terranote-4711-3.tmp.csv", "a.terranote-4711-3.tmp", ".terranote-4711-3x.tmp",
                            ".terranote-99999999999-1.tmp"})
    EXPECT_EQ(process_of_temporary(other), 0u) << other;
}

TEST(Left_over, OnlyTheFilesOfProcessesThatAreGoneAreRemoved) {
  support::Temporary_folder folder;
  platform::Disk_files files;
  // Process 1 runs as long as the machine does.
  for (const char* name : {left_by_a_dead_process, ".terranote-1-1.tmp", "genchi.csv", ".terranote-notes.tmp"})
    files.write_whole(folder.text() + "/" + name, "1");
  files.remove_left_over(folder.text());
  EXPECT_EQ(files.length(folder.text() + "/" + left_by_a_dead_process), 0);
  for (const char* name : {".terranote-1-1.tmp", "genchi.csv", ".terranote-notes.tmp"})
    EXPECT_EQ(files.length(folder.text() + "/" + name), 1) << name;
}

TEST(Left_over, AMissingFolderHasNone) {
  support::Temporary_folder folder;
  platform::Disk_files files;
  files.remove_left_over(folder.text() + "/none");
  EXPECT_FALSE(files.folder_exists(folder.text() + "/none"));
}

TEST(Left_over, TheFirstWriteToAFolderSweepsIt) {
  support::Temporary_folder folder;
  const std::string left = folder.text() + "/" + left_by_a_dead_process;
  platform::Disk_files().write_whole(left, "1");
  platform::Disk_files files;
  files.write_whole(folder.text() + "/genchi.csv", "1");
  EXPECT_EQ(files.length(left), 0);
  files.write_whole(left, "1");
  files.write_whole(folder.text() + "/genchi.csv", "2");
  EXPECT_EQ(files.length(left), 1) << "once is enough: what comes later was left by nobody";
}
