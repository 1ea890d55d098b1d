#include "observations/photo_read.h"

#include <algorithm>
#include <set>
#include <utility>

#include "core/choice_lists.h"
#include "core/project_folders.h"
#include "core/save_messages.h"
#include "observations/link.h"
#include "observations/point_file.h"
#include "observations/record_line.h"
#include "platform/code_page_932.h"
#include "platform/failures.h"
#include "platform/file_time.h"
#include "platform/numbers.h"
#include "platform/text_case.h"

namespace observations {
namespace {

using platform::Message;

constexpr Message no_surface{"面を選択して下さい。", "面を選択して下さい。"};
constexpr Message nothing_new{"新しく登録する写真がありません。",
                              "The folder has no photo that is not registered yet."};
constexpr Message too_many{"地点登録ファイルは15000点までです。登録しませんでした。",
                           "A registration file holds 15000 points. Nothing was registered."};
constexpr std::size_t date_digits = 6;  // of a number by date, "081115-001"
constexpr std::size_t counter_digits = 3;

// Numbers the records as touroku_no_get would, were each written before the next is numbered: behind 999 a number is
// read back by the three digits that it shows.
void number_all(Edit_context context, std::vector<Record>& records) {
  const std::string& project = context.settings.project_path;
  const std::string prefix = touroku_no_get(context.files, project, context.clock.now()).substr(0, date_digits);
  double highest = highest_counter(context.files, project, prefix);
  for (Record& record : records) {
    const std::string padded = "000" + platform::number_text(highest + 1);
    const std::string shown = padded.substr(padded.size() - counter_digits);
    record.touroku_no = prefix;
    record.touroku_no.append("-").append(shown);
    highest = std::max(highest, platform::val(shown));
  }
}

// A photo of a record and its time: what makes it known.
using Photo_key = std::pair<std::string, std::string>;

Photo_key key_of(const Record& record) {
  return {platform::fold_case(record.gazou), record.keisoku_jikoku};
}

// Whether a record's line can hold a link: not where it would end the column, has a character without a code or would
// make the line count as deleted.
bool is_storable(const std::string& link) {
  Record record;
  record.gazou = link;
  const bool cut = link.find_first_of(",\r\n\x1a") != std::string::npos;
  return !cut && platform::characters_without_code(link).empty() && !is_deleted(line_of(record).text);
}

// What column 10 takes for a photo: its link, or its bare name where the project doesn't hold it or its folders can't
// be stored.
std::string gazou_of(const std::string& project, const std::string& folder, const std::string& name) {
  const std::string link = link_to(project, platform::join_path(folder, name));
  return link.empty() || !is_storable(link) ? name : link;
}

// 0 ,13976712.5,3568123.6,,,,,,081115-001,photo\RIMG0001.JPG,○, 2 , 0 , 0 , 0 , 0 , 0 , 0 ,0,,2008/11/15 09:30:00,,, 0
// ,
Record record_of_photo(Edit_context context, const std::string& folder, const std::string& name,
                       geodesy::Point position) {
  Record record;
  record.X = position.x;
  record.Y = position.y;
  record.gazou = gazou_of(context.settings.project_path, folder, name);
  record.mark = core::mark_shapes(context.settings.language).front();
  record.size = platform::val(core::mark_size_default);
  record.henkaku_done = "0";
  const std::int64_t stamp = context.files.time_stamp(platform::join_path(folder, name));
  record.keisoku_jikoku = platform::date_time_text(platform::local_time(stamp));
  return record;
}

// What forbids the reading before anything is read, told to the user.
bool refused(Edit_context context, const std::string& path) {
  if (path.empty())
    context.prompts.message(no_surface);
  else if (context.settings.registry_count > 1)
    context.prompts.message(several_files);
  else
    return false;
  return true;
}

// Reads the table anew. False, with a message, when it is not all that its file holds.
bool read_whole(Edit_context context, Registry& registry, const std::string& path) {
  try {
    chisoumen_read(registry, context.files, 1, {path});
  } catch (const platform::Subscript_failure&) {
    // The table is marked incomplete; the message below tells.
  }
  if (registry.complete) return true;
  core::read_in_part(context.prompts, path);
  return false;
}

// The first photo whose name a record can't hold. Empty when there is none.
std::string unstorable(const std::vector<Record>& records) {
  const auto found =
      std::find_if(records.begin(), records.end(), [](const Record& record) { return !is_storable(record.gazou); });
  return found == records.end() ? std::string() : found->gazou;
}

struct Plan {
  std::vector<Record> records;  // to be added, not numbered yet
  int known = 0;
  bool open_later = true;  // by a press on their marks
};

bool agreed(platform::Prompts& prompts, const Plan& plan) {
  const std::size_t added = plan.records.size();
  const int known = plan.known;
  const std::string count = std::to_string(added), skipped = std::to_string(known);
  std::string japanese = "写真 " + count + " 枚を1枚1地点として登録します。よろしいですか。";
  std::string english = "Register " + count + (added == 1 ? " photo" : " photos") + ", one point each?";
  if (known > 0) {
    japanese += "\n登録済みの " + skipped + " 枚は登録しません。";
    english += "\nPhotos that are registered already and left out: " + skipped;
  }
  if (!plan.open_later) {
    japanese += "\nフォルダがプロジェクトの外にあるため、地図の記号を押しても写真は開きません。";
    english += "\nThe folder lies outside the project, so a press on a mark will not open its photo.";
  }
  return prompts.yes_no({japanese.c_str(), english.c_str()});
}

// Puts the records behind those of the table and writes the file; on a fault the table is as it was.
bool append_all(Edit_context context, Registry& registry, std::vector<Record>& records, const std::string& path) {
  const int old_count = registry.N;
  for (Record& record : records) registry.rows[++registry.N] = std::move(record);
  context.files.make_folder(core::chisou_men(context.settings.project_path));
  try {
    context.files.write_whole(path, registry_bytes(registry));
  } catch (const platform::File_failure& failure) {
    for (; registry.N > old_count; --registry.N) registry.rows[registry.N] = Record{};
    core::write_failed(context.prompts, path, failure);
    return false;
  }
  registry.file = path;
  registry_backup(context.files, context.settings.project_path);
  return true;
}

// What is to be added to the table as it is read now. Nothing, with a message, when something forbids it.
Plan plan_of(Edit_context context, const Registry& registry, const std::string& folder, geodesy::Point position) {
  Plan plan;
  std::set<Photo_key> known;
  for (int i = 1; i <= registry.N; ++i) known.insert(key_of(registry.rows[i]));
  for (const std::string& name : photos_of(context.files, folder)) {
    Record record = record_of_photo(context, folder, name, position);
    const Photo_key by_name{platform::fold_case(name), record.keisoku_jikoku};  // how it stands without its folder
    plan.open_later = !link_to(context.settings.project_path, platform::join_path(folder, name)).empty();
    if (known.contains(key_of(record)) || known.contains(by_name))
      ++plan.known;
    else
      plan.records.push_back(std::move(record));
  }
  if (plan.records.empty())
    context.prompts.message(nothing_new);
  else if (const std::string name = unstorable(plan.records); !name.empty())
    context.prompts.message("登録できない写真です: " + name, "This photo can't be registered: " + name);
  else if (static_cast<std::size_t>(registry.N) + plan.records.size() > static_cast<std::size_t>(record_limit))
    context.prompts.message(too_many);
  else
    return plan;
  plan.records.clear();
  return plan;
}

}  // namespace

std::vector<std::string> photos_of(platform::Files& files, const std::string& folder) {
  std::vector<std::string> names = files.list(folder, "*");
  std::erase_if(names, [](const std::string& name) { return !is_picture_name(name); });
  return names;
}

Photo_result photo_read(Edit_context context, Registry& registry, const std::string& folder, geodesy::Point position) {
  Photo_result result;
  const std::string path = registry_file(context.settings);
  if (refused(context, path) || !read_whole(context, registry, path)) return result;
  const Plan asked = plan_of(context, registry, folder, position);
  result.known = asked.known;
  if (asked.records.empty() || !agreed(context.prompts, asked)) return result;
  // The question may have stood for long: what is written is what the file and the folder hold now.
  if (!read_whole(context, registry, path)) return result;
  Plan plan = plan_of(context, registry, folder, position);
  if (plan.records.empty()) return result;
  number_all(context, plan.records);
  const int added = static_cast<int>(plan.records.size());
  if (!append_all(context, registry, plan.records, path)) return result;
  result = {true, added, plan.known};
  return result;
}

}  // namespace observations
