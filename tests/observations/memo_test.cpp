#include "observations/memo.h"

#include <gmock/gmock.h>

#include "observations/observation_place.h"
#include "platform/failures.h"
#include "support/fake_ports.h"

namespace {

struct Memo : testing::Test, support::Observation_place {
  std::string memo(const std::string& number) const { return observations::memo_path(project, number); }
};

TEST_F(Memo, LiesUnderTheRegistrationNumber) {
  EXPECT_EQ(memo("081115-001"), project + "\\chisou_men\\txt\\081115-001.txt");
}

TEST_F(Memo, HasNoPathForANumberThatLeavesTheFolder) {
  for (const char* number : {"", "..\\a", "a/b", "C:a", "con"}) EXPECT_EQ(memo(number), "") << number;
}

TEST_F(Memo, ComesBackWithItsLines) {
  observations::memo_write(files, project, memo("1"), "砂岩\n\n泥岩");
  EXPECT_EQ(disk.read_bytes(memo("1")), support::lines_932({"砂岩", "", "泥岩"}));
  EXPECT_EQ(observations::memo_read(files, memo("1")), "砂岩\n\n泥岩");
}

TEST_F(Memo, IsEmptyWhereThereIsNone) {
  EXPECT_EQ(observations::memo_read(files, memo("1")), "");
  EXPECT_EQ(observations::memo_read(files, ""), "");
}

TEST_F(Memo, IsNotWrittenWhenNothingChanged) {
  observations::memo_write(files, project, memo("1"), "");
  EXPECT_EQ(files.calls("write_whole"), 0);
  observations::memo_write(files, project, memo("1"), "a");
  observations::memo_write(files, project, memo("1"), "a");
  EXPECT_EQ(files.calls("write_whole"), 1);
  observations::memo_write(files, project, memo("1"), "");
  EXPECT_EQ(disk.length(memo("1")), 0);
}

TEST_F(Memo, FailsInAReadOnlyFolder) {
  files.read_only = true;
  EXPECT_THROW(observations::memo_write(files, project, memo("1"), "a"), platform::File_failure);
}

TEST_F(Memo, OpensWithItsProgramWhenItHasALength) {
  support::Recorded_processes processes;
  disk.make_folder(project + "\\chisou_men\\txt");
  disk.write_whole(memo("1"), "a\r\n");
  EXPECT_EQ(observations::Command23(files, processes, prompts, project, "1"), observations::Memo_shown::program);
  EXPECT_THAT(processes.started, testing::ElementsAre(memo("1")));
}

TEST_F(Memo, IsEditedInThePanelWithoutAFile) {
  support::Recorded_processes processes;
  disk.make_folder(project + "\\chisou_men\\txt");
  disk.write_whole(memo("2"), "");
  for (const char* number : {"1", "2", "", "..\\a"})
    EXPECT_EQ(observations::Command23(files, processes, prompts, project, number), observations::Memo_shown::panel);
  EXPECT_THAT(processes.started, testing::IsEmpty());
  EXPECT_THAT(prompts.shown, testing::IsEmpty());
}

TEST_F(Memo, IsEditedInThePanelWhenNoProgramOpensIt) {
  struct Refusing : support::Recorded_processes {
    platform::Open_result open(const std::string&) override { return platform::Open_result::denied; }
  } processes;
  disk.make_folder(project + "\\chisou_men\\txt");
  disk.write_whole(memo("1"), "a\r\n");
  EXPECT_EQ(observations::Command23(files, processes, prompts, project, "1"), observations::Memo_shown::panel);
  EXPECT_THAT(prompts.shown, testing::ElementsAre("アクセスは拒否されました。"));
}

}  // namespace
