// What the tests of this floor share: a program folder with sheets made for a test, and frames worked out by hand.
#pragma once

#include <string>
#include <vector>

#include "maps/canvas.h"
#include "platform/code_page_932.h"
#include "platform/files.h"
#include "support/temporary_folder.h"

namespace support {

struct Map_place {
  Temporary_folder folder;
  platform::Disk_files files;
  std::string program = folder.text();

  Map_place() {
    files.make_folder(in("map"));
    files.make_folder(in("map50000"));
    files.make_folder(in("mps"));
  }
  std::string in(const std::string& name) const { return platform::join_path(program, name); }
  void put(const std::string& name, const std::string& bytes) { files.write_whole(in(name), bytes); }
  void put_lines(const std::string& name, const std::vector<std::string>& lines) {
    std::string bytes;
    for (const std::string& line : lines) bytes += platform::encode_932(line) + "\r\n";
    put(name, bytes);
  }
};

// A bitmap of 8 bits in one colour, its bytes written out by hand: two headers, 256 palette entries, the rows.
inline std::string flat_bmp(int width, int height, unsigned colour = 0x336699) {
  const auto number = [](unsigned value, int count) {
    std::string bytes;
    for (int i = 0; i < count; ++i, value >>= 8) bytes += static_cast<char>(value & 0xFF);
    return bytes;
  };
  const unsigned row = (static_cast<unsigned>(width) + 3) / 4 * 4, pixels = row * static_cast<unsigned>(height);
  std::string bytes = "BM" + number(1078 + pixels, 4) + number(0, 4) + number(1078, 4) + number(40, 4) +
                      number(static_cast<unsigned>(width), 4) + number(static_cast<unsigned>(height), 4) +
                      number(1, 2) + number(8, 2) + number(0, 24);
  for (int i = 0; i < 256; ++i) bytes += number(i == 7 ? colour : 0, 4);
  return bytes + std::string(pixels, '\7');
}

// A metric frame in which every figure can be followed in the head: origin (10, 20), 1000 x 800 m, half a unit to the
// metre, moved 10 units right and 20 up.
inline maps::Canvas plain_canvas() {
  maps::Canvas canvas;
  canvas.canvas_scale = canvas.canvas_scale0 = 0.5;
  canvas.map_x0 = 10;
  canvas.map_y0 = 20;
  canvas.map_x1 = 1010;
  canvas.map_y1 = 820;
  canvas.map_w = 1000;
  canvas.map_h = 800;
  canvas.view_x = 75;
  canvas.view_y = -150;
  return canvas;
}

// A geographic frame from 139 degrees east and 36 north: 25 m to the second of longitude, 30 to that of latitude, 9000
// m high, a tenth of a unit to the metre.
inline maps::Canvas geographic_canvas() {
  maps::Canvas canvas;
  canvas.canvas_scale = canvas.canvas_scale0 = 0.1;
  canvas.is_geographic = true;
  canvas.geo_x0 = 13'900'000;
  canvas.geo_y1 = 3'600'000;
  canvas.sec_m_x = 25;
  canvas.sec_m_y = 30;
  canvas.map_x1 = canvas.map_w = 11250;
  canvas.map_y1 = canvas.map_h = 9000;
  return canvas;
}

}  // namespace support
