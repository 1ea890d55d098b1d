#include "ui/observation_list.h"

#include <algorithm>
#include <unordered_map>

#include "core/session/position_text.h"
#include "observations/marks.h"
#include "observations/record_line.h"
#include "observations/true_north.h"
#include "platform/natural_order.h"
#include "platform/numbers.h"
#include "platform/text_case.h"

namespace ui {

namespace {

using observations::Correction;
using observations::Reading;
using observations::Record;

constexpr double units_per_degree = 100'000;
constexpr int lineation = 2;  // place of 線構造 among the measured objects
constexpr std::string_view wide_blank = "　";

bool is_shape(const Record& record) {
  return observations::is_line(record.mark) || observations::is_area(record.mark);
}

// A text on the map keeps its words in the strike's column.
bool has_strike(const Record& record) {
  return !platform::trim_text(record.soukou).empty() && !observations::is_word(record.mark);
}

std::string position_text(const Record& record, double value, char positive, char negative) {
  if (observations::is_geographic(record)) return session::angle_text(value / units_per_degree, positive, negative);
  return platform::format_number(value, "######0.#0") + " m";
}

const char* correction_word(Correction correction, bool japanese) {
  if (correction == Correction::unknown) return japanese ? " 未補正" : " uncorrected";
  if (correction == Correction::not_taken) return japanese ? " 補正済" : " already true";
  return "";
}

// "N8W 352.0°": the text of the map's display and its azimuth; a "?" behind a strike that doesn't read as it stands.
void take_true_strike(Listed& listed, bool japanese) {
  const Record& record = listed.record;
  if (!has_strike(record)) return;
  const observations::Understood plane =
      observations::understood(record.soukou, record.keisha, listed.declination, record.henkaku_done);
  listed.correction = plane.correction;
  listed.added = plane.declination;
  listed.true_azimuth = plane.corrected.azimuth;
  listed.true_strike = plane.corrected_strike + " " + platform::format_number(plane.corrected.azimuth, "##0.0") + "°";
  if (plane.strike != Reading::fits) listed.true_strike += " ?";
  listed.true_strike += correction_word(plane.correction, japanese);
}

std::string text_of(const Listed& listed, int touroku, int column, bool japanese) {
  const Record& record = listed.record;
  switch (column) {
    case column_record:
      return platform::number_text(touroku);
    case column_registration:
      return observations::number_parts(record.touroku_no).registration;
    case column_measurement:
      return record.keisoku_no;
    case column_taishou:
      return record.taishou;
    case column_chisou:
      return record.chisou;
    case column_X:
      return position_text(record, record.X, 'E', 'W');
    case column_Y:
      return position_text(record, record.Y, 'N', 'S');
    case column_Z:
      return record.Z;
    case column_soukou:
      return record.soukou;
    case column_keisha:
      return record.keisha;
    case column_true_strike:
      return listed.true_strike;
    case column_sen_keisha:
      return record.sen_keisha;
    case column_sen_houkou:
      return record.sen_houkou;
    case column_mark:
      return record.mark;
    case column_size:
      return platform::number_text(record.size);
    case column_vertices:
      return record.vertices.empty() ? "" : platform::number_text(static_cast<int>(record.vertices.size()));
    case column_time:
      return record.keisoku_jikoku;
    case column_gazou:
      return record.gazou;
    case column_boundary:
      return record.boundary == 0 ? "" : japanese ? "境界" : "boundary";
    case column_corrected:
      return !observations::reads_as_corrected(record.henkaku_done) ? "" : japanese ? "補正済" : "corrected";
    default:
      return {};
  }
}

std::vector<std::string> words_of(std::string_view text) {
  std::vector<std::string> words(1);
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool wide = text.substr(i).starts_with(wide_blank);
    if (!wide && text[i] != ' ' && text[i] != '\t') {
      words.back() += text[i];
      continue;
    }
    if (wide) i += wide_blank.size() - 1;
    if (!words.back().empty()) words.emplace_back();
  }
  if (words.back().empty()) words.pop_back();
  for (std::string& word : words) word = platform::fold_case(word);
  return words;
}

bool is_kept(const Listed& listed, Kept kept) {
  const Record& record = listed.record;
  switch (kept) {
    case Kept::with_strike:
      return has_strike(record);
    case Kept::lineations:
      return observations::taishou_index(record.taishou) == lineation || !record.sen_houkou.empty();
    case Kept::lines_and_areas:
      return is_shape(record);
    case Kept::uncorrected:
      return has_strike(record) && listed.correction == Correction::unknown;
    case Kept::with_image:
      return !record.gazou.empty();
    default:
      return true;
  }
}

// What a row is sorted by: first whether it is empty, then the number, then the text.
struct Sort_key {
  int record = 0;
  bool empty = false;
  bool geographic = false;
  double number = 0;
  std::string text;
};

bool sorts_by_number(int column) {
  switch (column) {
    case column_record:
    case column_measurement:
    case column_Z:
    case column_keisha:
    case column_sen_keisha:
    case column_size:
    case column_vertices:
      return true;
    default:
      return false;
  }
}

Sort_key sort_key(const Listed& listed, int touroku, int column, bool japanese) {
  const Record& record = listed.record;
  Sort_key key;
  key.record = touroku;
  if (column == column_X || column == column_Y) {
    key.geographic = observations::is_geographic(record);
    key.number = column == column_X ? record.X : record.Y;
    return key;
  }
  key.text = platform::fold_case(text_of(listed, touroku, column, japanese));
  key.empty = key.text.empty();
  if (column == column_true_strike)
    key.number = listed.true_azimuth;
  else if (sorts_by_number(column))
    key.number = platform::val(key.text);
  return key;
}

template <typename T>
int order_of(const T& a, const T& b) {
  return a < b ? -1 : a > b ? 1 : 0;
}

int order_of_keys(const Sort_key& a, const Sort_key& b) {
  if (const int order = order_of(a.geographic, b.geographic)) return order;
  if (const int order = order_of(a.number, b.number)) return order;
  return platform::natural_order(a.text, b.text);
}

Listed listed_of(const Record& record, std::optional<double> declination, int touroku, bool japanese) {
  Listed listed;
  listed.record = record;
  listed.declination = declination;
  listed.identity = identity_of(record);
  take_true_strike(listed, japanese);
  std::string texts;
  for (int column = 0; column < list_columns; ++column) texts += text_of(listed, touroku, column, japanese) + '\n';
  listed.searched = platform::fold_case(texts);
  return listed;
}

}  // namespace

