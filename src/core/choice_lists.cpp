#include "core/choice_lists.h"

#include "core/language.h"

namespace core {

namespace {

constexpr const char* target_kinds_japanese[] = {"地層境界面", "地層面", "線構造", "断層", "標高点", "その他"};
constexpr const char* target_kinds_english[] = {"Boundary", "Stratum", "Lineation", "Fault", "Altitude", "etc"};

constexpr const char* mark_shapes_japanese[] = {"○", "●", "□", "■", "△", "▲", "▽", "▼", "◇", "◆", "範囲", "線", "文字"};
// These names are stored in the records, so they stand as they are.
constexpr const char* mark_shapes_english[] = {"circle",
                                               "filled circle",
                                               "square",
                                               "filled square",
                                               "triangle",
                                               "filled triangle",
                                               "inverted triangle",
                                               "triangle inverted triangle",
                                               "rhombic",
                                               "filled rhombic",
                                               "Area",
                                               "Line",
                                               "Word"};

constexpr const char* one_to_ten[] = {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"};
constexpr const char* intervals_list[] = {"0.5", "0.7", "1", "1.5", "2", "2.5", "3", "4", "5", "6"};
constexpr const char* com_ports_list[] = {"01", "02", "03", "04", "05", "06", "07", "08", "09", "10"};
constexpr const char* port_speeds_list[] = {"4800", "9600", "19200", "38400", "57600", "115200"};

}  // namespace

Choices target_kinds(std::string_view language) {
  return is_japanese(language) ? Choices(target_kinds_japanese) : Choices(target_kinds_english);
}

Choices mark_shapes(std::string_view language) {
  return is_japanese(language) ? Choices(mark_shapes_japanese) : Choices(mark_shapes_english);
}

Choices mark_sizes() {
  return one_to_ten;
}
Choices intervals() {
  return intervals_list;
}
Choices com_ports() {
  return com_ports_list;
}
Choices port_speeds() {
  return port_speeds_list;
}

}  // namespace core
