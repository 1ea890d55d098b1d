// The journal under kills: at every single write of a long road, in random roads, and by a real kill.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "platform/failures.h"
#include "platform/journal.h"
#include "support/journal_place.h"
#include "support/memory_files.h"
#include "support/temporary_folder.h"

#if __has_include(<sys/wait.h>)
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <thread>
#define TERRANOTE_CAN_FORK 1
#endif

using namespace platform;
using State = std::map<std::string, std::string>;

namespace {

// Files of a program that dies at its n-th change of the disk: that one and all later ones don't happen, except that an
// append may happen in part. A start after the death gives them their life back.
class Dying_files : public support::Memory_files {
 public:
  int left = 1'000'000;  // changes before the death
  bool torn = false;

  void write_whole(const std::string& path, std::string_view bytes) override {
    die_or_live(path);
    Memory_files::write_whole(path, bytes);
  }
  void append(const std::string& path, std::string_view bytes) override {
    if (left == 0 && torn) Memory_files::append(path, bytes.substr(0, bytes.size() / 2));
    die_or_live(path);
    Memory_files::append(path, bytes);
  }
  bool remove(const std::string& path) override {
    if (left <= 0) {
      left = -1;
      return false;
    }
    // What isn't there is no change.
    const bool removed = Memory_files::remove(path);
    if (removed) --left;
    return removed;
  }
  bool dead() const { return left < 0; }

 private:
  void die_or_live(const std::string& path) {
    if (left <= 0) {
      left = -1;
      throw File_failure(path + " could not be written: dead");
    }
    --left;
  }
};

const std::string project = "C:\\project", state_folder_here = "C:\\state";

std::string file(const std::string& name) {
  return join_path(project, name);
}

State state_of(Files& files, const std::string& folder) {
  State state;
  for (const std::string& name : files.list(folder, "*")) state[name] = files.read_bytes(join_path(folder, name));
  return state;
}

void begin_project(Files& files) {
  for (const char* name : {"a", "b", "c"}) files.write_whole(file(name), std::string(name) + "0");
}

using Step = std::function<void(Journal&, Files&)>;

// Operations of several writes each, undone and redone.
std::vector<Step> steps() {
  const auto undo = [](Journal& journal, Files&) { journal.undo(); };
  const auto redo = [](Journal& journal, Files&) { journal.redo(); };
  const Step many = [](Journal& journal, Files& files) {
    const Journal_operation operation(journal, "多", "Many");
    files.write_whole(file("a"), "a1");
    files.append(file("b"), " and b1 behind it");
    files.remove(file("c"));
    files.copy(file("b"), file("d"));
    files.append(file("e"), "a new one");
    files.write_whole(file("a"), "a2");
  };
  const Step few = [](Journal& journal, Files& files) {
    const Journal_operation operation(journal, "少", "Few");
    files.write_whole(file("a"), "a3");
    files.append(file("b"), ", more");
  };
  return {many, undo, redo, few, undo, undo, redo, redo, undo, few};
}

// Runs the steps until the files die; where they died, none when they lived.
std::size_t run(Dying_files& files) {
  Journal journal(files);
  journal.open(state_folder_here, project, "");
  Journal_files journaled(files, journal);
  const std::vector<Step> all = steps();
  for (std::size_t i = 0; i < all.size(); ++i) {
    try {
      all[i](journal, journaled);
    } catch (const File_failure&) {
      EXPECT_TRUE(files.dead());
    }
    if (files.dead()) return i;
  }
  return all.size();
}

// The states that an undisturbed road goes through, the first before its first step.
std::vector<State> whole_states() {
  Dying_files files;
  begin_project(files);
  std::vector<State> states{state_of(files, project)};
  Journal journal(files);
  journal.open(state_folder_here, project, "");
  Journal_files journaled(files, journal);
  for (const Step& step : steps()) {
    step(journal, journaled);
    states.push_back(state_of(files, project));
  }
  return states;
}

// After a death in step `died`: what the next start finds and can still take back.
void check_after(Dying_files& files, std::size_t died, const std::vector<State>& states) {
  files.left = 1'000'000;
  const bool in_operation = died == 0 || died == 3 || died == 9;
  Journal journal(files);
  ASSERT_EQ(journal.open(state_folder_here, project, ""), Journal_state::kept);
  const State found = state_of(files, project);
  if (!in_operation) {
    EXPECT_TRUE(found == states[died] || found == states[died + 1]) << "an undo must be done whole or not at all";
  }
  int taken_back = 0;
  for (; journal.undo_title(); ++taken_back) {
    ASSERT_EQ(journal.undo().outcome, Undo_outcome::done);
    const State now = state_of(files, project);
    EXPECT_NE(std::find(states.begin(), states.end(), now), states.end()) << "no state of the road";
  }
  EXPECT_EQ(state_of(files, project), states[0]) << "all operations are taken back";
  for (; taken_back > 0; --taken_back) ASSERT_EQ(journal.redo().outcome, Undo_outcome::done);
  EXPECT_EQ(state_of(files, project), found) << "and done again";
}

}  // namespace

