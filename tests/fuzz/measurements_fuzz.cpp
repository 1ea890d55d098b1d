// A measurement file of any bytes: shown, taken apart for every export, and merged into a small registry. What a saved
// file is shown as is shown the same when it is saved again.
#include <cmath>

#include "instruments/measurement_files.h"
#include "instruments/registry_writing.h"
#include "instruments/scatter.h"
#include "instruments/stereo_net_file.h"
#include "instruments/tiltvane_line.h"
#include "instruments/track_log.h"
#include "one_file.h"

namespace {

void promise_line(const std::string& line) {
  using support::promise;
  const std::string net = instruments::stereo_net_line(line, {"-7.5", true});
  promise(net.size() >= 17);
  const std::vector<std::string> sentences = instruments::track_log_lines(line);
  promise(sentences.empty() || sentences.size() == 2);
  const instruments::Measurement measurement = instruments::measurement_of(line);
  promise(std::isfinite(measurement.position.x) && std::isfinite(measurement.position.y));
  promise(instruments::touroku_no_of(measurement).find('-') != std::string::npos);
}

void promise_scatter(const std::vector<std::string>& lines) {
  const auto planes = instruments::planes_of(instruments::measured_of(lines, -7.5));
  const auto scatter = instruments::scatter_of(planes);
  support::promise(scatter.has_value() == !planes.empty());
  if (!scatter) return;
  support::promise(scatter->resultant <= static_cast<double>(scatter->count) * (1 + 1e-9));
  support::promise(scatter->mean.azimuth >= 0 && scatter->mean.azimuth <= 360);
  support::promise(!scatter->k || *scatter->k > 0);
}

observations::Registry& table() {
  static observations::Registry registry;  // its memory is taken once
  registry.N = 0;
  return registry;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  support::One_file files(data, size);
  instruments::Measurement_list list;
  instruments::Tiltvane_out(list, files, "a.csv");
  support::promise(list.rows.size() <= instruments::list_limit);
  for (instruments::Measurement_row& row : list.rows) {
    row.ticked = true;
    promise_line(row.line);
  }
  const std::vector<std::string> lines = instruments::ticked_lines(list);
  promise_scatter(lines);
  const auto measurements = instruments::ticked_measurements(list);
  support::promise(measurements.size() <= instruments::measurement_limit);
  observations::Registry& registry = table();
  const int count = instruments::merge_without_track(registry, measurements, true);
  support::promise(count >= registry.N && registry.N <= instruments::measurement_limit);
  instruments::Track track;
  instruments::track_second_r(track, files, "a.csv", 9);
  instruments::merge_with_track(registry, measurements, track, false);
  return 0;
}
