#include "exchange/file_set.h"

#include <gmock/gmock.h>

#include "exchange/exchange_place.h"
#include "platform/failures.h"
#include "support/fault_files.h"

namespace {

using exchange::New_files;
using testing::ElementsAre;

struct File_set : testing::Test {
  support::Exchange_place place;
  support::Fault_files faults{place.files};

  std::string path(const std::string& name) const { return platform::join_path(place.target, name); }
  std::vector<exchange::Set_file> set() const { return {{path("1"), "one"}, {path("2"), "two"}, {path("3"), "three"}}; }
};

TEST_F(File_set, WritesAllFilesAndRemovesWhatDoesntBelong) {
  place.files.write_whole(path("old"), "x");
  exchange::write_together(faults, {{path("1"), "one"}, {path("old"), std::nullopt}, {path("no"), std::nullopt}},
                           New_files::go);
  EXPECT_THAT(place.names(), ElementsAre("1"));
  EXPECT_EQ(place.made("1"), "one");
}

TEST_F(File_set, PutsTheOlderFilesBackWhateverWriteFails) {
  for (int failing = 1; failing <= 3; ++failing) {
    for (const char* name : {"1", "2", "3"}) place.files.write_whole(path(name), "old");
    faults.failing_write = failing;
    EXPECT_THROW(exchange::write_together(faults, set(), New_files::stay), platform::File_failure) << failing;
    for (const char* name : {"1", "2", "3"}) EXPECT_EQ(place.made(name), "old") << failing;
  }
}

TEST_F(File_set, KeepsOrRemovesTheNewFilesOfASetThatBroke) {
  faults.failing_write = 3;
  EXPECT_THROW(exchange::write_together(faults, set(), New_files::stay), platform::File_failure);
  EXPECT_THAT(place.names(), ElementsAre("1", "2"));
  for (const char* name : {"1", "2"}) place.files.remove(path(name));
  faults.failing_write = 3;
  EXPECT_THROW(exchange::write_together(faults, set(), New_files::go), platform::File_failure);
  EXPECT_THAT(place.names(), ElementsAre());
}

TEST_F(File_set, BringsARemovedFileBack) {
  place.files.write_whole(path("0"), "old");
  faults.failing_write = 1;
  EXPECT_THROW(exchange::write_together(faults, {{path("0"), std::nullopt}, {path("1"), "one"}}, New_files::go),
               platform::File_failure);
  EXPECT_EQ(place.made("0"), "old");
}

TEST_F(File_set, WritesNothingWhenAnOlderFileCantBeRead) {
  place.files.write_whole(path("1"), "old");
  place.files.write_whole(path("3"), "old");
  faults.unreadable = path("3");
  EXPECT_THROW(exchange::write_together(faults, set(), New_files::stay), platform::File_failure);
  EXPECT_EQ(place.made("1"), "old");
  EXPECT_EQ(faults.calls("write_whole"), 0);
}

}  // namespace
