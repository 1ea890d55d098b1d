// Every saving operation against every fault: a file is the old or the new one, whole; no temporary file stays; the
// user gets one sentence; and the same operation without the fault leaves what an undisturbed one leaves.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "core/save_messages.h"
#include "faults/saving_operations.h"
#include "platform/failures.h"
#include "support/temporary_folder.h"

#if __has_include(<sys/wait.h>)
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>
#define TERRANOTE_CAN_FORK 1
#endif

namespace {

using namespace support;
using Texts = std::vector<std::string>;

constexpr const char* languages[] = {"Japanese", "English"};

// As ui/guard does where an event enters a window; what the status bar says counts as told.
void perform(Fault_place& place, const Saving_operation& operation) {
  place.session.notice = {};
  try {
    operation.press(place);
  } catch (const platform::Failure& failure) {
    core::operation_failed(place.prompts, failure);
  }
  const session::Notice& notice = place.session.notice;
  const bool japanese = place.session.settings.language == "Japanese";
  if (!notice.japanese.empty()) place.prompts.told.push_back(japanese ? notice.japanese : notice.english);
}

void open(Fault_place& place, const Saving_operation& operation) {
  place.start();
  if (operation.open) operation.open(place);
  place.prompts.told.clear();
}

void lay_out_for(const Saving_operation& operation, const std::string& root, const std::string& language) {
  lay_out(root, language);
  if (operation.files) operation.files(root);
}

// An undisturbed run: what there was and is, every whole content in between, the steps, what was told.
struct Undisturbed {
  Tree before, after;
  std::map<std::string, std::set<std::string>> versions;  // of each path that ever held a file
  std::set<std::string> missing;                          // paths that held none at one moment
  std::vector<Counted_step> steps;
  Texts told;
};

void take_versions(Undisturbed& run, const Tree& now) {
  for (const auto& [name, content] : now) run.versions[name].insert(content);
  for (const auto& [name, contents] : run.versions)
    if (!now.contains(name)) run.missing.insert(name);
}

Undisturbed run_undisturbed(const Saving_operation& operation, const std::string& root, const std::string& language) {
  Undisturbed run;
  lay_out_for(operation, root, language);
  Fault_place place(root);
  open(place, operation);
  run.before = tree_of(root);
  std::vector<Tree> seen{run.before};
  place.gate.at_each_step = [&] { seen.push_back(tree_of(root)); };
  place.gate.arm({});
  perform(place, operation);
  place.gate.armed = false;
  run.after = tree_of(root);
  seen.push_back(run.after);
  for (const Tree& tree : seen) take_versions(run, tree);
  for (const Tree& tree : seen) take_versions(run, tree);  // once more: a path that came later was missing before
  run.steps = place.gate.steps;
  run.told = place.prompts.told;
  return run;
}

std::string content_at(const Tree& tree, const std::string& name) {
  const auto found = tree.find(name);
  return found == tree.end() ? "(missing)" : found->second;
}

bool changes_the_disk(Step_kind kind) {
  return kind != Step_kind::open && kind != Step_kind::read;
}

struct Fault_matrix : testing::TestWithParam<Saving_operation> {
  // In memory where the system offers it: a flush costs nothing there.
  static std::string new_root() {
    const std::filesystem::path memory = "/dev/shm";
    std::error_code ignored;
    static const Temporary_folder folder(std::filesystem::is_directory(memory, ignored) ? memory
                                                                                        : std::filesystem::path());
    return folder.text();
  }
  const Saving_operation& operation = GetParam();
  std::string root = new_root();
  std::map<std::string, Undisturbed> undisturbed;  // by language
  int cases = 0;

  void SetUp() override {
    for (const char* language : languages) undisturbed[language] = run_undisturbed(operation, root, language);
  }
  void TearDown() override {
    RecordProperty("cases", cases);
    all_cases += cases;
  }
  static inline int all_cases = 0;
  static void TearDownTestSuite() { std::printf("[          ] %d cases in all\n", all_cases); }

  bool is_done(const Tree& now, const Undisturbed& run) const {
    return std::all_of(operation.told.begin(), operation.told.end(),
                       [&](const std::string& name) { return content_at(now, name) == content_at(run.after, name); });
  }

  // An append that a kill broke off: a beginning of the whole content, longer than the content before.
  static bool is_torn_append(const std::set<std::string>& versions, const std::string& content) {
    return std::any_of(versions.begin(), versions.end(), [&](const std::string& whole) {
      return whole.starts_with(content) && std::any_of(versions.begin(), versions.end(), [&](const std::string& old) {
               return content.starts_with(old);
             });
    });
  }

