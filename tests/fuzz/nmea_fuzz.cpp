// A receiver that sends any bytes, in pieces, and a log of the same bytes: the buffer stays bounded, every position is
// a finite number, and a sentence that counts as sound has a position on the earth's north-eastern quarter.
#include <cmath>
#include <utility>

#include "instruments/gps_tick.h"
#include "instruments/nmea.h"
#include "instruments/replay.h"
#include "instruments/routes.h"
#include "one_file.h"

namespace {

class Any_port : public platform::Serial_port {
 public:
  std::string piece;
  void set_port(int) override {}
  void set_line(const std::string&) override {}
  bool open() override { return true; }
  void close() override {}
  bool is_open() const override { return true; }
  bool write(std::string_view) override { return true; }
  std::string read_all() override { return std::exchange(piece, {}); }
};

class Still_clock : public platform::Clock {
 public:
  platform::Date_time now() override { return {2008, 11, 15, 10, 20, 30}; }
};

void tick_through(std::string_view bytes, std::size_t step) {
  Any_port port;
  Still_clock clock;
  core::Interaction flags;
  instruments::Gps gps;
  maps::Canvas canvas;
  instruments::gps_start(gps, flags, port, {}, clock);
  for (std::size_t at = 0; at < bytes.size(); at += step) {
    port.piece = bytes.substr(at, step);
    const instruments::Gps_step moved = instruments::Timer2(gps, flags, port, clock);
    support::promise(gps.b.size() <= instruments::buffer_limit);
    support::promise(std::isfinite(moved.longitude) && std::isfinite(moved.latitude));
    if (gps.light == instruments::Gps_light::fix)
      support::promise(gps.latitude >= 0 && gps.latitude <= 90 && gps.longitude >= 0 && gps.longitude <= 180);
    const maps::Canvas_point at_canvas = instruments::gps_mark_at(canvas, gps.mark);
    support::promise(std::isfinite(at_canvas.x) && std::isfinite(at_canvas.y));
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  tick_through(bytes, 64);
  tick_through(bytes, 1021);
  support::One_file files(data, size);
  for (const instruments::Route_point& point : instruments::nmea_log_r(files, "C:\\a.nme"))
    support::promise(std::isfinite(point.x) && std::isfinite(point.y));
  for (const std::string& line : instruments::gps_data_r(files, "C:\\"))
    instruments::replayed(line, {2008, 11, 15, 10, 20, 30});
  return 0;
}
