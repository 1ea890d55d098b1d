#include "platform/prompts.h"

#include <gtest/gtest.h>

#include "support/scripted_prompts.h"

using platform::Answer;
using platform::Message;
using support::Scripted_prompts;

namespace {

constexpr Message question{"よろしいですか。", "Are you sure?"};

TEST(Prompts, ShowTheTextOfTheLanguageInForce) {
  Scripted_prompts prompts;
  prompts.message(question);
  prompts.use_language("Japanese");
  prompts.message(question);
  prompts.message("ファイル: a", "file: a");
  EXPECT_EQ(prompts.shown, (std::vector<std::string>{"Are you sure?", "よろしいですか。", "ファイル: a"}));
}

TEST(Prompts, GiveTheAnswerThatWasPressed) {
  Scripted_prompts prompts;
  prompts.answers = {Answer::yes, Answer::no, Answer::ok, Answer::cancel, Answer::cancel};
  EXPECT_TRUE(prompts.yes_no(question));
  EXPECT_FALSE(prompts.yes_no(question));
  EXPECT_TRUE(prompts.ok_cancel(question));
  EXPECT_FALSE(prompts.ok_cancel(question));
  EXPECT_EQ(prompts.yes_no_cancel(question), Answer::cancel);
}

TEST(Prompts, ShowNothingInAnotherLanguageAndCountAsDeclined) {
  Scripted_prompts prompts;
  prompts.use_language("japanese");
  prompts.answers = {Answer::yes, Answer::ok};
  prompts.message(question);
  EXPECT_FALSE(prompts.yes_no(question));
  EXPECT_FALSE(prompts.ok_cancel(question));
  EXPECT_EQ(prompts.yes_no_cancel(question), Answer::cancel);
  EXPECT_TRUE(prompts.shown.empty());
  EXPECT_EQ(prompts.answers.size(), 2U);
}

}  // namespace
