#include "platform/content.h"

#include <gtest/gtest.h>

#include "support/fault_files.h"
#include "support/temporary_folder.h"

namespace {

struct Content : ::testing::Test {
  support::Temporary_folder folder;
  platform::Disk_files disk;
  const std::string path = folder.text() + "/log";
};

}  // namespace

TEST_F(Content, IsWhatTheFileHolds) {
  disk.write_whole(path, std::string("a\0b\r\n", 5));
  EXPECT_EQ(platform::content_or_nothing(disk, path), std::string("a\0b\r\n", 5));
}

TEST_F(Content, IsNothingForAMissingAndAnEmptyFileAndForAFolder) {
  EXPECT_EQ(platform::content_or_nothing(disk, path), "");
  disk.write_whole(path, "");
  EXPECT_EQ(platform::content_or_nothing(disk, path), "");
  EXPECT_EQ(platform::content_or_nothing(disk, folder.text()), "");
}

TEST_F(Content, IsNothingForAFileThatCanNotBeRead) {
  disk.write_whole(path, "abc");
  support::Fault_files files{disk};
  files.unreadable = "log";
  EXPECT_EQ(platform::content_or_nothing(files, path), "");
  files.unreadable.clear();
  EXPECT_EQ(platform::content_or_nothing(files, path), "abc");
}
