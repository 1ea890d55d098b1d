// What the tests of this floor share: a program folder with its attribute table, a folder to write to, and a reader of
// Shapefiles that knows the published format only.
#pragma once

#include <bit>
#include <cstdint>
#include <string>
#include <vector>

#include "core/project_settings.h"
#include "drawing/surface.h"
#include "platform/files.h"
#include "support/fixed_clock.h"
#include "support/scripted_prompts.h"
#include "support/temporary_folder.h"

namespace support {

struct Exchange_place {
  Temporary_folder folder;
  platform::Disk_files files;
  Scripted_prompts prompts;
  Fixed_clock clock{{2024, 5, 6, 7, 8, 9}};
  core::Settings settings;
  std::string program = platform::join_path(folder.text(), "program");
  std::string target = platform::join_path(folder.text(), "target");
  std::string base = platform::join_path(target, "a");

  Exchange_place() {
    files.make_folder(program);
    files.make_folder(target);
    settings.program_path = program;
    settings.project_path = folder.text();
    put_program("def.dbf", "the template, as it stands");
  }
  void put_program(const std::string& name, const std::string& bytes) {
    files.write_whole(platform::join_path(program, name), bytes);
  }
  void list(const std::string& text) { put_program("TMP.TMP", text); }
  std::string tmp() const { return platform::join_path(program, "TMP.TMP"); }
  std::string made(const std::string& name) { return files.read_bytes(platform::join_path(target, name)); }
  std::vector<std::string> names() { return files.list(target, "*"); }
};

// A number at an offset, put together byte by byte.
inline std::uint64_t little(const std::string& bytes, std::size_t at, int count) {
  std::uint64_t value = 0;
  for (int i = count; i-- > 0;) value = value << 8 | static_cast<unsigned char>(bytes.at(at + std::size_t(i)));
  return value;
}
inline std::uint32_t big_32(const std::string& bytes, std::size_t at) {
  std::uint32_t value = 0;
  for (std::size_t i = 0; i < 4; ++i) value = value << 8 | static_cast<unsigned char>(bytes.at(at + i));
  return value;
}
inline double real(const std::string& bytes, std::size_t at) {
  return std::bit_cast<double>(little(bytes, at, 8));
}

// What a reader that walks the .shp record by record finds in its first record.
struct Read_shape {
  std::uint64_t kind = 0;
  double box[4] = {};
  std::vector<drawing::Point> points;
};

inline Read_shape read_shp(const std::string& shp) {
  Read_shape shape;
  shape.kind = little(shp, 108, 4);
  if (big_32(shp, 0) != 9994 || little(shp, 28, 4) != 1000 || little(shp, 32, 4) != shape.kind) return {};
  for (std::size_t i = 0; i < 4; ++i) shape.box[i] = real(shp, 36 + 8 * i);
  if (shape.kind == 1) {
    shape.points.push_back({real(shp, 112), real(shp, 120)});
    return shape;
  }
  const std::uint64_t parts = little(shp, 144, 4), count = little(shp, 148, 4);
  if (parts != 1 || little(shp, 152, 4) != 0 || big_32(shp, 104) * 2 != 48 + 16 * count) return {};
  for (std::size_t i = 0; i < count; ++i) shape.points.push_back({real(shp, 156 + 16 * i), real(shp, 164 + 16 * i)});
  return shape;
}

}  // namespace support
