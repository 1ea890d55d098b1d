#include "core/save_messages.h"

#include <gmock/gmock.h>

#include "support/scripted_prompts.h"

namespace {

using testing::ElementsAre;

struct Save_messages : ::testing::Test {
  support::Scripted_prompts prompts;
};

}  // namespace

TEST_F(Save_messages, NameTheFileInTheLanguageInForce) {
  core::write_failed(prompts, "a.csv");
  core::read_in_part(prompts, "b.csv");
  prompts.use_language("Japanese");
  core::write_failed(prompts, "a.csv");
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
