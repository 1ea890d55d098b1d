// A point's .dat file of any bytes: what is read and written reads back as the same list, no name leads out of the
// point's folder, and what a picture's bytes tell of its camera is a number of turns.
#include <cmath>

#include "observations/exif_orientation.h"
#include "observations/point_file.h"
#include "one_file.h"

namespace {

constexpr const char* folder = "C:\\p\\image\\a\\";

void check_path(const std::string& path) {
  if (path.empty()) return;
  support::promise(path.starts_with(folder));
  support::promise(path.find_first_of("\\/:", std::string(folder).size()) == std::string::npos);
}

observations::Point_file read(std::string_view bytes) {
  support::One_file files(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
  observations::Point_file point;
  observations::point_r(files, "a.dat", point);
  return point;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const int turns = observations::exif_quarter_turns(bytes);
  support::promise(turns >= 0 && turns <= 3);

  const observations::Point_file first = read(bytes);
  support::promise(std::isfinite(first.X) && std::isfinite(first.Y));
  for (const auto& picture : first.pictures) {
    support::promise(!picture.name.empty() && picture.name.find(',') == std::string::npos);
    check_path(observations::picture_path("C:\\p", "a", picture.name));
  }
  const std::string written = observations::point_bytes(first);
  const observations::Point_file second = read(written);
  support::promise(second.pictures.size() == first.pictures.size());
  for (std::size_t i = 0; i < first.pictures.size(); ++i)
    support::promise(second.pictures[i].name == first.pictures[i].name);
  // The name of line 1 loses bytes without a character at the first writing.
  const std::string again = observations::point_bytes(second);
  support::promise(again.substr(again.find('\n') + 1) == written.substr(written.find('\n') + 1));
  return 0;
}
