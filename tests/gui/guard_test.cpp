#include "ui/guard.h"

#include <gmock/gmock.h>

#include <new>

#include "platform/failures.h"
#include "platform/rows.h"
#include "support/scripted_prompts.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

TEST(Guard, LetsAProcedureEnd) {
  support::Scripted_prompts prompts;
  int runs = 0;
  EXPECT_TRUE(ui::guarded(prompts, [&] { ++runs; }));
  EXPECT_EQ(runs, 1);
  EXPECT_TRUE(prompts.shown.empty());
}

TEST(Guard, TellsAFileThatFailed) {
  support::Scripted_prompts prompts;
  EXPECT_FALSE(ui::guarded(prompts, [] { throw platform::File_failure("C:\\a.csv could not be read: broken"); }));
  prompts.use_language("Japanese");
  EXPECT_FALSE(ui::guarded(prompts, [] { throw platform::File_failure("a.csv"); }));
  EXPECT_THAT(prompts.shown, ElementsAre("A file could not be read or written: C:\\a.csv could not be read: broken",
                                         "ファイルを読み書きできませんでした: a.csv"));
}

// Past the bound of a table only the operation ends; the next one runs.
TEST(Guard, EndsTheOperationThatWentPastATable) {
  support::Scripted_prompts prompts;
  platform::Rows<int, 3> rows;
  int reached = 0;
  EXPECT_FALSE(ui::guarded(prompts, [&] {
    for (int i = 1; i <= 4; ++i) rows[i] = reached = i;
  }));
  EXPECT_EQ(reached, 4);
  EXPECT_EQ(rows[3], 3);
  EXPECT_THAT(prompts.shown, ElementsAre(HasSubstr("This operation was ended: ")));
  EXPECT_TRUE(ui::guarded(prompts, [&] { rows[1] = 7; }));
  EXPECT_EQ(rows[1], 7);
}

TEST(Guard, TellsThatMemoryRanOut) {
  support::Scripted_prompts prompts;
  prompts.use_language("Japanese");
  EXPECT_FALSE(ui::guarded(prompts, [] { throw std::bad_alloc(); }));
  EXPECT_THAT(prompts.shown, ElementsAre("メモリが足りないため、この操作を中断しました。"));
}

}  // namespace
