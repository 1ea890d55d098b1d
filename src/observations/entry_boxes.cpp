#include "observations/entry_boxes.h"

#include <algorithm>

#include "core/choice_lists.h"
#include "observations/record_line.h"
#include "observations/true_north.h"
#include "platform/code_page_932.h"
#include "platform/numbers.h"

namespace observations {
namespace {

constexpr const char* position_form = "######0.#0";

struct Text_box {
  int column;
  std::string text;
};

// What each box gives its text column, by the number of the column.
std::vector<Text_box> text_columns(const Entry_boxes& boxes) {
  const auto trimmed = [&](Text14_box box) { return platform::trim_text(boxes.Text14[box]); };
  return {{4, boxes.Text14[box_Z]},
          {5, boxes.Combo7},
          {6, boxes.Combo6},
          {7, trimmed(box_soukou)},
          {8, trimmed(box_keisha)},
          {9, number_of({boxes.Text14[box_touroku_no], boxes.Text13})},
          {10, boxes.Label3},
          {11, boxes.Combo1},
          {19, boxes.Check9 ? "1" : "0"},
          {22, trimmed(box_sen_keisha)},
          {23, trimmed(box_sen_houkou)}};
}

std::string* text_at(Record& record, int column) {
  switch (column) {
    case 4:
      return &record.Z;
    case 5:
      return &record.taishou;
    case 6:
      return &record.chisou;
    case 7:
      return &record.soukou;
    case 8:
      return &record.keisha;
    case 9:
      return &record.touroku_no;
    case 10:
      return &record.gazou;
    case 11:
      return &record.mark;
    case 19:
      return &record.henkaku_done;
    case 22:
      return &record.sen_keisha;
    default:
      return &record.sen_houkou;
  }
}

void set_text(Record& record, const Text_box& box) {
  std::string& text = *text_at(record, box.column);
  if (text == box.text) return;
  text = box.text;
  std::erase_if(record.strays, [&](const Stray_byte& stray) { return stray.column == box.column; });
}

std::vector<std::string> texts_of(core::Choices choices) {
  return {choices.begin(), choices.end()};
}

// What would end a column or the line in the middle of the text.
std::string separators_in(const std::string& text) {
  std::string found = text.find(',') == std::string::npos ? "" : ",";
  if (text.find_first_of("\r\n\x1a") != std::string::npos) found += "(CR LF)";
  return found;
}

}  // namespace

void position_to_boxes(Entry_boxes& boxes, geodesy::Point position) {
  boxes.Text14[box_X] = platform::format_number(position.x, position_form);
  boxes.Text14[box_Y] = platform::format_number(position.y, position_form);
}

geodesy::Point position_of(const Entry_boxes& boxes) {
  return {platform::val(boxes.Text14[box_X]), platform::val(boxes.Text14[box_Y])};
}

void boxes_from_record(Entry_boxes& boxes, const Record& record) {
  const Number_parts number = number_parts(record.touroku_no);
  position_to_boxes(boxes, {record.X, record.Y});
  boxes.Text14[box_Z] = record.Z;
  boxes.Text14[box_sen_keisha] = record.sen_keisha;
  boxes.Text14[box_sen_houkou] = record.sen_houkou;
  boxes.Text14[box_soukou] = record.soukou;
  boxes.Text14[box_keisha] = record.keisha;
  boxes.Text14[box_touroku_no] = number.registration;
  boxes.Text13 = number.measurement;
  boxes.Combo1 = record.mark;
  boxes.Combo3 = platform::number_text(record.size);
  boxes.Combo6 = record.chisou;
  boxes.Combo7 = record.taishou;
  boxes.Label3 = record.gazou;
  boxes.Shape1 = {record.R, record.G, record.B};
  boxes.Shape4 = {record.R2, record.G2, record.B2};
  boxes.Check7 = record.boundary != 0;
  boxes.Check9 = reads_as_corrected(record.henkaku_done);
}

void record_from_boxes(Record& record, const Entry_boxes& boxes) {
  const geodesy::Point position = position_of(boxes);
  record.boundary = boxes.Check7 ? 1 : 0;
  record.X = position.x;
  record.Y = position.y;
  record.size = platform::val(boxes.Combo3);
  record.R = boxes.Shape1.red;
  record.G = boxes.Shape1.green;
  record.B = boxes.Shape1.blue;
  record.R2 = boxes.Shape4.red;
  record.G2 = boxes.Shape4.green;
  record.B2 = boxes.Shape4.blue;
  for (const Text_box& box : text_columns(boxes)) set_text(record, box);
  record.keisoku_no = number_parts(record.touroku_no).measurement;
}

void fill_mark_lists(Entry_boxes& boxes, const std::string& language) {
  if (boxes.Combo1_list.empty()) boxes.Combo1_list = texts_of(core::mark_shapes(language));
  if (boxes.Combo3_list.empty()) boxes.Combo3_list = texts_of(core::mark_sizes());
  if (boxes.Combo1.empty()) boxes.Combo1 = boxes.Combo1_list.front();
  if (boxes.Combo3.empty()) boxes.Combo3 = core::mark_size_default;
}

std::string characters_not_stored(const Entry_boxes& boxes, const Record& stored, const std::string& stored_memo) {
  Record known = stored;
  std::string texts, columns;
  for (const Text_box& box : text_columns(boxes)) {
    if (*text_at(known, box.column) == box.text) continue;
    texts += box.text;
    columns += box.text;
  }
  if (boxes.memo != stored_memo) texts += boxes.memo;
  return platform::characters_without_code(texts) + separators_in(columns);
}

}  // namespace observations
