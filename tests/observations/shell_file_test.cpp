#include "observations/shell_file.h"

#include <gmock/gmock.h>

#include "support/fake_ports.h"
#include "support/scripted_prompts.h"

namespace {

using platform::Open_result;
using testing::ElementsAre;
using testing::IsEmpty;

// Answers every request with one result.
struct Answering_processes : support::Recorded_processes {
  Open_result answer = Open_result::opened;
  Open_result open(const std::string& what) override {
    started.push_back(what);
    return answer;
  }
};

struct Shell_file : testing::TestWithParam<const char*> {
  Answering_processes processes;
  support::Scripted_prompts prompts;
  Shell_file() { prompts.use_language(GetParam()); }
};
INSTANTIATE_TEST_SUITE_P(BothLanguages, Shell_file, testing::Values("Japanese", "English"));

TEST_P(Shell_file, OpensWithoutAWord) {
  EXPECT_TRUE(observations::Shell_file(processes, prompts, "C:\\a.txt"));
  EXPECT_EQ(observations::Shell_file2(processes, "C:\\b.txt"), Open_result::opened);
  EXPECT_THAT(processes.started, ElementsAre("C:\\a.txt", "C:\\b.txt"));
  EXPECT_THAT(prompts.shown, IsEmpty());
}

TEST_P(Shell_file, TellsWhyNot) {
  const std::pair<Open_result, const char*> rows[] = {
      {Open_result::no_memory, "メモリまたはリソースが足りません。"},
      {Open_result::no_file, "ファイルが見つかりません。"},
      {Open_result::no_path, "パスが見つかりません。"},
      {Open_result::bad_format, "不正な形式の実行ファイルです。"},
      {Open_result::denied, "アクセスは拒否されました。"},
  };
  for (const auto& [answer, text] : rows) {
    processes.answer = answer;
    prompts.shown.clear();
    EXPECT_FALSE(observations::Shell_file(processes, prompts, "C:\\a.txt"));
    EXPECT_THAT(prompts.shown, ElementsAre(text));
    prompts.shown.clear();
    EXPECT_EQ(observations::Shell_file2(processes, "C:\\a.txt"), answer);
    EXPECT_THAT(prompts.shown, IsEmpty());
  }
}

TEST_P(Shell_file, NamesAFileThatNoProgramGoesWith) {
  processes.answer = Open_result::failed;
  EXPECT_FALSE(observations::Shell_file(processes, prompts, "C:\\a.xyz"));
  EXPECT_THAT(prompts.shown, ElementsAre(testing::EndsWith(": C:\\a.xyz")));
}

TEST(Processes, TellFailureAloneWhereTheyKnowNoReason) {
  struct Refusing : support::Recorded_processes {
    bool open_with_program(const std::string&) override { return false; }
  } refusing;
  support::Recorded_processes opening;
  EXPECT_EQ(refusing.open("a"), Open_result::failed);
  EXPECT_EQ(opening.open("a"), Open_result::opened);
}

}  // namespace
