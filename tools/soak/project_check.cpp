#include "soak/project_check.h"

#include <QFileInfo>
#include <QImageReader>

#include <algorithm>
#include <utility>

#include "core/language.h"
#include "core/settei.h"
#include "observations/registry.h"
#include "platform/failures.h"
#include "platform/journal_records.h"
#include "platform/text_case.h"
#include "platform/text_files.h"
#include "soak/registry_rules.h"

namespace soak {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t settei_lines = 27;

class Silent_prompts : public platform::Prompts {
 protected:
  platform::Answer show(Kind, const std::string&) override { return platform::Answer::cancel; }
};

std::string ending_of(const fs::path& path) {
  return platform::fold_case(path.extension().string());
}

bool is_one_of(const std::string& text, std::initializer_list<const char*> texts) {
  return std::any_of(texts.begin(), texts.end(), [&](const char* other) { return text == other; });
}

// What an instrument sent is kept as it came, in whatever bytes; what is saved elsewhere may have any name, a picture
// that of a table too.
bool holds_raw_bytes(const fs::path& path) {
  const std::string name = platform::fold_case(path.filename().string());
  if (path.parent_path().filename() == "out") return true;
  return name.starts_with("tiltvane.") || name == "tmp.tmp" || ending_of(path) == ".nme";
}

void check_settings(const Place& place, Run_log& log) {
  platform::Disk_files files;
  const std::string path = place.program() + "/settei.ini";
  const std::string bytes = bytes_of(path);
  for (const std::string& slip : text_slips(bytes, true)) fault(log, "settei.ini " + slip);
  const std::vector<std::string> lines = platform::read_lines(files, path);
  if (lines.size() != settei_lines) fault(log, "settei.ini has " + std::to_string(lines.size()) + " lines");
  for (const std::size_t flag : {6, 7, 8, 9, 10, 16, 17, 26, 27})
    if (flag <= lines.size() && !is_one_of(lines[flag - 1], {"True", "False"}))
      fault(log, "settei.ini has no flag in line " + std::to_string(flag) + ": " + lines[flag - 1]);
  Silent_prompts prompts;
  core::Settings settings;
  settings.program_path = place.program();
  core::Settings_boxes boxes = core::settei_defaults(settings);
  if (!core::settei_r(settings, boxes, files, prompts)) fault(log, "settei.ini isn't read");
  const std::string language = core::language_r(files, place.program());
  if (!is_one_of(language, {"Japanese", "English"})) fault(log, "Language.set holds " + language);
}

void check_registry(const fs::path& path, Run_log& log) {
  platform::Disk_files files;
  observations::Registry registry;
  try {
    observations::chisoumen_read(registry, files, 1, {path.string()});
  } catch (const platform::Failure& failure) {
    fault(log, path.string() + " can't be read: " + failure.what());
  }
  long records = 0;
  for (const std::string& line : platform::read_lines(files, path.string())) records += !observations::is_deleted(line);
  if (!registry.complete || registry.N != records)
    fault(log, path.string() + " gives " + std::to_string(registry.N) + " of " + std::to_string(records) + " records");
  for (const std::string& slip : registry_slips(bytes_of(path))) fault(log, path.string() + ": " + slip);
}

void check_picture(const fs::path& path, Run_log& log) {
  QImageReader reader(QString::fromStdString(path.string()));
  if (reader.read().isNull())
    fault(log,
          "a picture that was written can't be read: " + path.string() + ": " + reader.errorString().toStdString());
}

// The length in a set's own head is that of the file; the program's first kind of Shapefile is never cut, and has none.
void check_shape(const fs::path& path, Run_log& log) {
  const std::string bytes = bytes_of(path);
  if (!path.stem().string().ends_with("_gis")) return;
  std::uint32_t words = 0;
  for (std::size_t i = 24; i < 28 && i < bytes.size(); ++i) words = words << 8 | static_cast<std::uint8_t>(bytes[i]);
  if (bytes.size() < 100 || bytes.size() != 2 * std::size_t{words})
    fault(log, "a Shapefile has another length than it tells: " + path.string());
}

void check_written(const fs::path& path, Run_log& log) {
  const std::string ending = ending_of(path);
  if (is_one_of(ending, {".bmp", ".jpg", ".jpeg", ".png"})) return check_picture(path, log);
  if (is_one_of(ending, {".shp", ".shx"})) return check_shape(path, log);
  if (!is_one_of(ending, {".csv", ".dat", ".ini", ".set", ".tmp", ".txt"}) || holds_raw_bytes(path)) return;
  for (const std::string& slip : text_slips(bytes_of(path), false)) fault(log, path.string() + ": " + slip);
}

void check_journal(const fs::path& path, Run_log& log) {
  using namespace platform;
  const std::string bytes = bytes_of(path), ending = path.extension().string();
  std::vector<Mark> marks;
  std::vector<Change> changes;
  Operation_title title;
  Journal_file state = Journal_file::whole;
  if (path.filename() == "marks") state = read_marks(bytes, marks);
  if (ending == ".undo") state = read_undo(bytes, title, changes);
  if (ending == ".redo") state = read_redo(bytes, changes);
  if (state != Journal_file::whole) fault(log, "the journal isn't whole: " + path.string());
  if (path.filename().string().starts_with(".terranote-")) fault(log, "a temporary file was left: " + path.string());
}

// Whether a file has changed since the last look.
bool is_news(File_book& book, const fs::path& path) {
  std::error_code none;
  const fs::file_time_type time = fs::last_write_time(path, none);
  const auto [looked, first] = book.looked_at.try_emplace(path, time);
  return first || std::exchange(looked->second, time) != time;
}

int check_journals(const Place& place, File_book& book, Run_log& log) {
  int files = 0;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(place.state())) {
    if (!entry.is_regular_file() || !is_news(book, entry.path())) continue;
    check_journal(entry.path(), log);
    ++files;
  }
  return files;
}

}  // namespace

int project_check(const Place& place, File_book& book, Run_log& log) {
  check_settings(place, log);
  int files = 1;
  for (const auto& [path, noted] : book.files) {
    if (!is_news(book, path)) continue;
    if (path.parent_path().filename() == "chisou_men" && ending_of(path) == ".csv")
      check_registry(path, log);
    else if (noted.written)
      check_written(path, log);
    else
      continue;
    ++files;
  }
  return files + check_journals(place, book, log);
}

}  // namespace soak
