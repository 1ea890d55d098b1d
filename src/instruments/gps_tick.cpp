#include "instruments/gps_tick.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "geodesy/plane.h"
#include "instruments/nmea.h"
#include "platform/numbers.h"

namespace instruments {
namespace {

constexpr double seconds_per_degree = 3600;
constexpr double units_per_degree = 100'000;
constexpr const char* fix_label = "GPS:補足";
constexpr const char* search_label = "GPS:検索中";
// Below this henkan_px takes a coordinate for metres.
constexpr double geographic_from = 1'000'000;

long long seconds_since(const platform::Date_time& then, const platform::Date_time& now) {
  const long long days = geodesy::days_between(then.year, then.month, then.day, now.year, now.month, now.day);
  return days * 86'400 + (now.hour - then.hour) * 3600LL + (now.minute - then.minute) * 60LL + now.second - then.second;
}

// A clock that was set back counts as no time gone by; the moment moves with it, so that the time runs on from there.
long long age_of(platform::Date_time& moment, const platform::Date_time& now) {
  const long long age = seconds_since(moment, now);
  if (age < 0) moment = now;
  return std::max(age, 0LL);
}

Gps_light light_of(Gps& gps, bool is_open, const platform::Date_time& now) {
  if (!is_open) return Gps_light::closed;
  if (gps.has_position && age_of(gps.last_fix, now) > lost_after) return Gps_light::lost;
  if (gps.has_position && !gps.searches) return gps.is_doubtful ? Gps_light::doubtful : Gps_light::fix;
  if (!gps.has_bytes || age_of(gps.last_bytes, now) > lost_after) return Gps_light::open;
  return gps.searches ? Gps_light::no_fix : Gps_light::bytes;
}

// A position that is lost, or whose receiver is gone, is none any more: the text must not say so beside the light.
void take_back_fix(Gps& gps) {
  const bool is_past = gps.light == Gps_light::closed || gps.light == Gps_light::lost;
  if (is_past && gps.Label7 == fix_label) gps.Label7 = search_label;
}

// Tries a port that is not open again, not at every tick.
void open_again(Gps& gps, platform::Serial_port& port, const platform::Date_time& now) {
  gps.b.clear();
  gps.searches = gps.has_bytes = false;
  if (age_of(gps.last_try, now) < reopen_after) return;
  gps.last_try = now;
  port.open();
}

struct Pair {
  std::size_t gga;
  std::size_t gsa;
};

// The first GGA with a GSA behind it.
std::optional<Pair> pair_in(std::string_view b) {
  const std::size_t gga = b.find(gga_word);
  if (gga == std::string_view::npos) return std::nullopt;
  const std::size_t gsa = b.find(gsa_word, gga);
  if (gsa == std::string_view::npos) return std::nullopt;
  return Pair{gga, gsa};
}

// Takes the position of a GGA, if it has one.
Gps_step used(Gps& gps, std::string_view gga, const platform::Date_time& now) {
  Nmea nmea;
  nmea_split(gga, nmea);
  gps.searches = nmea.field(3).empty();
  gps.Label7 = gps.searches ? search_label : fix_label;
  if (gps.searches) return {};
  gps.longitude = longitude_seconds(nmea.field(5)) / seconds_per_degree;
  gps.latitude = latitude_seconds(nmea.field(3)) / seconds_per_degree;
  gps.has_position = true;
  gps.is_doubtful = !is_sound(gga);
  gps.last_fix = now;
  GPS_MARK(gps.mark, 1, gps.longitude * units_per_degree, gps.latitude * units_per_degree);
  return {true, gps.longitude, gps.latitude};
}

// A pair is used once: of a receiver that sends no RMC the next GGA counts, and the last one before it fell silent
// doesn't pass for a position of now.
void drop_used(std::string& b, const Pair& pair) {
  const std::size_t last = b.rfind(gga_word);
  b.erase(0, last == pair.gga ? pair.gsa : last);
}

// Noise without a sentence has no end of its own.
void bound_buffer(std::string& b) {
  if (b.size() <= buffer_limit) return;
  const std::size_t last = b.rfind(gga_word);
  if (last == std::string::npos || b.size() - last > buffer_limit)
    b.clear();
  else
    b.erase(0, last);
}

}  // namespace

void gps_start(Gps& gps, core::Interaction& flags, platform::Serial_port& port, const core::Settings_boxes& boxes,
               platform::Clock& clock) {
  const std::string label = gps.Label7;
  gps = {};
  gps.Label7 = label;
  gps.last_try = clock.now();
  if (!port.is_open()) {
    port.set_port(port_number(boxes.Combo4));
    port.set_line(line_settings(boxes.Combo5));
    port.open();
  }
  flags.gps_running = 1;
  gps.light = light_of(gps, port.is_open(), gps.last_try);
}

void gps_stop(Gps& gps, core::Interaction& flags, platform::Serial_port& port) {
  port.close();
  flags.gps_running = 0;
  gps = {};
  gps.Label7 = "GPS停止中";
}

Gps_step Timer2(Gps& gps, const core::Interaction& flags, platform::Serial_port& port, platform::Clock& clock) {
  if (flags.gps_running == 0) return {};
  const platform::Date_time now = clock.now();
  if (!port.is_open()) open_again(gps, port, now);
  if (const std::string input = port.is_open() ? port.read_all() : std::string(); !input.empty()) {
    gps.b += input;
    gps.has_bytes = true;
    gps.last_bytes = now;
  }
  Gps_step step;
  const bool has_rmc = gps.b.find(rmc_word) != std::string::npos;
  if (const std::optional<Pair> pair = pair_in(gps.b)) {
    step = used(gps, std::string_view(gps.b).substr(pair->gga), now);
    drop_used(gps.b, *pair);
  }
  if (has_rmc) gps.b.clear();
  bound_buffer(gps.b);
  gps.light = light_of(gps, port.is_open(), now);
  take_back_fix(gps);
  return step;
}

void GPS_MARK(Gps_mark& mark, int mode, double longitude, double latitude) {
  mark.visible = mode == 1;
  if (!mark.visible) return;
  mark.longitude = longitude;
  mark.latitude = latitude;
}

maps::Canvas_point gps_mark_at(maps::Canvas& canvas, const Gps_mark& mark) {
  // henkan_px would take the 0 of a malformed sentence for metres and show it at the sheet's corner; it lies far away.
  const bool taken_for_metres =
      std::abs(mark.longitude) <= geographic_from || std::abs(mark.latitude) <= geographic_from;
  return taken_for_metres ? maps::henkan_px4(canvas, mark.longitude, mark.latitude)
                          : maps::henkan_px(canvas, mark.longitude, mark.latitude);
}

int port_number(const std::string& text) {
  return static_cast<int>(std::clamp(platform::val(text), 0.0, 9999.0));
}

std::string line_settings(const std::string& speed) {
  return platform::trim_text(speed) + ",n,8,1";
}

}  // namespace instruments
