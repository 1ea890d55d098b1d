#include "core/save_messages.h"

#include <gtest/gtest.h>

#include "support/scripted_prompts.h"

namespace {

struct Save_messages : ::testing::Test {
  support::Scripted_prompts prompts;
};

}  // namespace

TEST_F(Save_messages, NameTheFile) {
  core::write_failed(prompts, "a.csv");
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