  // Each file is one of those that it is in an undisturbed run, whole.
  void expect_whole(const Tree& now, const Undisturbed& run, bool torn_append = false) {
    std::set<std::string> names;
    for (const auto& [name, content] : now) names.insert(name);
    for (const auto& [name, content] : run.before) names.insert(name);
    for (const std::string& name : names) {
      const auto found = now.find(name);
      const auto known = run.versions.find(name);
      if (found == now.end()) {
        EXPECT_TRUE(run.missing.contains(name)) << name << " is gone";
        continue;
      }
      if (name == operation.keeps_earlier) continue;  // looked at by expect_earlier
      ASSERT_NE(known, run.versions.end()) << name << " is a file that no whole run makes";
      EXPECT_TRUE(known->second.contains(found->second) ||
                  (torn_append && is_torn_append(known->second, found->second)))
          << name << " is neither old nor new: " << found->second.size() << " bytes";
    }
    expect_earlier(now, run);
  }

  void expect_earlier(const Tree& now, const Undisturbed& run) {
    if (operation.keeps_earlier.empty() || !now.contains(operation.keeps_earlier)) return;
    for (const auto& [name, contents] : run.versions)
      if (contents.contains(now.at(operation.keeps_earlier))) return;
    ADD_FAILURE() << operation.keeps_earlier << " is no whole content of any file";
  }

  void expect_like_undisturbed(const Tree& now, const Undisturbed& run) {
    for (const auto& [name, content] : run.after) {
      if (name == operation.keeps_earlier) continue;
      EXPECT_TRUE(content_at(now, name) == content) << name << " is not what an undisturbed run leaves";
    }
    for (const auto& [name, content] : now)
      EXPECT_TRUE(run.after.contains(name) || name == operation.keeps_earlier) << name << " was left behind";
  }

  // What was told beyond an undisturbed run: where something is not done, a sentence in the language in force for each
  // thing at most, and one at least.
  void expect_told(const Texts& told, const Tree& now, const Undisturbed& run, const std::string& language) {
    Texts new_ones;
    for (const std::string& text : told)
      if (std::find(run.told.begin(), run.told.end(), text) == run.told.end()) new_ones.push_back(text);
    const auto is_old = [&](const std::string& name) { return content_at(now, name) != content_at(run.after, name); };
    const auto failed = std::count_if(operation.told.begin(), operation.told.end(), is_old);
    const auto most = failed + std::count_if(operation.silent.begin(), operation.silent.end(), is_old);
    const std::string listed = testing::PrintToString(new_ones);
    if (failed > 0) {
      EXPECT_GE(new_ones.size(), 1u) << "nothing was told";
    }
    EXPECT_LE(static_cast<std::ptrdiff_t>(new_ones.size()), most) << listed;
    EXPECT_EQ(std::set<std::string>(new_ones.begin(), new_ones.end()).size(), new_ones.size())
        << "told twice " << listed;
    if (!operation.told.empty() && is_old(operation.told[0]) && !run.told.empty()) {
      EXPECT_EQ(std::count(told.begin(), told.end(), run.told.back()), 0) << "told as done: " << run.told.back();
    }
    for (const std::string& text : new_ones) {
      const bool has_japanese = std::any_of(text.begin(), text.end(), [](char c) { return (c & 0xFF) >= 0xE3; });
      if (!operation.one_language) {
        EXPECT_EQ(has_japanese, language == "Japanese") << text;
      }
    }
  }

  void expect_no_temporaries(const std::string& when, const std::string& but_in = "(nowhere)") {
    Texts left = temporaries_of(root);
    std::erase_if(left, [&](const std::string& name) { return name.starts_with(but_in); });
    EXPECT_TRUE(left.empty()) << when << ": " << testing::PrintToString(left);
  }

  // The next start sweeps the project and the program folder; a folder of the user's is swept with the next save there.
  void expect_swept(Fault_place& restarted) {
    expect_no_temporaries("after the next start", "other/");
    for (const std::string& name : temporaries_of(root)) {
      const std::string next = root + "/" + name.substr(0, name.rfind('/')) + "/next";
      restarted.files.write_whole(next, "");
      restarted.files.remove(next);
    }
    expect_no_temporaries("after the next save");
  }

  // What came of the fault is undone as a whole, or there is nothing to undo: the journal isn't harmed.
  void expect_undo_works(Fault_place& place) {
    const platform::Undo_outcome outcome = place.journal.undo().outcome;
    EXPECT_TRUE(outcome == platform::Undo_outcome::done || outcome == platform::Undo_outcome::nothing)
        << "undo gives " << static_cast<int>(outcome);
  }

