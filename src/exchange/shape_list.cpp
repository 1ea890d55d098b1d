#include "exchange/shape_list.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <string_view>

#include "drawing/text_split.h"
#include "platform/failures.h"
#include "platform/numbers.h"
#include "platform/text_files.h"

namespace exchange {
namespace {

struct Letter {
  std::string_view text;
  Shape_kind kind;
};
constexpr Letter letters[] = {{"P", Shape_kind::point}, {"L", Shape_kind::line}, {"S", Shape_kind::polygon}};

std::size_t digits_from(std::string_view text, std::size_t at) {
  return std::min(text.find_first_not_of("0123456789", at), text.size()) - at;
}

std::size_t sign_at(std::string_view text, std::size_t at) {
  return at < text.size() && (text[at] == '+' || text[at] == '-') ? 1 : 0;
}

// A decimal number and nothing else: sign, digits with one point among them, exponent.
bool is_number(std::string_view text) {
  std::size_t at = sign_at(text, 0);
  const std::size_t whole = digits_from(text, at);
  at += whole;
  std::size_t decimals = 0;
  if (at < text.size() && text[at] == '.') {
    decimals = digits_from(text, at + 1);
    at += 1 + decimals;
  }
  if (whole + decimals == 0) return false;
  if (at == text.size()) return true;
  if (std::string_view("eEdD").find(text[at]) == std::string_view::npos) return false;
  at += 1 + sign_at(text, at + 1);
  const std::size_t exponent = digits_from(text, at);
  return exponent > 0 && at + exponent == text.size();
}

double coordinate(const std::string& field) {
  const std::string text = platform::trim_text(field);
  const double value = is_number(text) ? platform::val(text) : std::numeric_limits<double>::max();
  // val gives the largest double for a number beyond it.
  if (std::abs(value) == std::numeric_limits<double>::max())
    throw platform::Type_failure("a coordinate is no number: \"" + text + "\"");
  return value;
}

// A line of the list:
//   S,13952431.25,3561208.5,13952600.0,3561300.75,13952550.0,3561150.0
//   1 2           3         4          5          6          7
//   letter; x1; y1; x2; y2; ...
std::optional<Shape> shape_of(const std::string& line) {
  std::vector<std::string> fields(static_cast<std::size_t>(std::count(line.begin(), line.end(), ',')) + 1);
  drawing::split_csv(line, fields);
  const auto* letter =
      std::find_if(std::begin(letters), std::end(letters), [&](const Letter& one) { return one.text == fields[0]; });
  if (letter == std::end(letters)) return std::nullopt;
  Shape shape{letter->kind, {}};
  const bool is_point = shape.kind == Shape_kind::point;
  if (is_point) fields.resize(3);  // one point, told whole or failing as a missing number
  for (std::size_t i = 1; i + 1 < fields.size(); i += 2)
    shape.points.push_back({coordinate(fields[i]), coordinate(fields[i + 1])});
  return shape;
}

std::string coordinate_text(double value) {
  return platform::format_number(value, "###0.##########0");
}

}  // namespace

std::string tmp_path(const std::string& program_path) {
  return platform::join_path(program_path, "TMP.TMP");
}

std::vector<Shape> shape_list_r(platform::Files& files, const std::string& path) {
  const std::vector<std::string> lines = platform::read_lines(files, path);
  if (lines.empty()) files.read_bytes(path);  // raises what read_lines swallows: here the user has to hear of it
  std::vector<Shape> shapes;
  for (const std::string& line : lines)
    if (std::optional<Shape> shape = shape_of(line)) shapes.push_back(std::move(*shape));
  return shapes;
}

Shape drawn_shape(bool is_area, drawing::Point position, const std::vector<drawing::Point>& vertices) {
  if (is_area) return {Shape_kind::polygon, vertices};
  return {Shape_kind::point, {position}};
}

void shape_list_w(platform::Files& files, const std::string& program_path, const Shape& shape) {
  const auto* letter =
      std::find_if(std::begin(letters), std::end(letters), [&](const Letter& one) { return one.kind == shape.kind; });
  std::string line(letter->text);
  for (const drawing::Point& point : shape.points)
    line += "," + coordinate_text(point.x) + "," + coordinate_text(point.y);
  platform::Line_writer writer;
  writer.line(line);
  files.write_whole(tmp_path(program_path), writer.bytes());
}

}  // namespace exchange
