#include "platform/disk_gate.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <system_error>
#include <vector>

#include "platform/failures.h"
#include "platform/files.h"
#include "support/golden.h"
#include "support/temporary_folder.h"

namespace {

using platform::Disk_step;
using platform::Step_kind;
using Kinds = std::vector<Step_kind>;

struct Disk_gate : testing::Test {
  support::Temporary_folder folder;
  Kinds kinds;
  std::size_t at_once = 1000;  // bytes of a write
  Step_kind failing = Step_kind::read;
  std::errc fault{};  // of the failing kind; none: it doesn't fail
  platform::Disk_files files{[this](const Disk_step& step) { return take(step); }};
  std::string path = folder.text() + "/a.txt";

  std::size_t take(const Disk_step& step) {
    kinds.push_back(step.kind);
    if (step.kind == failing && fault != std::errc{}) throw std::system_error(std::make_error_code(fault));
    return std::min(at_once, step.bytes);
  }
  std::string content() const { return support::bytes_of(path); }
};

TEST_F(Disk_gate, IsPassedByEachStepOfAWholeWrite) {
  files.write_whole(path, "new");
  EXPECT_EQ(kinds, (Kinds{Step_kind::create, Step_kind::permit, Step_kind::write, Step_kind::flush, Step_kind::rename,
                          Step_kind::flush}));
  EXPECT_EQ(content(), "new");
}

TEST_F(Disk_gate, LetsThroughAsManyBytesAsItSays) {
  at_once = 2;
  files.write_whole(path, "12345");
  EXPECT_EQ(std::count(kinds.begin(), kinds.end(), Step_kind::write), 3);
  EXPECT_EQ(content(), "12345");
}

TEST_F(Disk_gate, AFailingStepFailsTheWriteAndTheTemporaryFileGoes) {
  files.write_whole(path, "old");
  for (const Step_kind kind :
       {Step_kind::create, Step_kind::permit, Step_kind::write, Step_kind::flush, Step_kind::rename}) {
    failing = kind;
    fault = std::errc::no_space_on_device;
    try {
      files.write_whole(path, "new");
      // A flush of the folder comes behind the rename, and changes nothing.
      ADD_FAILURE() << static_cast<int>(kind);
    } catch (const platform::File_failure& failure) {
      EXPECT_EQ(failure.cause, platform::File_cause::disk_full);
      EXPECT_EQ(failure.file, path);
    }
    fault = std::errc{};
    EXPECT_EQ(content(), "old");
    EXPECT_EQ(files.list(folder.text(), "*").size(), 1U);
  }
}

TEST_F(Disk_gate, AnAppendThatFailsLeavesNoNewFile) {
  failing = Step_kind::flush;
  fault = std::errc::io_error;
  EXPECT_THROW(files.append(path, "new"), platform::File_failure);
  EXPECT_TRUE(files.list(folder.text(), "*").empty());
  fault = std::errc{};
  files.append(path, "old");
  fault = std::errc::io_error;
  EXPECT_THROW(files.append(path, " and new"), platform::File_failure);
  EXPECT_EQ(content(), "old");
}

TEST_F(Disk_gate, IsPassedByTheOtherChangesToo) {
  EXPECT_TRUE(files.make_folder(folder.text() + "/sub"));
  files.append(path, "x");
  EXPECT_EQ(files.read_bytes(path), "x");
  EXPECT_TRUE(files.remove(path));
  EXPECT_EQ(kinds, (Kinds{Step_kind::make_folder, Step_kind::open, Step_kind::write, Step_kind::flush, Step_kind::open,
                          Step_kind::read, Step_kind::read, Step_kind::remove}));
  failing = Step_kind::remove;
  fault = std::errc::permission_denied;
  files.append(path, "x");
  EXPECT_FALSE(files.remove(path));
  failing = Step_kind::make_folder;
  EXPECT_FALSE(files.make_folder(folder.text() + "/other"));
  EXPECT_TRUE(files.make_folder(folder.text() + "/sub")) << "it is there";
}

}  // namespace