  // A fault that the program lives through.
  void live_through(const Fault& fault, const std::string& language) {
    ++cases;
    lay_out_for(operation, root, language);
    run_with(fault, language);
    if (temporaries_of(root).empty()) return;
    orphan_temporaries(root);
    Fault_place restarted(root);
    restarted.start();
    expect_swept(restarted);
  }

  void run_with(const Fault& fault, const std::string& language) {
    const Undisturbed& run = undisturbed[language];
    Fault_place place(root);
    open(place, operation);
    place.gate.arm(fault);
    perform(place, operation);
    place.gate.armed = false;
    EXPECT_TRUE(place.gate.struck) << "the fault never came";
    const Tree now = tree_of(root);
    expect_whole(now, run);
    expect_told(place.prompts.told, now, run, language);
    const bool removal_failed = fault.strike == Strike::once && run.steps[fault.step].kind == Step_kind::remove;
    if (fault.strike != Strike::from_now && !removal_failed) expect_no_temporaries("after the fault");
    again(place, now, run);
    expect_undo_works(place);
  }

  // The same once more, without a fault, unless it is done.
  void again(Fault_place& place, const Tree& now, const Undisturbed& run) {
    const bool is_seen_as_done =
        !operation.told.empty() && content_at(now, operation.told[0]) == content_at(run.after, operation.told[0]);
    if (is_done(now, run) || (!operation.repeats && is_seen_as_done)) return;
    perform(place, operation);
    expect_like_undisturbed(tree_of(root), run);
  }

#ifdef TERRANOTE_CAN_FORK
  // In a process of its own: 0, or what went wrong.
  int refused_by_the_machine(const Undisturbed& run) {
    constexpr uid_t ordinary_user = 65534;
    Fault_place place(root);
    open(place, operation);
    if (geteuid() == 0) {
      if (setuid(ordinary_user) != 0) return 1;
    } else {
      set_folders(std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
    }
    perform(place, operation);
    const auto is_new = [&](const std::string& text) {
      return std::find(run.told.begin(), run.told.end(), text) == run.told.end();
    };
    const Texts& told = place.prompts.told;
    if (!operation.told.empty() && std::none_of(told.begin(), told.end(), is_new)) return 2;
    return tree_of(root) == run.before ? 0 : 3;
  }

  void set_folders(std::filesystem::perms perms) {
    std::vector<std::filesystem::path> folders;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root))
      if (entry.is_directory()) folders.push_back(entry.path());
    for (const std::filesystem::path& folder : folders) std::filesystem::permissions(folder, perms);
  }
  void let_all_be_written() {
    set_folders(std::filesystem::perms::owner_all);
  }

  // A process of its own runs the operation up to the kill.
  void be_killed(const Fault& fault, const std::string& language, bool torn_append) {
    ++cases;
    const Undisturbed& run = undisturbed[language];
    lay_out_for(operation, root, language);
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      Fault_place place(root);
      open(place, operation);
      place.gate.arm(fault);
      perform(place, operation);
      std::_Exit(fault.step == run.steps.size() ? killed_status : 1);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == killed_status) << "it was not killed: " << status;
    expect_whole(tree_of(root), run, torn_append);
    Fault_place place(root);
    open(place, operation);
    const Tree now = tree_of(root);
    expect_whole(now, run, torn_append);
    EXPECT_EQ(place.journal.state(), platform::Journal_state::kept);
    expect_swept(place);
    again(place, now, run);
    expect_undo_works(place);
  }
#endif
};

std::string trace_of(const Undisturbed& run, std::size_t step) {
  if (step >= run.steps.size()) return "at the end";
  const Counted_step& at = run.steps[step];
  return "step " + std::to_string(step) + ", kind " + std::to_string(static_cast<int>(at.kind)) + ", " + at.path;
}

TEST_P(Fault_matrix, WritesWhatItSaysAndNothingElse) {
  for (const char* language : languages) {
    const Undisturbed& run = undisturbed[language];
    std::set<std::string> changed;
    for (const auto& [name, contents] : run.versions)
      if (contents.size() > 1 || run.missing.contains(name)) changed.insert(name);
    std::set<std::string> said(operation.told.begin(), operation.told.end());
    said.insert(operation.silent.begin(), operation.silent.end());
    if (!operation.keeps_earlier.empty()) said.insert(operation.keeps_earlier);
    // Folders come along with their files.
    std::erase_if(changed, [&](const std::string& name) {
      return !said.contains(name) && run.versions.at(name) == std::set<std::string>{"(folder)"};
    });
    if (run.before.contains(operation.keeps_earlier) == run.after.contains(operation.keeps_earlier) &&
        content_at(run.before, operation.keeps_earlier) == content_at(run.after, operation.keeps_earlier))
      said.erase(operation.keeps_earlier);
    EXPECT_EQ(changed, said);
  }
}