Observation_list observation_list(const observations::Registry& registry, const observations::Drawn_records& drawn,
                                  bool japanese, const Observation_list& before) {
  Observation_list list;
  list.japanese = japanese;
  list.rows.reserve(static_cast<std::size_t>(registry.N));
  for (int touroku = 1; touroku <= registry.N; ++touroku) {
    const Record& record = registry.rows[touroku];
    const std::size_t row = list.rows.size();
    const std::optional<double> declination = row < drawn.declinations.size() ? drawn.declinations[row] : std::nullopt;
    const bool unchanged = row < before.rows.size() && before.japanese == japanese &&
                           before.rows[row].declination == declination && before.rows[row].record == record;
    list.rows.push_back(unchanged ? before.rows[row] : listed_of(record, declination, touroku, japanese));
  }
  return list;
}

std::string cell_text(const Observation_list& list, int touroku, int column) {
  if (touroku < 1 || touroku > static_cast<int>(list.rows.size())) return {};
  return text_of(list.rows[static_cast<std::size_t>(touroku - 1)], touroku, column, list.japanese);
}

std::vector<int> filtered(const Observation_list& list, std::string_view words, Kept kept) {
  const std::vector<std::string> sought = words_of(words);
  std::vector<int> records;
  int touroku = 0;
  for (const Listed& listed : list.rows) {
    ++touroku;
    const bool held = std::all_of(sought.begin(), sought.end(), [&](const std::string& word) {
      return listed.searched.find(word) != std::string::npos;
    });
    if (held && is_kept(listed, kept)) records.push_back(touroku);
  }
  return records;
}

void sort_records(const Observation_list& list, int column, bool descending, std::vector<int>& records) {
  std::vector<Sort_key> keys;
  keys.reserve(records.size());
  for (const int touroku : records)
    keys.push_back(sort_key(list.rows[static_cast<std::size_t>(touroku - 1)], touroku, column, list.japanese));
  std::stable_sort(keys.begin(), keys.end(), [descending](const Sort_key& a, const Sort_key& b) {
    if (a.empty != b.empty) return b.empty;
    const int order = order_of_keys(a, b);
    return descending ? order > 0 : order < 0;
  });
  std::transform(keys.begin(), keys.end(), records.begin(), [](const Sort_key& key) { return key.record; });
}

std::string identity_of(const Record& record) {
  if (!record.touroku_no.empty()) return record.touroku_no;
  return platform::number_text(record.X) + "," + platform::number_text(record.Y);
}

std::vector<int> followed(const Observation_list& before, const Observation_list& after) {
  // The records of one identity follow each other in order.
  std::unordered_map<std::string_view, std::vector<int>> places;
  for (std::size_t row = after.rows.size(); row-- > 0;)
    places[after.rows[row].identity].push_back(static_cast<int>(row) + 1);
  std::vector<int> numbers(before.rows.size());
  std::vector<bool> taken(after.rows.size());
  for (std::size_t row = 0; row < numbers.size(); ++row) {
    const auto found = places.find(before.rows[row].identity);
    if (found == places.end() || found->second.empty()) continue;
    numbers[row] = found->second.back();
    found->second.pop_back();
    taken[static_cast<std::size_t>(numbers[row] - 1)] = true;
  }
  if (before.rows.size() != after.rows.size()) return numbers;
  for (std::size_t row = 0; row < numbers.size(); ++row)
    if (numbers[row] == 0 && !taken[row]) numbers[row] = static_cast<int>(row) + 1;
  return numbers;
}

}  // namespace ui
