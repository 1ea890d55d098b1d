#include "observations/marks.h"

#include <algorithm>

#include "core/choice_lists.h"

namespace observations {
namespace {

constexpr std::string_view old_enclosure = "囲み";

int index_in(core::Choices names, std::string_view name) {
  const auto found = std::find(names.begin(), names.end(), name);
  return found == names.end() ? unknown_name : static_cast<int>(found - names.begin());
}

int index_in_either(core::Choices (*names)(std::string_view), std::string_view name) {
  return std::max(index_in(names("Japanese"), name), index_in(names("English"), name));
}

}  // namespace

int mark_index(std::string_view mark) {
  return index_in_either(core::mark_shapes, mark);
}
int taishou_index(std::string_view taishou) {
  return index_in_either(core::target_kinds, taishou);
}

bool is_area(std::string_view mark) {
  return mark_index(mark) == mark_area;
}
bool is_line(std::string_view mark) {
  return mark_index(mark) == mark_line;
}
bool is_word(std::string_view mark) {
  return mark_index(mark) == mark_word;
}

bool stands_at_first_vertex(std::string_view mark) {
  return is_line(mark) || mark == old_enclosure;
}

}  // namespace observations
