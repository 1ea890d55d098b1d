#include "core/save_messages.h"

#include <gmock/gmock.h>

#include "platform/failures.h"
#include "support/scripted_prompts.h"

namespace {

using testing::ElementsAre;

struct Save_messages : ::testing::Test {
  support::Scripted_prompts prompts;
};

}  // namespace

TEST_F(Save_messages, NameTheFileInTheLanguageInForce) {
  const platform::File_failure failure("of a double");
  core::write_failed(prompts, "a.csv", failure);
  core::read_in_part(prompts, "b.csv");
  prompts.use_language("Japanese");
  core::write_failed(prompts, "a.csv", failure);
  core::read_in_part(prompts, "b.csv");
  EXPECT_THAT(
      prompts.shown,
      ElementsAre("The file can't be saved: a.csv", "The file was not read as a whole, so it is left as it is: b.csv",
                  "保存できません: a.csv", "地点登録ファイルの全体を読み込めていないため、保存しません: b.csv"));
}

TEST_F(Save_messages, NameTheCharactersThatHaveNoCode) {
  EXPECT_FALSE(core::unknown_characters(prompts, ""));
  EXPECT_TRUE(prompts.shown.empty());
  EXPECT_TRUE(core::unknown_characters(prompts, "\U0001F600"));
  prompts.use_language("Japanese");
  EXPECT_TRUE(core::unknown_characters(prompts, "\U0001F600é"));
  EXPECT_THAT(prompts.shown, ElementsAre("These characters can't be stored, please replace them: \U0001F600",
                                         "次の文字は保存できません。書き換えて下さい: \U0001F600é"));
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
