// No saving operation is left out of the matrix: each call of the program that changes files is counted here, by its
// source, and the source names the operations of the matrix that come by it.
#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <regex>
#include <set>
#include <string>

#include "faults/saving_operations.h"
#include "support/golden.h"
#include "support/places.h"

namespace {

namespace fs = std::filesystem;

// "files.write_whole(", "context.files.remove(", "disk.append(", "behind_.copy(": the procedures that change files,
// called for anything that is named as the port is.
int changing_calls(const std::string& text) {
  static const std::regex call(
      R"((files_?|behind_|disk)(\.|->)(write_whole|append|copy|remove|make_folder|remove_left_over)\()");
  return static_cast<int>(std::distance(std::sregex_iterator(text.begin(), text.end(), call), std::sregex_iterator()));
}

std::map<std::string, int> sources_that_change_files() {
  std::map<std::string, int> found;
  const fs::path src = support::in_checkout("src");
  for (const auto& entry : fs::recursive_directory_iterator(src)) {
    const std::string ending = entry.path().extension().string();
    if (ending != ".cpp" && ending != ".h") continue;
    const int calls = changing_calls(support::bytes_of(entry.path().string()));
    if (calls > 0) found[entry.path().lexically_relative(src).generic_string()] = calls;
  }
  return found;
}

TEST(Writing_sources, AreAllInTheTable) {
  std::map<std::string, int> told;
  for (const support::Writing_source& source : support::writing_sources()) told[source.source] = source.calls;
  EXPECT_EQ(sources_that_change_files(), told)
      << "a procedure that saves needs an entry in tests/faults/saving_operations.cpp, and its source a row there";
}

TEST(Writing_sources, AreReachedByOperationsOfTheMatrix) {
  std::set<std::string> names;
  for (const support::Saving_operation& operation : support::saving_operations()) names.insert(operation.name);
  EXPECT_EQ(names.size(), support::saving_operations().size()) << "two operations have one name";
  std::set<std::string> reached;
  for (const support::Writing_source& source : support::writing_sources())
    for (const std::string& operation : source.operations) {
      EXPECT_TRUE(names.contains(operation)) << source.source << " names \"" << operation << "\"";
      reached.insert(operation);
    }
  EXPECT_EQ(reached, names);
}

// No other road leads to the disk: streams, the C library and the toolkit's own files stay out of the program.
TEST(Writing_sources, GoNoOtherWay) {
  static const std::regex other(R"(std::(o|f)?fstream\b|\bfopen\(|\bQSaveFile\b|\bQFile\b|\bQSettings\b|\.save\(")");
  std::set<std::string> found;
  const fs::path src = support::in_checkout("src");
  for (const auto& entry : fs::recursive_directory_iterator(src)) {
    if (!entry.is_regular_file()) continue;
    const std::string text = support::bytes_of(entry.path().string());
    if (std::regex_search(text, other)) found.insert(entry.path().lexically_relative(src).generic_string());
  }
  EXPECT_EQ(found, std::set<std::string>{"platform/qt/qt_sounds.cpp"}) << "which only reads a sound";
}

}  // namespace
