// No saving operation is left out of the matrix: each call of the program that changes files is counted here, by its
// source, and the source names the operations of the matrix that come by it.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>

#include "faults/saving_operations.h"
#include "support/golden.h"
#include "support/places.h"

namespace {

namespace fs = std::filesystem;

// How often `word` stands in a text where `fits` takes its place.
int count_of(const std::string& text, const std::string& word, const std::function<bool(std::size_t)>& fits) {
  int count = 0;
  for (std::size_t at = text.find(word); at != std::string::npos; at = text.find(word, at + 1)) count += fits(at);
  return count;
}

// "files.write_whole(", "context.files.remove(", "disk.append(", "behind_.copy(": the procedures that change files,
// called for anything that is named as the port is.
int changing_calls(const std::string& text) {
  const auto is_port = [&](std::size_t end) {
    const std::string_view before = std::string_view(text).substr(0, end);
    return before.ends_with("files") || before.ends_with("files_") || before.ends_with("behind_") ||
           before.ends_with("disk");
  };
  int calls = 0;
  for (const char* procedure : {"write_whole", "append", "copy", "remove", "make_folder", "remove_left_over"})
    for (const char* access : {".", "->"}) calls += count_of(text, std::string(access) + procedure + "(", is_port);
  return calls;
}

bool is_letter(char c) {
  return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_';
}

// Whether `word` stands in a text by itself, not as a part of a longer one.
bool has_word(const std::string& text, const std::string& word) {
  return count_of(text, word, [&](std::size_t at) {
           const std::size_t end = at + word.size();
           return (at == 0 || !is_letter(text[at - 1])) && (end == text.size() || !is_letter(text[end]));
         }) > 0;
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
  const char* const others[] = {"fstream", "ofstream", "fopen", "QSaveFile", "QFile", "QSettings"};
  std::set<std::string> found;
  const fs::path src = support::in_checkout("src");
  for (const auto& entry : fs::recursive_directory_iterator(src)) {
    if (!entry.is_regular_file()) continue;
    const std::string text = support::bytes_of(entry.path().string());
    const bool has_other =
        std::any_of(std::begin(others), std::end(others), [&](const char* other) { return has_word(text, other); });
    if (has_other || text.find(".save(\"") != std::string::npos)
      found.insert(entry.path().lexically_relative(src).generic_string());
  }
  EXPECT_EQ(found, std::set<std::string>{"platform/qt/qt_sounds.cpp"}) << "which only reads a sound";
}

}  // namespace
