#include "support/fault_files.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/text_files.h"
#include "support/temporary_folder.h"

using platform::File_failure;
using support::Fault_files;

namespace {

class Fault_files_double : public ::testing::Test {
 protected:
  Fault_files_double() { disk_.write_whole(path("a.txt"), "old"); }
  std::string path(const std::string& name) const { return folder_.text() + "\\" + name; }
  std::string content() { return disk_.read_bytes(path("a.txt")); }

  support::Temporary_folder folder_;
  platform::Disk_files disk_;
  Fault_files files_{disk_};
};

TEST_F(Fault_files_double, PassesEverythingOnAndKeepsALog) {
  files_.write_whole(path("a.txt"), "new");
  files_.append(path("a.txt"), "er");
  files_.copy(path("a.txt"), path("b.txt"));
  EXPECT_EQ(files_.read_bytes(path("b.txt")), "newer");
  EXPECT_EQ(files_.length(path("b.txt")), 5);
  EXPECT_TRUE(files_.make_folder(path("sub")));
  EXPECT_TRUE(files_.folder_exists(path("sub")));
  EXPECT_EQ(files_.list(folder_.text(), "*.txt").size(), 2U);
  EXPECT_EQ(files_.time_stamp(path("b.txt")), disk_.time_stamp(path("b.txt")));
  EXPECT_EQ(files_.native_path(path("B.TXT")), disk_.native_path(path("b.txt")));
  EXPECT_TRUE(files_.remove(path("b.txt")));
  EXPECT_EQ(files_.calls(), 11);
  EXPECT_EQ(files_.calls("write_whole"), 1);
  EXPECT_EQ(files_.calls("copy"), 1);
  EXPECT_EQ(files_.log.front(), "write_whole " + path("a.txt"));
}

TEST_F(Fault_files_double, FailsAtTheWriteThatIsAskedFor) {
  files_.failing_write = 2;
  files_.write_whole(path("a.txt"), "first");
  EXPECT_THROW(files_.write_whole(path("a.txt"), "second"), File_failure);
  EXPECT_EQ(content(), "first");
  files_.write_whole(path("a.txt"), "third");
  EXPECT_EQ(content(), "third");
}

TEST_F(Fault_files_double, RunsFullAfterTheBytesOfItsRoom) {
  files_.room = 5;
  files_.append(path("a.txt"), "123");
  EXPECT_THROW(files_.write_whole(path("a.txt"), "1234"), File_failure);
  EXPECT_THROW(files_.append(path("a.txt"), "x"), File_failure);
  EXPECT_EQ(content(), "old123");
}

TEST_F(Fault_files_double, RefusesEveryChangeWhenReadOnly) {
  files_.read_only = true;
  EXPECT_THROW(files_.write_whole(path("a.txt"), "new"), File_failure);
  EXPECT_THROW(files_.append(path("a.txt"), "new"), File_failure);
  EXPECT_THROW(files_.copy(path("a.txt"), path("b.txt")), File_failure);
  EXPECT_FALSE(files_.remove(path("a.txt")));
  EXPECT_FALSE(files_.make_folder(path("sub")));
  EXPECT_TRUE(files_.make_folder(folder_.text()));
  EXPECT_EQ(content(), "old");
}

TEST_F(Fault_files_double, FailsAtTheRenameAndLeavesTheOldFile) {
  files_.failing_rename = true;
  EXPECT_THROW(files_.write_whole(path("a.txt"), "new"), File_failure);
  EXPECT_EQ(content(), "old");
}

TEST_F(Fault_files_double, LetsAnUnreadableFileHaveNoLines) {
  files_.unreadable = "a.txt";
  EXPECT_THROW(files_.read_bytes(path("a.txt")), File_failure);
  EXPECT_TRUE(platform::read_lines(files_, path("a.txt")).empty());
}

}  // namespace