TEST_P(Fault_matrix, OneStepFails) {
  for (const char* language : languages) {
    const Undisturbed& run = undisturbed[language];
    for (std::size_t step = 0; step < run.steps.size(); ++step) {
      SCOPED_TRACE(std::string(language) + ", " + trace_of(run, step));
      live_through({Strike::once, step}, language);
    }
  }
}

TEST_P(Fault_matrix, TheDeviceGoesAwayAtAStep) {
  for (std::size_t step = 0; step < undisturbed["Japanese"].steps.size(); ++step) {
    const char* language = languages[step % 2];
    const Undisturbed& run = undisturbed[language];
    if (!changes_the_disk(run.steps.at(step).kind)) continue;
    SCOPED_TRACE(std::string(language) + ", " + trace_of(run, step));
    live_through({Strike::from_now, step}, language);
  }
}

// No room at all, for one byte, for half a write, and for all of it but one byte: of each write.
TEST_P(Fault_matrix, TheDiskRunsFull) {
  const char* language = languages[operation.name.size() % 2];
  const Undisturbed& run = undisturbed[language];
  std::uint64_t before = 0;
  std::set<std::uint64_t> rooms;
  for (const Counted_step& step : run.steps) {
    if (step.kind != Step_kind::write) continue;
    for (const std::uint64_t room :
         {std::uint64_t{0}, std::uint64_t{1}, std::uint64_t{step.bytes / 2}, std::uint64_t{step.bytes - 1}})
      rooms.insert(before + room);
    before += step.bytes;
  }
  for (const std::uint64_t room : rooms) {
    SCOPED_TRACE("room for " + std::to_string(room) + " of " + std::to_string(before) + " bytes");
    if (room < before) live_through({Strike::full, 0, room}, language);
  }
}

TEST_P(Fault_matrix, AKillBeforeAndAfterEachStep) {
#ifndef TERRANOTE_CAN_FORK
  GTEST_SKIP() << "this system can't copy a running program";
#else
  const char* language = languages[operation.name.size() % 2];
  const Undisturbed& run = undisturbed[language];
  for (std::size_t step = 0; step <= run.steps.size(); ++step) {
    if (step < run.steps.size() && !changes_the_disk(run.steps[step].kind)) continue;
    SCOPED_TRACE("before " + trace_of(run, step));
    be_killed({Strike::kill, step}, language, false);
  }
#endif
}

TEST_P(Fault_matrix, AKillInTheMiddleOfEachWrite) {
#ifndef TERRANOTE_CAN_FORK
  GTEST_SKIP() << "this system can't copy a running program";
#else
  const char* language = languages[operation.name.size() % 2];
  const Undisturbed& run = undisturbed[language];
  for (std::size_t step = 0; step < run.steps.size(); ++step) {
    if (run.steps[step].kind != Step_kind::write || run.steps[step].bytes < 2) continue;
    SCOPED_TRACE("within " + trace_of(run, step));
    const bool appends = run.steps[step].path.find(".terranote-") == std::string::npos;
    be_killed({Strike::kill_half, step}, language, appends);
  }
#endif
}

// The machine's own refusal, without the gate: an ordinary user in folders that are another's, or read-only.
TEST_P(Fault_matrix, FoldersThatAreReadOnlyForReal) {
#ifndef TERRANOTE_CAN_FORK
  GTEST_SKIP() << "this system has no users to change to";
#else
  const char* language = languages[operation.name.size() % 2];
  ++cases;
  lay_out_for(operation, root, language);
  const pid_t child = fork();
  ASSERT_GE(child, 0);
  if (child == 0) std::_Exit(refused_by_the_machine(undisturbed[language]));
  int status = 0;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  let_all_be_written();
  ASSERT_TRUE(WIFEXITED(status));
  EXPECT_NE(WEXITSTATUS(status), 2) << "nothing was told";
  EXPECT_NE(WEXITSTATUS(status), 3) << "a file was changed";
  EXPECT_EQ(WEXITSTATUS(status), 0);
#endif
}

INSTANTIATE_TEST_SUITE_P(Of, Fault_matrix, testing::ValuesIn(saving_operations()),
                         [](const testing::TestParamInfo<Saving_operation>& entry) {
                           std::string name;
                           for (const char c : entry.param.name) name += std::isalnum(c & 0x7F) ? c : '_';
                           return name;
                         });

}  // namespace
