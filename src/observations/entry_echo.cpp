#include "observations/entry_echo.h"

#include <cmath>
#include <optional>

#include "core/language.h"
#include "observations/angle_text.h"
#include "observations/chiten_out.h"
#include "observations/clinometer_notation.h"
#include "observations/marks.h"
#include "observations/record_line.h"
#include "observations/strike_dip.h"
#include "platform/numbers.h"
#include "platform/text_case.h"

namespace observations {
namespace {

constexpr double units_per_degree = 100'000;
constexpr double longest_longitude = 180, longest_latitude = 90;  // degrees

struct Named_box {
  int box;
  const char* japanese;
  const char* english;
};

constexpr Named_box strike_box{box_soukou, "走向", "Strike"}, dip_box{box_keisha, "傾斜", "Dip"},
    line_direction_box{box_sen_houkou, "線方向", "Line direction"}, line_dip_box{box_sen_keisha, "線傾斜", "Line dip"},
    X_box{box_X, "X", "X"}, Y_box{box_Y, "Y", "Y"}, Z_box{box_Z, "Z", "H"},
    measurement_box{box_measurement, "走向傾斜計測番号", "Measurement number"};

// What the sentences of one echo are made with.
struct Teller {
  bool japanese;
  Entry_echo& echo;

  std::string either(const std::string& in_japanese, const std::string& in_english) const {
    return japanese ? in_japanese : in_english;
  }
  void note(const std::string& in_japanese, const std::string& in_english) const {
    echo.notes.push_back(either(in_japanese, in_english));
  }
  void slip(const Named_box& box, const std::string& text, Reading reading, double value) const;
};

std::string degrees(double value) {
  return angle_text(value) + "°";
}

// One sentence for a text that isn't read as it looks; none for one that is.
void Teller::slip(const Named_box& box, const std::string& text, Reading reading, double value) const {
  const std::string ja = std::string(box.japanese) + "「" + text + "」は";
  const std::string en = std::string(box.english) + " \"" + text + "\"";
  const std::string read = angle_text(value);
  switch (reading) {
    case Reading::as_zero:
      echo.slips.push_back({box.box, reading, either(ja + " 0 と読まれます。", en + " reads as 0.")});
      break;
    case Reading::partly:
      echo.slips.push_back(
          {box.box, reading,
           either(ja + "一部だけが読まれ、" + read + " になります。", en + " is read only in part, as " + read + ".")});
      break;
    case Reading::beyond:
      echo.slips.push_back({box.box, reading, either(ja + "角度の範囲を超えています。", en + " is beyond its range.")});
      break;
    case Reading::blank:
    case Reading::fits:
      break;
  }
}

// Whether the rest of a number's text is an exponent: "e5", "D-3".
bool is_exponent(std::string_view rest) {
  if (rest.empty()) return true;
  if (std::string_view("eEdD").find(rest.front()) == std::string_view::npos) return false;
  rest.remove_prefix(1);
  if (!rest.empty() && (rest.front() == '+' || rest.front() == '-')) rest.remove_prefix(1);
  return !rest.empty() && rest.find_first_not_of("0123456789") == std::string_view::npos;
}

// How a box that is meant for a number reads.
Reading number_reading(std::string_view text) {
  if (is_blank(text)) return Reading::blank;
  std::string_view rest = text;
  if (rest.front() == '+' || rest.front() == '-') rest.remove_prefix(1);
  const std::string_view digits = rest.substr(0, rest.find_first_not_of("0123456789."));
  const bool is_number = digits.find_first_of("0123456789") != std::string_view::npos &&
                         digits.find('.') == digits.rfind('.') && is_exponent(rest.substr(digits.size()));
  if (is_number) return Reading::fits;
  return platform::val(text) == 0 ? Reading::as_zero : Reading::partly;
}

void tell_number(const Teller& teller, const Named_box& box, const std::string& text) {
  const std::string trimmed = platform::trim_text(text);
  teller.slip(box, trimmed, number_reading(trimmed), platform::val(trimmed));
}

// The position is stored as a number, so that a blank one becomes 0; the other two boxes are stored as they are typed.
void tell_numbers(const Teller& teller, const Entry_boxes& boxes, const Record& record) {
  for (const Named_box& box : {X_box, Y_box}) {
    const std::string& text = boxes.Text14[static_cast<std::size_t>(box.box)];
    if (is_blank(text))
      teller.slip(box, "", Reading::as_zero, 0);
    else
      tell_number(teller, box, text);
  }
  tell_number(teller, Z_box, boxes.Text14[box_Z]);
  tell_number(teller, measurement_box, boxes.Text13);
  if (!is_geographic(record)) return;
  if (std::abs(record.X) > longest_longitude * units_per_degree)
    teller.slip(X_box, boxes.Text14[box_X], Reading::beyond, record.X);
  if (std::abs(record.Y) > longest_latitude * units_per_degree)
    teller.slip(Y_box, boxes.Text14[box_Y], Reading::beyond, record.Y);
}

// The declination that a display adds, with what it comes from; or why there is none.
std::string model_line(const Teller& teller, const Coefficients& coefficients, std::optional<double> declination,
                       Correction correction) {
  if (const auto sentence = sentence_of(coefficients.fault))
    return teller.either(sentence->japanese, sentence->english);
  if (!declination)
    return teller.either("この位置の経緯度が分からないため、走向は偏角補正をせずに表示します。",
                         "Strikes are shown without declination, since the latitude and longitude of this place are "
                         "not known.");
  const Declination_label label = declination_label(one_decimal(*declination));
  const std::string epoch = platform::format_number(evaluation_epoch, "###0.0");
  const std::string& model = coefficients.field.model;
  std::string line = teller.either(label.japanese + " (" + model + "、" + epoch + "年)",
                                   label.english + " (" + model + ", " + epoch + ")");
  if (correction == Correction::not_taken)
    line += teller.either(" 補正済みのため加えません。", ": not applied, the data are corrected.");
  return line;
}

std::string declination_cell(const Teller& teller, const Understood& read) {
  switch (read.correction) {
    case Correction::applied:
      return platform::format_number(read.declination, "##0.0") + "°";
    case Correction::not_taken:
      return teller.either("加えない", "not applied");
    case Correction::unknown:
      return teller.either("不明", "unknown");
  }
  return {};
}

std::string side_text(const std::string& side, double azimuth) {
  return side + " " + degrees(azimuth);
}

// The plane of the clinometer's dialog, where it takes another one from the same texts.
void tell_clinometer(const Teller& teller, const char* in_japanese, const char* in_english, double a, double d,
                     double azimuth, double dip) {
  const double turned = std::fmod(a, 360) < 0 ? std::fmod(a, 360) + 360 : std::fmod(a, 360);
  if (angle_through_text(turned) == azimuth && d == dip) return;
  const std::string value = degrees(angle_through_text(turned));
  teller.note(in_japanese + ("クリノメータの画面では " + value + "、傾斜 " + degrees(d) + " と読みます。"),
              in_english + ("clinometer's window reads " + value + ", dip " + degrees(d) + "."));
}

void tell_plane_differences(const Teller& teller, const std::string& strike, const std::string& dip,
                            const Understood& read) {
  if (read.drawn_otherwise)
    teller.note(
        "図には " + degrees(read.drawn.azimuth) + "、傾斜 " + degrees(read.drawn.dip) + " の面として描かれます。",
        "The map draws it as " + degrees(read.drawn.azimuth) + ", dip " + degrees(read.drawn.dip) + ".");
  double a = 0, d = 0;
  clinometer::角度変換(strike, dip, a, d);
  tell_clinometer(teller, "", "The ", a, d, read.raw.azimuth, read.raw.dip);
}

void plane_echo(const Teller& teller, const std::string& strike, const std::string& dip, const Understood& read) {
  double value = 0, no_dip = 0;
  角度変換(platform::upper_case(strike), {}, value, no_dip);
  teller.slip(strike_box, strike, read.strike, value);
  teller.slip(dip_box, dip, read.dip, read.raw.dip);
  if (read.strike == Reading::blank) return;
  Entry_echo& echo = teller.echo;
  echo.raw = degrees(read.raw.azimuth);
  echo.raw_text = platform::upper_case(strike + (dip.empty() ? "" : " " + dip));
  echo.corrected = degrees(read.corrected.azimuth);
  echo.corrected_text = read.corrected_strike + (dip.empty() ? "" : " " + read.corrected_dip);
  tell_plane_differences(teller, strike, dip, read);
  if (read.dip == Reading::blank) return;
  echo.raw_dip = degrees(read.raw.dip);
  echo.corrected_dip = degrees(read.corrected.dip);
  if (!read.fall) {
    echo.raw_side = teller.either("指定なし", "none");
    return;
  }
  const Understood turned = understood(angle_text(read.corrected.azimuth), angle_text(read.corrected.dip) + "E", 0, "");
  echo.raw_side = side_text(read.side, *read.fall);
  echo.corrected_side = side_text(turned.side, turned.fall.value_or(0));
}

// A lineation takes the azimuth that the drawing reads, which knows no reading from the south.
void line_echo(const Teller& teller, const std::string& direction, const std::string& dip,
               std::optional<double> declination, std::string_view henkaku_done) {
  const Understood read = understood(direction, dip, declination, henkaku_done);
  const Understood bare = understood(direction, {}, declination, henkaku_done);
  const bool lost = bare.drawn_otherwise && bare.drawn.azimuth == 0;
  const Understood drawn = lost ? understood("0", {}, declination, henkaku_done) : bare;
  double value = 0, no_dip = 0;
  角度変換(platform::upper_case(direction), {}, value, no_dip);
  teller.slip(line_direction_box, direction, lost ? Reading::as_zero : read.strike, value);
  teller.slip(line_dip_box, dip, read.dip, read.raw.dip);
  Entry_echo& echo = teller.echo;
  if (!is_blank(dip)) echo.lineation_dip = degrees(read.raw.dip);
  if (is_blank(direction)) return;
  echo.lineation = degrees(drawn.raw.azimuth);
  echo.lineation_corrected = degrees(drawn.corrected.azimuth);
  double a = 0, d = 0;
  clinometer::線角度変換(direction, dip, a, d);
  tell_clinometer(teller, "線構造: ", "Lineation: the ", a, d, drawn.raw.azimuth, read.raw.dip);
}

Record record_of_boxes(const Entry_boxes& boxes) {
  Record record;
  record_from_boxes(record, boxes);
  return record;
}

}  // namespace

Entry_echo entry_echo(const Entry_boxes& boxes, const Coefficients& coefficients, const maps::Canvas& canvas,
                      const std::string& language) {
  Entry_echo echo;
  const Teller teller{core::is_japanese(language), echo};
  const Record record = record_of_boxes(boxes);
  const std::optional<double> declination = declination_of(record, coefficients.field, canvas);
  const Understood read = understood(record.soukou, record.keisha, declination, record.henkaku_done);
  echo.correction = read.correction;
  echo.declination = declination_cell(teller, read);
  echo.model = model_line(teller, coefficients, declination, read.correction);
  if (is_word(record.mark)) {
    teller.note("記号が「文字」のため、走向の欄は図に書く文字になります。",
                "The mark is \"Word\": the strike box holds the text that the map shows.");
  } else {
    plane_echo(teller, record.soukou, record.keisha, read);
    line_echo(teller, record.sen_houkou, record.sen_keisha, declination, record.henkaku_done);
  }
  tell_numbers(teller, boxes, record);
  if (is_deleted(line_of(record).text))
    echo.losses.push_back(
        teller.either("「-9999」を含む地点は削除したものとして扱われ、保存すると次の読み込みで消えます。",
                      "A record that holds \"-9999\" counts as deleted: saved like this, it is gone at "
                      "the next reading."));
  return echo;
}

Symbol entry_symbol(const Entry_boxes& boxes, const Coefficients& coefficients, const maps::Canvas& canvas) {
  const Record record = record_of_boxes(boxes);
  if (is_word(record.mark)) return {};
  const std::optional<double> declination = declination_of(record, coefficients.field, canvas);
  return symbol_of(record, declination.value_or(0), declination.has_value());
}

}  // namespace observations
