// Saves of a registry that are not lived through: by a real kill at a random moment, and by a fault at every write and
// at every length of the disk. The file is the old or the new one, whole.
#include <gtest/gtest.h>

#include "observations/observation_place.h"
#include "observations/registry_save.h"

#if __has_include(<sys/wait.h>)
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <random>
#include <thread>
#define TERRANOTE_CAN_FORK 1
#endif

namespace {

using observations::box_soukou;

constexpr int records = 3000;

struct Registry_kill : testing::Test, support::Observation_place {
  std::string with_strike;  // lines before the record's strike, and behind it
  std::string behind;

  // Records in metres; the first of them has the strike that the saves change.
  void SetUp() override {
    std::vector<std::string> lines;
    for (int i = 1; i < records; ++i) lines.push_back(support::point_at("10.0", "20.0", "n" + std::to_string(i)));
    with_strike = platform::encode_932(" 0 ,10.0,20.0,,,,");
    behind =
        platform::encode_932(",,n0,,○, 2 , 0 , 0 , 0 , 0 , 0 , 0 ,0,,,,, 0 ,") + "\r\n" + support::lines_932(lines);
    put(registry_with("N10E"));
  }
  std::string registry_with(const std::string& strike) const { return with_strike + strike + behind; }
  observations::Save_result save(const std::string& strike) {
    read();
    entry = {};
    entry.touroku = 1;
    observations::mnu_henkou(context(), entry, registry, click(0, 0));
    entry.boxes.Text14[box_soukou] = strike;
    return observations::Command9(context(), entry, registry);
  }
  std::vector<std::string> left_behind() { return disk.list(project + "\\chisou_men", "*.tmp"); }
};

}  // namespace

TEST_F(Registry_kill, TheSaveItselfChangesNothingButTheStrike) {
  EXPECT_TRUE(save("N20E").saved);
  EXPECT_TRUE(support::same_bytes(bytes(), registry_with("N20E")));
}

TEST_F(Registry_kill, AFaultAtAnyWriteLeavesTheFileWhole) {
  for (int write = 1; write <= 4; ++write) {
    put(registry_with("N10E"));
    files.failing_write = write;
    const bool saved = save("N20E").saved;
    files.failing_write = 0;
    EXPECT_EQ(bytes(), registry_with(saved ? "N20E" : "N10E")) << "write " << write;
    EXPECT_EQ(saved, write > 1) << "the backup's copies may fail without a word, write " << write;
  }
}

TEST_F(Registry_kill, AFullDiskAtAnyLengthLeavesTheFileWhole) {
  const auto length = static_cast<std::int64_t>(registry_with("N10E").size());
  for (std::int64_t room = 0; room < length; room += length / 97) {
    files.room = room;
    EXPECT_FALSE(save("N20E").saved) << room;
    files.room = -1;
    ASSERT_EQ(bytes(), registry_with("N10E")) << "with room for " << room << " bytes";
  }
  EXPECT_TRUE(left_behind().empty());
}

TEST_F(Registry_kill, ARealKillLeavesTheOldFileOrTheNewOne) {
#ifndef TERRANOTE_CAN_FORK
  GTEST_SKIP() << "this system can't copy a running program";
#else
  constexpr int kills = 40;
  std::mt19937 random(20261121);
  std::uniform_int_distribution<int> moment(0, 20'000);  // microseconds; a save takes some thousand
  int within = 0;
  for (int kill_number = 0; kill_number < kills; ++kill_number) {
    put(registry_with("N10E"));
    const pid_t saver = fork();
    ASSERT_GE(saver, 0);
    if (saver == 0) {
      for (bool turn = true;; turn = !turn) save(turn ? "N20E" : "N10E");
    }
    std::this_thread::sleep_for(std::chrono::microseconds(moment(random)));
    kill(saver, SIGKILL);
    waitpid(saver, nullptr, 0);
    const std::string found = bytes();
    ASSERT_TRUE(found == registry_with("N10E") || found == registry_with("N20E"))
        << "kill " << kill_number << " left " << found.size() << " bytes";
    for (const std::string& copy : disk.list(project + "\\chisou_men\\csv", "*.csv")) {
      const std::string kept = disk.read_bytes(project + "\\chisou_men\\csv\\" + copy);
      ASSERT_TRUE(kept == registry_with("N10E") || kept == registry_with("N20E")) << "the backup after " << kill_number;
    }
    within += left_behind().empty() ? 0 : 1;
    disk.remove_left_over(project + "\\chisou_men");
    EXPECT_TRUE(left_behind().empty());
  }
  RecordProperty("kills_between_write_and_rename", within);
  EXPECT_GT(within, 0) << "no kill fell into a write: the moments are too late or too early";
#endif
}