TEST(Journal_crash, LeavesWholeStatesWhereverTheProgramDies) {
  const std::vector<State> states = whole_states();
  ASSERT_EQ(states[1].size(), 4u);
  ASSERT_EQ(states[2], states[0]);
  ASSERT_EQ(states[6], states[0]);
  for (const bool torn : {false, true}) {
    int deaths = 0;
    for (;; ++deaths) {
      Dying_files files;
      begin_project(files);
      files.left = deaths;
      files.torn = torn;
      const std::size_t died = run(files);
      if (!files.dead()) break;
      SCOPED_TRACE("death at change " + std::to_string(deaths) + " in step " + std::to_string(died) +
                   (torn ? ", torn" : ""));
      check_after(files, died, states);
      if (HasFatalFailure()) return;
    }
    EXPECT_GT(deaths, 50) << "the road must be long enough to mean something";
  }
}

TEST(Journal_crash, LeavesWholeStatesWhereASecondStartDiesToo) {
  const std::vector<State> states = whole_states();
  for (int deaths = 0;; ++deaths)
    for (int second = 0; second < 8; ++second) {
      Dying_files files;
      begin_project(files);
      files.left = deaths;
      files.torn = second % 2 == 0;
      const std::size_t died = run(files);
      if (!files.dead()) return;
      {
        files.left = second;
        Journal journal(files);
        journal.open(state_folder_here, project, "");
      }
      SCOPED_TRACE("deaths at " + std::to_string(deaths) + " and " + std::to_string(second));
      check_after(files, died, states);
      if (HasFatalFailure()) return;
    }
}

// One failing write (not a death) at each place, of the journal's files and of the project's.
TEST(Journal_crash, LosesNothingWhereOneWriteFails) {
  for (const bool in_journal : {true, false})
    for (int failing = 1; failing < 14; ++failing) {
      SCOPED_TRACE((in_journal ? "journal write " : "project write ") + std::to_string(failing));
      support::Journal_place place;
      place.disk.write_whole(place.project("a"), "a0");
      place.disk.write_whole(place.project("b"), "b0");
      ASSERT_EQ(place.open(), Journal_state::kept);
      const State begun = place.all_files();
      (in_journal ? place.journal_files : place.project_files).failing_write = failing;
      try {
        const Journal_operation operation(place.journal(), "保存", "Save");
        for (const char* name : {"a", "b", "c", "a", "b"})
          place.files().append(place.project(name), std::string(" more of ") + name);
      } catch (const File_failure&) {
      }
      const State after = place.all_files();
      if (place.journal().lost()) {
        EXPECT_EQ(place.journal().undo().outcome, Undo_outcome::nothing) << "a half undo is none";
        EXPECT_EQ(place.all_files(), after);
        continue;
      }
      // The failing write may come here: the same once more then does it.
      const auto twice = [&](auto action, const State& before) {
        Undo_outcome outcome = action().outcome;
        if (outcome != Undo_outcome::failed) return outcome;
        EXPECT_EQ(place.all_files(), before) << "a failed one changes nothing";
        return action().outcome;
      };
      const Undo_outcome undone = twice([&] { return place.journal().undo(); }, after);
      EXPECT_TRUE(undone == Undo_outcome::nothing || undone == Undo_outcome::done);
      EXPECT_EQ(place.all_files(), begun);
      place.restart();
      if (undone != Undo_outcome::done || !place.journal().redo_title()) continue;
      EXPECT_EQ(twice([&] { return place.journal().redo(); }, begun), Undo_outcome::done);
      EXPECT_EQ(place.all_files(), after);
    }
}

