#include "soak/texts.h"

#include <vector>

namespace soak {

namespace {

const std::vector<std::string> numbers{"0",      "1",    "12.5", "-3",     "1000",   "100000",  "1e3", "0.001",
                                       "999999", "1e30", "-0",   "12 345", "１２３", "3.14159", "+7",  "1e-300"};
const std::vector<std::string> garbage{
    "?!",     "<b>x</b>", "\\\\..\\", "\"quote\"", "'", "%s%n", "*",   "a*b*c",   "｡｢｣",   "～－∥", "①②",       "é ü ñ",
    "𠮷野家", "€",        "\t\t",     "    ",      "-", "C:",   "nul", "con.csv", "../..", "&&x",   "&File(&F)"};
const std::vector<std::string> japanese{"砂岩",        "鳴沢砂岩層", "露頭",       "転石",   "走向傾斜",
                                        "霧沢 頁岩層", "礫岩（細）", "ソーラー表", "能力十", "ﾊﾝｶｸ"};
const std::vector<std::string> english{"outcrop", "sandstone", "fault", "fresh surface", "Tuff bed 3", "ab", "x"};

std::string very_long(Random& random) {
  const std::string part = random.one_in(2) ? "x" : "長";
  std::string text;
  for (int i = random.one_in(4) ? 5000 : 300; i > 0; --i) text += part;
  return text;
}

std::string word(Random& random) {
  switch (random.below(8)) {
    case 0:
      return {};
    case 1:
      return random.of(numbers);
    case 2:
      return random.of(garbage);
    case 3:
      return random.one_in(6) ? very_long(random) : random.of(japanese);
    case 4:
      return strike(random);
    case 5:
      return dip(random);
    case 6:
      return random.of(english);
    default:
      return random.of(japanese);
  }
}

std::string folder(Random& random, const std::string& root) {
  const std::vector<std::string> folders{"/project",    "/project2", "/program/map", "/program/map50000",
                                         "/pictures",   "/logs",     "/out",         "/missing",
                                         "/out/新しい", "/program",  "/program/mps"};
  if (random.one_in(6)) return random.of(garbage);
  return root + random.of(folders);
}

}  // namespace

std::string strike(Random& random) {
  std::string degrees = std::to_string(random.below(95));
  switch (random.below(8)) {
    case 0:
      return "NS";
    case 1:
      return "EW";
    case 2:
      return "S" + degrees + "E";
    case 3:
      return degrees;
    case 4:
      return "Ｎ" + degrees + "Ｗ";
    case 5:
      return "n" + degrees + "e";
    default:
      return "N" + degrees + (random.one_in(2) ? "W" : "E");
  }
}

std::string dip(Random& random) {
  const std::string degrees = std::to_string(random.below(100));
  const std::vector<std::string> ends{"N", "S", "E", "W", "NE", "SW", "", "e", "Ｎ"};
  return random.one_in(12) ? std::string("V") : degrees + random.of(ends);
}

std::string text_for(Random& random, Box box, const std::string& root) {
  switch (box) {
    case Box::record:
      return word(random);
    case Box::number:
      return random.one_in(4) ? word(random) : random.of(numbers);
    case Box::folder:
      return folder(random, root);
    case Box::free:
      break;
  }
  const std::vector<std::string> more{",", "a,b,c", "-9999", "1,2\n3,4", "=1+1", "一行目\n二行目", "\"a\",\"b"};
  return random.one_in(5) ? random.of(more) : word(random);
}

}  // namespace soak
