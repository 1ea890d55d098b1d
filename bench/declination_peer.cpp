// Declinations for bench/declination_peers.sh: reads points "longitude latitude ..." from a file, a line each, and
// writes a line with the declination for each; tells the processor time (ms) of the calls on the error stream.
//   declination_peer <folder of igrf10.coef> <points>
#include <cstdio>
#include <ctime>
#include <string>
#include <vector>

#include "observations/declination.h"
#include "platform/numbers.h"
#include "platform/text_files.h"

namespace {

struct Place {
  double latitude, longitude;
};

std::vector<Place> places_of(const std::vector<std::string>& lines) {
  std::vector<Place> places;
  places.reserve(lines.size());
  for (const std::string& line : lines) {
    const std::size_t blank = line.find(' ');
    const std::size_t end = line.find(' ', blank + 1);
    places.push_back({platform::val(line.substr(blank + 1, end - blank - 1)), platform::val(line.substr(0, blank))});
  }
  return places;
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 3) return 2;
  platform::Disk_files files;
  observations::Coefficients kept;
  if (observations::take_coefficients(files, arguments[1], kept) != observations::Coefficient_fault::none) return 1;
  const std::vector<Place> places = places_of(platform::read_lines(files, arguments[2]));
  std::vector<double> degrees(places.size());
  const std::clock_t begin = std::clock();
  for (std::size_t i = 0; i < places.size(); ++i)
    degrees[i] = observations::declination_at(kept.field, places[i].latitude, places[i].longitude);
  const double took = 1000.0 * static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
  std::string text;
  for (const double value : degrees) text += platform::format_number(value, "0.000000") + "\n";
  std::fwrite(text.data(), 1, text.size(), stdout);
  std::fprintf(stderr, "synthesis %.3f\n", took);
  return 0;
}
