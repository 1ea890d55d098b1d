#include "maps/mosaic.h"

#include <algorithm>
#include <deque>
#include <future>
#include <new>
#include <optional>
#include <thread>
#include <utility>

#include "geodesy/mesh_code.h"
#include "maps/corner_text.h"
#include "maps/frame_file.h"

namespace maps {
namespace {

// Extent of a sheet in seconds.
struct Sheet_extent {
  double lat = 0, lon = 0;
};
constexpr Sheet_extent whole_extent{300, 450};
constexpr Sheet_extent quarter_extent{150, 225};

Corner_texts quarter_corners(std::string_view stem) {
  const geodesy::Mesh_origin south_west = geodesy::mesh_code_origin(stem);
  return corner_texts_of_seconds(static_cast<float>(south_west.lat_seconds + quarter_extent.lat),
                                 static_cast<float>(south_west.lon_seconds), static_cast<float>(south_west.lat_seconds),
                                 static_cast<float>(south_west.lon_seconds + quarter_extent.lon));
}

geodesy::Half_code code_at(double lat_seconds, double lon_seconds) {
  const geodesy::Dms_pair at =
      geodesy::seconds_to_dms(static_cast<float>(lat_seconds), static_cast<float>(lon_seconds));
  return geodesy::mesh_code_half(at.lat_d, at.lat_m, at.lat_s, at.lon_d, at.lon_m, at.lon_s);
}

// The neighbours' names from the centre of the sheet, each displaced by whole sheets.
std::array<std::string, mosaic_slots> names_around(const Corner_texts& corners, Sheet_kind kind) {
  const bool whole = kind == Sheet_kind::whole;
  const Sheet_extent extent = whole ? whole_extent : quarter_extent;
  const Corner_seconds seconds = corner_seconds(corners);
  const double lat = (seconds.lat_a + seconds.lat_b) / 2, lon = (seconds.lon_a + seconds.lon_b) / 2;
  std::array<std::string, mosaic_slots> names;
  for (std::size_t slot = 1; slot < (whole ? 4U : 9U); ++slot) {
    const geodesy::Half_code code =
        code_at(lat - slot_places[slot].south * extent.lat, lon + slot_places[slot].east * extent.lon);
    names[slot] = (whole ? code.six_digits : code.code) + ".bmp";
  }
  return names;
}

Corner_texts coded_corners(const Catalogue& catalogue, std::string_view stem, Sheet_kind kind) {
  return kind == Sheet_kind::whole ? catalogue_corners(catalogue.rows[catalogue_row(catalogue, stem)])
                                   : quarter_corners(stem);
}

// A picture file on its way into a slot.
struct Tile_load {
  std::size_t slot = 0;
  Picture_origin origin;
};

struct Tile_result {
  drawing::Sheet_picture picture;
  platform::Picture_fault fault = platform::Picture_fault::none;
};

// Runs on a core of its own. The file's bytes are given up before the levels are made.
Tile_result decode_tile(platform::Pictures& pictures, std::string bytes) {
  Tile_result result;
  try {
    platform::Decoded_picture decoded = pictures.decode(bytes);
    result.fault = decoded.fault;
    std::string().swap(bytes);
    if (decoded.fault == platform::Picture_fault::none && decoded.picture.empty())
      result.fault = platform::Picture_fault::unreadable;
    if (result.fault == platform::Picture_fault::none)
      result.picture = drawing::make_sheet_picture(std::move(decoded.picture));
  } catch (const std::bad_alloc&) {
    result = {{}, platform::Picture_fault::too_large};
  }
  return result;
}

// A file longer than the largest picture in memory is not read to find that out; its headers and palette are allowed
// for.
constexpr std::int64_t largest_file_bytes = platform::largest_picture_bytes + (1 << 20);

std::optional<std::string> file_bytes(platform::Files& files, const std::string& path) {
  try {
    return files.read_bytes(path);
  } catch (const platform::File_failure&) {
    return std::nullopt;  // reported as a picture that can't be read
  } catch (const std::bad_alloc&) {
    return std::nullopt;
  }
}

// Moves the pictures that are still right into their new slots and frees the others; what is left to read is returned.
std::vector<Tile_load> place_known_pictures(Mosaic& mosaic, const std::array<Picture_origin, mosaic_slots>& wanted) {
  Mosaic old;
  std::swap(old.picture, mosaic.picture);
  std::swap(old.origin, mosaic.origin);
  const bool main_stays = wanted[0].length == 0;
  if (main_stays) {
    mosaic.picture[0] = std::move(old.picture[0]);
    mosaic.origin[0] = std::move(old.origin[0]);
  }
  std::vector<Tile_load> loads;
  for (std::size_t slot = 0; slot < mosaic_slots; ++slot) {
    if (wanted[slot].length == 0) continue;
    std::size_t from = 0;
    while (from < mosaic_slots && (old.picture[from].empty() || old.origin[from] != wanted[slot])) ++from;
    if (from == mosaic_slots) {
      loads.push_back({slot, wanted[slot]});
    } else {
      mosaic.picture[slot] = std::move(old.picture[from]);
      mosaic.origin[slot] = wanted[slot];
      mosaic.tile_state[slot] = slot > 0 ? 1 : 0;
    }
  }
  return loads;
}

void put_tile(Mosaic& mosaic, const Tile_load& load, Tile_result result, Load_report& report) {
  if (result.fault != platform::Picture_fault::none) {
    report.failures.push_back({mosaic.tile_name[load.slot], result.fault});
    return;
  }
  mosaic.picture[load.slot] = std::move(result.picture);
  mosaic.origin[load.slot] = load.origin;
  if (load.slot > 0) mosaic.tile_state[load.slot] = 1;
}

// Files are read on the calling thread and decoded on as many others as there are cores, so that no more files than
// cores lie in memory at once.
void load_tiles(platform::Files& files, platform::Pictures& pictures, const std::vector<Tile_load>& loads,
                Mosaic& mosaic, Load_report& report, const Load_progress& progress) {
  const std::size_t at_once = std::max(1U, std::thread::hardware_concurrency());
  std::deque<std::pair<const Tile_load*, std::future<Tile_result>>> running;
  int ready = 0;
  const auto finish_first = [&] {
    put_tile(mosaic, *running.front().first, running.front().second.get(), report);
    running.pop_front();
    if (progress) progress(++ready, static_cast<int>(loads.size()));
  };
  for (const Tile_load& load : loads) {
    if (running.size() == at_once) finish_first();
    if (load.origin.length > largest_file_bytes) {
      running.emplace_back(&load, std::async(std::launch::deferred, [] {
        return Tile_result{{}, platform::Picture_fault::too_large};
      }));
      continue;
    }
    std::optional<std::string> bytes = file_bytes(files, load.origin.path);
    running.emplace_back(&load, bytes
                                    ? std::async(std::launch::async, decode_tile, std::ref(pictures), std::move(*bytes))
                                    : std::async(std::launch::deferred, [] {
                                        return Tile_result{{}, platform::Picture_fault::unreadable};
                                      }));
  }
  while (!running.empty()) finish_first();
}

}  // namespace

std::string stem_of(std::string_view entry) {
  return std::string(entry.substr(0, entry.find('.')));
}

Sheet_kind sheet_kind(const Catalogue& catalogue, std::string_view stem, int option5) {
  if (option5 != folder_25000) return Sheet_kind::free;
  if (is_code(stem, 8)) return Sheet_kind::quarter;
  return is_code(stem, 6) && catalogue_row(catalogue, stem) > 0 ? Sheet_kind::whole : Sheet_kind::free;
}

std::array<std::string, mosaic_slots> tile_names(const Catalogue& catalogue, std::string_view stem, int option5) {
  std::array<std::string, mosaic_slots> names;
  const Sheet_kind kind = sheet_kind(catalogue, stem, option5);
  if (kind != Sheet_kind::free) {
    try {
      names = names_around(coded_corners(catalogue, stem, kind), kind);
    } catch (const platform::Division_failure&) {
      names = {};  // corners that no code can hold have no neighbours
    }
  }
  names[0] = std::string(stem) + ".bmp";
  return names;
}

bool sheet_corners(platform::Files& files, const Catalogue& catalogue, const Sheet_choice& choice,
                   Corner_texts& corners) {
  corners = {};
  const std::string stem = stem_of(choice.stem);
  const Sheet_kind kind = sheet_kind(catalogue, stem, choice.option5);
  if (kind == Sheet_kind::free) return frame_read(files, platform::join_path(choice.folder, stem + ".set"), corners);
  corners = coded_corners(catalogue, stem, kind);
  return true;
}

Load_report chizu_out(platform::Files& files, platform::Pictures& pictures, const Catalogue& catalogue,
                      const Sheet_choice& choice, Canvas& canvas, Mosaic& mosaic, const Load_progress& progress) {
  Load_report report;
  const std::string stem = stem_of(choice.stem);
  const Sheet_kind kind = sheet_kind(catalogue, stem, choice.option5);
  canvas.zoom_count = 1;
  canvas.label_scale = choice.label_size;
  canvas.view_x = canvas.view_y = 0;

  mosaic.columns = mosaic.rows = kind == Sheet_kind::quarter ? 3 : kind == Sheet_kind::whole ? 2 : 1;
  mosaic.tile_name = tile_names(catalogue, stem, choice.option5);
  mosaic.tile_state.fill(0);
  std::array<Picture_origin, mosaic_slots> wanted;
  for (std::size_t slot = 0; slot < mosaic_slots; ++slot) {
    if (mosaic.tile_name[slot].empty()) continue;
    const std::string path = platform::join_path(choice.folder, mosaic.tile_name[slot]);
    if (const std::int64_t length = files.length(path); length > 0)
      wanted[slot] = {path, files.time_stamp(path), length};
  }
  report.main_missing = wanted[0].length == 0;
  load_tiles(files, pictures, place_known_pictures(mosaic, wanted), mosaic, report, progress);

  Corner_texts corners;
  report.frame_missing = !sheet_corners(files, catalogue, choice, corners);
  zahyo_r3(canvas, corners);
  return report;
}

std::string failure_text(const Picture_failure& failure, bool japanese) {
  const bool large = failure.fault == platform::Picture_fault::too_large;
  if (japanese)
    return "「" + failure.file + "」は" + (large ? "大きすぎて読み込めません。" : "画像として読み込めません。");
  return failure.file + (large ? " is too large to be loaded." : " can't be read as a picture.");
}

}  // namespace maps