// Random operations, undone, redone and restarted at random, against kept copies of the whole project.
TEST(Journal_property, AgreesWithKeptCopies) {
  for (unsigned seed = 1; seed <= 200; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    const auto below = [&](unsigned n) { return static_cast<unsigned>(random() % n); };
    support::Memory_files memory;
    auto journal = std::make_unique<Journal>(memory);
    journal->open(state_folder_here, project, "");
    std::vector<State> copies{{}};
    std::size_t at = 0;
    const auto content = [&] {
      std::string bytes(below(4) == 0 ? 0 : below(3000), '\0');
      for (char& byte : bytes) byte = static_cast<char>(below(6) == 0 ? below(256) : 'a');
      return bytes;
    };
    const auto any_file = [&] { return file(std::string(1, static_cast<char>('a' + below(5))) + ".csv"); };
    for (int i = 0; i < 60; ++i) {
      const unsigned what = below(10);
      if (what < 5) {
        Journal_files files(memory, *journal);
        bool changed = false;  // some write changed some byte
        {
          const Journal_operation operation(*journal, "操作", "Operation");
          for (unsigned n = below(5) + 1; n > 0; --n) {
            const State before = state_of(memory, project);
            const std::string path = any_file(), other = any_file();
            const unsigned kind = below(5);
            if (kind < 2) files.write_whole(path, content());
            if (kind == 2) files.append(path, content());
            if (kind == 3) files.remove(path);
            if (kind == 4 && files.length(other) > 0) files.copy(other, path);
            changed = changed || state_of(memory, project) != before;
          }
        }
        if (changed) {
          copies.resize(++at);
          copies.push_back(state_of(memory, project));
        }
      } else if (what < 7) {
        ASSERT_EQ(journal->undo().outcome, at > 0 ? Undo_outcome::done : Undo_outcome::nothing);
        if (at > 0) --at;
      } else if (what < 9) {
        const bool can = at + 1 < copies.size();
        ASSERT_EQ(journal->redo().outcome, can ? Undo_outcome::done : Undo_outcome::nothing);
        if (can) ++at;
      } else {
        journal.reset();
        journal = std::make_unique<Journal>(memory);
        ASSERT_EQ(journal->open(state_folder_here, project, ""), Journal_state::kept);
      }
      ASSERT_EQ(state_of(memory, project), copies[at]) << "step " << i;
    }
  }
}

#ifdef TERRANOTE_CAN_FORK

namespace {

struct Road {
  std::string project, state;
  explicit Road(const support::Temporary_folder& folder)
      : project(folder.text() + "/project"), state(folder.text() + "/state") {}
  std::string file(const std::string& name) const { return join_path(project, name); }
};

bool same_in_both(Files& files, const Road& road) {
  return files.read_bytes(road.file("a")) == files.read_bytes(road.file("b"));
}

// Both files of an operation hold the same number; works until it is killed. What an earlier kill left half done is
// taken back first.
[[noreturn]] void work_until_killed(const Road& road, unsigned seed) {
  std::mt19937 random(seed);
  Disk_files disk;
  Journal journal(disk);
  journal.open(road.state, road.project, "");
  Journal_files files(disk, journal);
  if (!same_in_both(disk, road)) journal.undo();
  int undone = 0;
  for (int n = 1;; ++n) {
    const unsigned what = static_cast<unsigned>(random() % 6);
    if (what == 0) {
      undone += journal.undo().outcome == Undo_outcome::done ? 1 : 0;
    } else if (what == 1 && undone > 0) {
      journal.redo();
      --undone;
    } else {
      undone = 0;
      const Journal_operation operation(journal, "保存", "Save");
      std::string bytes = std::to_string(seed) + "." + std::to_string(n) + "\n";
      bytes.append(100'000 + random() % 1000, static_cast<char>('a' + random() % 26));
      files.write_whole(road.file("a"), bytes);
      files.write_whole(road.file("b"), bytes);
    }
  }
}

State without_leftovers(State state) {
  std::erase_if(state, [](const auto& entry) { return entry.first.compare(0, 11, ".terranote-") == 0; });
  return state;
}

}  // namespace

TEST(Journal_crash, SurvivesRealKills) {
  const support::Temporary_folder folder;
  const Road road(folder);
  Disk_files disk;
  disk.make_folder(road.project);
  for (const char* name : {"a", "b"}) disk.write_whole(road.file(name), "begun");
  const State begun = state_of(disk, road.project);
  int most = 0;
  for (unsigned round = 1; round <= 25; ++round) {
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) work_until_killed(road, round);
    std::this_thread::sleep_for(std::chrono::milliseconds(20 + 7 * (round % 9)));
    ASSERT_EQ(kill(child, SIGKILL), 0);
    ASSERT_EQ(waitpid(child, nullptr, 0), child);
    if (round % 5 != 0) continue;
    // The next start finds the lock free, and every operation whole.
    Journal journal(disk);
    ASSERT_EQ(journal.open(road.state, road.project, ""), Journal_state::kept);
    int undone = 0;
    for (; journal.undo_title(); ++undone) {
      ASSERT_EQ(journal.undo().outcome, Undo_outcome::done);
      ASSERT_TRUE(same_in_both(disk, road)) << "round " << round << ", undo " << undone;
    }
    EXPECT_TRUE(without_leftovers(state_of(disk, road.project)) == begun);
    for (int i = 0; i < undone; ++i) ASSERT_EQ(journal.redo().outcome, Undo_outcome::done);
    most = std::max(most, undone);
  }
  EXPECT_GT(most, 5);
}

#endif
