#include "platform/folder_lock.h"

#include <gtest/gtest.h>

#include <memory>

#include "support/temporary_folder.h"

using platform::Folder_lock;
using platform::Lock_state;

TEST(Folder_lock, IsHeldByOneAtATime) {
  const support::Temporary_folder folder;
  const std::string file = folder.text() + "/lock";
  auto first = std::make_unique<Folder_lock>(file);
  EXPECT_EQ(first->state, Lock_state::held);
  EXPECT_EQ(Folder_lock(file).state, Lock_state::taken);
  EXPECT_EQ(Folder_lock(file).state, Lock_state::taken) << "a refused one must not give the lock back";
  first.reset();
  EXPECT_EQ(Folder_lock(file).state, Lock_state::held);
}

TEST(Folder_lock, IsImpossibleWithoutItsFolder) {
  const support::Temporary_folder folder;
  EXPECT_EQ(Folder_lock(folder.text() + "/missing/lock").state, Lock_state::impossible);
}
