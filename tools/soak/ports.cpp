#include "soak/ports.h"

#include <algorithm>
#include <array>
#include <vector>

#include "observations/reference_points.h"
#include "platform/failures.h"
#include "platform/text_case.h"
#include "soak/registry_rules.h"

namespace soak {

namespace fs = std::filesystem;

namespace {

constexpr int fails_once_in = 8;

bool is_registry(const fs::path& path) {
  if (platform::fold_case(path.extension().string()) != ".csv" || path.parent_path().filename() != "chisou_men")
    return false;
  const std::string name = path.filename().string();
  return std::find(observations::reference_files.begin(), observations::reference_files.end(), name) ==
         observations::reference_files.end();
}

// "Delete" questions in both languages, of the program's own messages.
bool asks_deletion(const std::string& text) {
  for (const char* word : {"削除", "delete", "Delete", "deleting", "deleted"})
    if (text.find(word) != std::string::npos) return true;
  return false;
}

}  // namespace

bool Fenced_files::is_inside(const std::string& path) {
  return soak::is_inside(book_, native_path(path));
}

void Fenced_files::check_fence(const std::string& path) {
  if (is_inside(path)) return;
  count(log_, "outside the fence", "write");
  throw platform::File_failure(path);
}

bool Fenced_files::is_journal(const std::string& path) {
  const fs::path native = native_path(path);
  return native.string().starts_with(book_.state.string());
}

// A write may add lines and change lines; it may lose lines only where a person agreed to it, or where it brings an
// earlier content back.
void Fenced_files::judge_registry(const std::string& path, std::string_view before, std::string_view after) {
  const bool known = book_.contents.contains(platform::stamp_of(after).hash);
  const Registry_change change = registry_change(before, after);
  std::string told = path;
  told += " -" + std::to_string(change.gone) + " +" + std::to_string(change.come);
  if (known && before != after) {
    count(log_, "registry writes", "an earlier content again");
  } else if (change.gone > change.come) {
    count(log_, "registry writes", "lines deleted", change.gone - change.come);
    if (change.gone - change.come != 1 || consent_.deletions < 1) fault(log_, "lines were lost: " + told);
    --consent_.deletions;
  } else {
    if (change.come == 1) count(log_, "registry writes", change.gone ? "one record changed" : "one record added");
    count(log_, "registry writes", "lines changed", change.gone);
    count(log_, "registry writes", "lines added", change.come - change.gone);
  }
  log_line(log_, "registry " + told + (known ? " known" : ""));
  for (const std::string& slip : registry_slips(after)) fault(log_, path + ": " + slip);
}

void Fenced_files::note(const std::string& path, std::string_view before, std::string_view bytes) {
  const fs::path native = native_path(path);
  count(log_, "files", "writes");
  if (bytes_of(native) != bytes) fault(log_, "written and read otherwise: " + path);
  if (is_registry(native)) judge_registry(path, before, bytes);
  note_content(book_, native, bytes);
}

void Fenced_files::write_whole(const std::string& path, std::string_view bytes) {
  check_fence(path);
  if (is_journal(path)) return Disk_files::write_whole(path, bytes);
  const std::string before = bytes_of(native_path(path));
  Disk_files::write_whole(path, bytes);
  note(path, before, bytes);
}

void Fenced_files::append(const std::string& path, std::string_view bytes) {
  check_fence(path);
  if (is_journal(path)) return Disk_files::append(path, bytes);
  const std::string before = bytes_of(native_path(path));
  Disk_files::append(path, bytes);
  note(path, before, before + std::string(bytes));
}

void Fenced_files::copy(const std::string& from, const std::string& to) {
  check_fence(to);
  const std::string before = bytes_of(native_path(to));
  Disk_files::copy(from, to);
  note(to, before, bytes_of(native_path(from)));
}

bool Fenced_files::remove(const std::string& path) {
  if (!is_inside(path)) {
    count(log_, "outside the fence", "remove");
    return false;
  }
  const fs::path native = native_path(path);
  if (!Disk_files::remove(path)) return false;
  if (is_journal(path)) return true;
  log_line(log_, "removed " + path);
  count(log_, "files", "removals");
  if (is_registry(native) && consent_.deletions < 1 && !may_go_unasked(book_, native))
    fault(log_, "a registration file was removed: " + path);
  note_gone(book_, native);
  return true;
}

bool Fenced_files::make_folder(const std::string& path) {
  if (is_inside(path)) return Disk_files::make_folder(path);
  count(log_, "outside the fence", "folder");
  return Disk_files::folder_exists(path);
}

platform::Answer Counted_prompts::show(Kind kind, const std::string& text) {
  count(log_, "messages", kind == Kind::message ? "told" : "asked");
  log_line(log_, "message " + text);
  const platform::Answer answer = Qt_prompts::show(kind, text);
  const bool agreed = answer == platform::Answer::ok || answer == platform::Answer::yes;
  if (kind == Kind::message) return answer;
  log_line(log_, agreed ? "agreed" : "declined");
  // One loss for one consent, at once.
  consent_.deletions = agreed && asks_deletion(text) ? 1 : 0;
  return answer;
}

bool Recorded_processes::start(const std::string& executable, const std::vector<std::string>&, const std::string&) {
  log_line(log_, "would start " + executable);
  count(log_, "recorded", "program");
  return !random_.one_in(fails_once_in);
}

bool Recorded_processes::open_with_program(const std::string& file_or_address) {
  log_line(log_, "would open " + file_or_address);
  count(log_, "recorded", "file opened");
  return !random_.one_in(fails_once_in);
}

platform::Sheet_outcome Recorded_sheets::fill(const platform::Sheet_job& job) {
  using platform::Sheet_outcome;
  log_line(log_, "would fill " + job.workbook);
  count(log_, "recorded", "workbook");
  if (!random_.one_in(fails_once_in)) return Sheet_outcome::filled;
  const std::vector<Sheet_outcome> others{Sheet_outcome::not_shown, Sheet_outcome::no_program, Sheet_outcome::no_sheet,
                                          Sheet_outcome::bad_cell, Sheet_outcome::failed};
  return random_.of(others);
}

bool Recorded_sounds::play(const std::string& path) {
  log_line(log_, "would play " + path);
  count(log_, "recorded", "sound");
  return !random_.one_in(fails_once_in);
}

}  // namespace soak
