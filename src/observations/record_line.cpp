#include "observations/record_line.h"

#include <algorithm>
#include <array>

#include "drawing/text_split.h"
#include "observations/marks.h"
#include "platform/failures.h"
#include "platform/numbers.h"

namespace observations {
namespace {

using platform::Text_line;

enum class Form {
  number,    // printed with its two blanks
  position,  // "######0.#0"
  text,
  trimmed  // a text without the blanks around it
};

struct Column {
  Form form;
  double Record::*number;
  std::string Record::*text;
};

constexpr Column number_column(double Record::*member) {
  return {Form::number, member, nullptr};
}
constexpr Column text_column(Form form, std::string Record::*member) {
  return {form, nullptr, member};
}

constexpr int fixed_columns = 23;
constexpr int count_column = 24;
constexpr int largest_count = 1000;  // what a larger count in a file is taken for
constexpr double size_default = 2;
constexpr const char* position_form = "######0.#0";

// clang-format off
constexpr std::array<Column, fixed_columns> columns{{
    number_column(&Record::boundary),                    //  1
    {Form::position, &Record::X, nullptr},               //  2
    {Form::position, &Record::Y, nullptr},               //  3
    text_column(Form::text,    &Record::Z),              //  4
    text_column(Form::text,    &Record::taishou),        //  5
    text_column(Form::text,    &Record::chisou),         //  6
    text_column(Form::trimmed, &Record::soukou),         //  7
    text_column(Form::trimmed, &Record::keisha),         //  8
    text_column(Form::trimmed, &Record::touroku_no),     //  9
    text_column(Form::text,    &Record::gazou),          // 10
    text_column(Form::text,    &Record::mark),           // 11
    number_column(&Record::size),                        // 12
    number_column(&Record::R),                           // 13
    number_column(&Record::G),                           // 14
    number_column(&Record::B),                           // 15
    number_column(&Record::R2),                          // 16
    number_column(&Record::G2),                          // 17
    number_column(&Record::B2),                          // 18
    text_column(Form::text,    &Record::henkaku_done),   // 19
    text_column(Form::text,    &Record::decl_flag2),     // 20
    text_column(Form::text,    &Record::keisoku_jikoku), // 21
    text_column(Form::trimmed, &Record::sen_keisha),     // 22
    text_column(Form::trimmed, &Record::sen_houkou),     // 23
}};
// clang-format on

const Column& column_at(int number) {
  return columns[static_cast<std::size_t>(number - 1)];
}

// Where each of the columns 1 to 24 begins in the line and, behind the last one that is there, the line's end.
std::vector<std::size_t> column_starts(std::string_view line) {
  std::vector<std::size_t> starts{0};
  for (std::size_t comma = line.find(','); comma != std::string_view::npos && starts.size() < count_column;
       comma = line.find(',', comma + 1))
    starts.push_back(comma + 1);
  return starts;
}

// The bytes without a character, each given to its text column; those of number columns stay behind.
std::vector<Stray_byte> strays_of(const Text_line& line) {
  std::vector<Stray_byte> strays;
  if (line.unmapped.empty()) return strays;
  const std::vector<std::size_t> starts = column_starts(line.text);
  for (const platform::Unmapped_byte& unmapped : line.unmapped) {
    const auto behind = std::upper_bound(starts.begin(), starts.end(), unmapped.offset);
    const int number = static_cast<int>(behind - starts.begin());
    if (number > fixed_columns || !column_at(number).text) continue;
    std::size_t start = *(behind - 1);
    if (column_at(number).form == Form::trimmed) start = line.text.find_first_not_of(' ', start);
    strays.push_back({number, unmapped.offset - start, unmapped.byte});
  }
  return strays;
}

// The vertices that the line tells of; those whose columns are missing lie at 0.
std::vector<geodesy::Point> vertices_of(const std::array<std::string, line_fields>& fields) {
  const double told = platform::round_even(platform::val(fields[count_column - 1]));
  const int count = static_cast<int>(std::clamp(told, 0.0, double{largest_count}));
  if (count > vertex_limit)
    throw platform::Subscript_failure("a record with " + std::to_string(count) + " vertices in a line of " +
                                      std::to_string(line_fields) + " columns");
  std::vector<geodesy::Point> vertices(static_cast<std::size_t>(count));
  std::size_t field = count_column;
  for (geodesy::Point& vertex : vertices) {
    vertex.x = platform::val(fields[field++]);
    vertex.y = platform::val(fields[field++]);
  }
  return vertices;
}

void store(Record& record, const Column& column, std::string& field) {
  if (column.number)
    record.*column.number = platform::val(field);
  else if (column.form == Form::trimmed)
    record.*column.text = platform::trim_text(field);
  else
    (record.*column.text).swap(field);
}

std::string printed(const Record& record, const Column& column) {
  if (column.form == Form::number) return platform::print_number(record.*column.number);
  if (column.form == Form::position) return platform::format_number(record.*column.number, position_form);
  return record.*column.text;
}

}  // namespace

// 1 ,-1234.5,6789.25,120,露頭,砂岩,N15W,30E,081115-001*3,,○, 2 , 255 , 0 , 0 , 0 , 0 , 0 ,0,,,,, 0 ,
// 1  2       3       4   5    6    7    8   9           10 11 12  13   14  15  16  17  18 19..23  24
Record record_of(const Text_line& line) {
  thread_local std::array<std::string, line_fields> fields;  // so that a file's lines share their memory
  drawing::split_csv(line.text, fields);
  Record record;
  record.vertices = vertices_of(fields);
  record.strays = strays_of(line);
  for (std::size_t i = 0; i < columns.size(); ++i) store(record, columns[i], fields[i]);
  record.keisoku_no = number_parts(record.touroku_no).measurement;
  if (record.size == 0) record.size = size_default;
  if (stands_at_first_vertex(record.mark)) {
    const geodesy::Point first = record.vertices.empty() ? geodesy::Point{} : record.vertices.front();
    record.X = first.x;
    record.Y = first.y;
  }
  return record;
}

Text_line line_of(const Record& record) {
  Text_line line;
  for (int number = 1; number <= fixed_columns; ++number) {
    for (const Stray_byte& stray : record.strays)
      if (stray.column == number) line.unmapped.push_back({line.text.size() + stray.offset, stray.byte});
    line.text += printed(record, column_at(number));
    line.text += ',';
  }
  line.text += platform::print_number(static_cast<int>(record.vertices.size())) + ',';
  for (const geodesy::Point& vertex : record.vertices) {
    line.text += platform::print_number(vertex.x) + ',';
    line.text += platform::print_number(vertex.y) + ',';
  }
  return line;
}

Number_parts number_parts(std::string_view touroku_no) {
  const std::size_t star = touroku_no.find('*');
  if (star == std::string_view::npos) return {platform::trim_text(touroku_no), {}};
  return {platform::trim_text(touroku_no.substr(0, star)), platform::trim_text(touroku_no.substr(star + 1))};
}

std::string number_of(const Number_parts& parts) {
  const std::string registration = platform::trim_text(parts.registration);
  const std::string measurement = platform::trim_text(parts.measurement);
  return measurement.empty() ? registration : registration + "*" + measurement;
}

std::string_view column_of(std::string_view line, int column) {
  for (; column > 1; --column) {
    const std::size_t comma = line.find(',');
    if (comma == std::string_view::npos) return {};
    line.remove_prefix(comma + 1);
  }
  return line.substr(0, line.find(','));
}

}  // namespace observations
