#include "core/save_messages.h"

#include <gtest/gtest.h>

#include "platform/failures.h"
#include "support/scripted_prompts.h"

namespace {

struct Save_messages : ::testing::Test {
  support::Scripted_prompts prompts;
};

}  // namespace

TEST_F(Save_messages, NameTheFile) {
  core::write_failed(prompts, "a.csv", platform::File_failure("of a double"));
  core::read_in_part(prompts, "b.csv");
  ASSERT_EQ(prompts.shown.size(), 2U);
  EXPECT_NE(prompts.shown[0].find("a.csv"), std::string::npos);
  EXPECT_NE(prompts.shown[1].find("b.csv"), std::string::npos);
}

TEST_F(Save_messages, AreSilentWhereEachCharacterHasACode) {
  EXPECT_FALSE(core::unknown_characters(prompts, ""));
  EXPECT_TRUE(prompts.shown.empty());
  EXPECT_TRUE(core::unknown_characters(prompts, "\U0001F600"));
  ASSERT_EQ(prompts.shown.size(), 1U);
  EXPECT_NE(prompts.shown[0].find("\U0001F600"), std::string::npos);
}

TEST_F(Save_messages, TellTheCauseInTheLanguageInForce) {
  using platform::File_cause;
  const auto failure = [](File_cause cause) {
    return platform::File_failure("C:\\a.csv", "written", "odd words", cause);
  };
  core::write_failed(prompts, "C:\\a.csv", failure(File_cause::disk_full));
  core::operation_failed(prompts, failure(File_cause::not_allowed));
  prompts.use_language("Japanese");
  core::write_failed(prompts, "C:\\a.csv", failure(File_cause::disk_full));
  core::operation_failed(prompts, failure(File_cause::not_allowed));
  EXPECT_EQ(prompts.shown,
            (std::vector<std::string>{"The file can't be saved: C:\\a.csv (the disk is full)",
                                      "A file could not be read or written: C:\\a.csv (permission denied)",
                                      "保存できません: C:\\a.csv（ディスクの空きが足りません）",
                                      "ファイルを読み書きできませんでした: "
                                      "C:\\a.csv（書き込みや読み込みの許可がありません）"}));
}

TEST_F(Save_messages, HaveTheMachinesOwnWordsOnlyWhereTheCauseIsUnknown) {
  core::operation_failed(prompts,
                         platform::File_failure("C:\\a.csv", "read", "Bad address", platform::File_cause::unknown));
  core::operation_failed(prompts, platform::Subscript_failure("row 15001"));
  EXPECT_EQ(prompts.shown,
            (std::vector<std::string>{"A file could not be read or written: C:\\a.csv could not be read: Bad address",
                                      "This operation was ended: row 15001"}));
}
