#include "make_sample/folders.h"

#include <gtest/gtest.h>

#include <QImage>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>

#include "core/settei.h"
#include "exchange/shape_export.h"
#include "geodesy/datum.h"
#include "make_sample/place.h"
#include "maps/boundaries.h"
#include "maps/catalogue.h"
#include "maps/corner_text.h"
#include "maps/frame_file.h"
#include "maps/mosaic.h"
#include "support/scripted_prompts.h"
#include "support/temporary_folder.h"

namespace {

namespace fs = std::filesystem;

// The machine's files, with a list of what was written.
class Noting_files : public platform::Disk_files {
 public:
  std::vector<std::string> written;
  void write_whole(const std::string& path, std::string_view bytes) override {
    written.push_back(path);
    Disk_files::write_whole(path, bytes);
  }
};

std::map<std::string, std::string> contents(const fs::path& folder) {
  std::map<std::string, std::string> all;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
    if (!entry.is_regular_file()) continue;
    std::ifstream file(entry.path(), std::ios::binary);
    all[fs::relative(entry.path(), folder).string()] = {std::istreambuf_iterator<char>(file), {}};
  }
  return all;
}

sample::Making small_sample(const fs::path& target) {
  sample::Making making;
  making.target = target.string();
  making.sheet_width = 600;
  return making;
}

// One small sample for all tests, gone at the end.
struct Made {
  support::Temporary_folder folder;
  fs::path target = folder.path() / "sample";
  Noting_files files;
  std::vector<std::pair<int, int>> progress;
  Made() {
    sample::Making making = small_sample(target);
    making.progress = [this](int made, int of) { progress.emplace_back(made, of); };
    sample::make_folders(files, making);
  }
  std::string program() const { return (target / "program").string(); }
};

Made& made() {
  static Made sample;
  return sample;
}

// Mean difference of two columns of pixels, over the three colour parts.
double difference(const QImage& left, int left_column, const QImage& right, int right_column) {
  double sum = 0;
  for (int row = 0; row < left.height(); ++row) {
    const QRgb a = left.pixel(left_column, row), b = right.pixel(right_column, row);
    sum += std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) + std::abs(qBlue(a) - qBlue(b));
  }
  return sum / left.height() / 3;
}

TEST(Make_sample, LeavesAFolderAloneThatItDidNotMake) {
  support::Temporary_folder folder;
  platform::Disk_files files;
  const fs::path target = fs::path(folder.path()) / "mine";
  EXPECT_TRUE(sample::may_write(files, target.string()));
  fs::create_directory(target);
  EXPECT_FALSE(sample::may_write(files, target.string()));
}

TEST(Make_sample, WritesTheSettingsLast) {
  ASSERT_FALSE(made().files.written.empty());
  EXPECT_EQ(made().files.written.back(), platform::join_path(made().program(), "settei.ini"));
}

TEST(Make_sample, TellsHowManyOfItsPicturesAreMade) {
  // Four whole sheets, nine quarter sheets, one at 1:50,000, two free pictures.
  ASSERT_EQ(made().progress.size(), 16u);
  for (int i = 0; i < 16; ++i) EXPECT_EQ(made().progress[static_cast<std::size_t>(i)], std::pair(i + 1, 16));
}

TEST(Make_sample, MakesTheFilesOfAnyProgramFolderAlone) {
  support::Temporary_folder folder;
  platform::Disk_files files;
  const fs::path target = fs::path(folder.path()) / "general";
  sample::make_general(files, target.string());
  const std::map<std::string, std::string> general = contents(target), whole = contents(made().target / "program");
  ASSERT_EQ(general.size(), 2u);
  for (const char* name : {"igrf10.coef", "def.dbf"}) EXPECT_EQ(general.at(name), whole.at(name)) << name;
}

TEST(Make_sample, WritesTheSameBytesEachTime) {
  const auto first = contents(made().target);
  EXPECT_GE(first.size(), 30u);
  EXPECT_TRUE(sample::may_write(made().files, made().target.string()));
  sample::make_folders(made().files, small_sample(made().target));
  const auto second = contents(made().target);
  ASSERT_EQ(first.size(), second.size());
  for (const auto& [name, bytes] : first) EXPECT_TRUE(bytes == second.at(name)) << name;
}

TEST(Make_sample, LetsEachSheetGoOnInItsNeighbour) {
  const auto sheet = [&](const char* stem) {
    return QImage(QString::fromStdString((made().target / "program" / "map" / stem).string() + ".bmp"));
  };
  for (const auto& [west, east] : {std::pair{"533856", "533857"}, std::pair{"53385600", "53385605"}}) {
    const QImage left = sheet(west), right = sheet(east);
    ASSERT_EQ(left.format(), QImage::Format_Indexed8);
    ASSERT_LE(left.colorCount(), 256);
    const int last = left.width() - 1;
    double inside = 0;
    for (int i = 1; i <= 40; ++i) inside += difference(left, last - i, left, last - i + 1) / 40;
    EXPECT_LT(difference(left, last, right, 0), 1.15 * inside) << west;
    EXPECT_GT(difference(left, last, right, 60), 1.3 * inside) << west;  // the measure can tell
  }
}

// The files as the program itself reads them.

TEST(Make_sample, GivesItsFoldersToTheSettings) {
  core::Settings settings;
  settings.program_path = made().program();
  core::Settings_boxes boxes = core::settei_defaults(settings);
  support::Scripted_prompts prompts;
  ASSERT_TRUE(core::settei_r(settings, boxes, made().files, prompts));
  EXPECT_TRUE(prompts.shown.empty());
  EXPECT_EQ(boxes.Dir4, (made().target / "project").string());
  EXPECT_EQ(settings.registry_name, "観測点.csv");
  EXPECT_EQ(settings.registry_count, 1);
  EXPECT_EQ(settings.datum_mode, core::tokyo_datum);
}

TEST(Make_sample, NamesItsSheetsAndTheirCorners) {
  maps::Catalogue catalogue;
  std::string language;
  maps::zumei_read(made().files, catalogue, made().program(), maps::folder_25000, core::tokyo_datum, language);
  EXPECT_EQ(language, "Japanese");
  EXPECT_EQ(catalogue.sheet_count, 4);
  EXPECT_EQ(maps::chikeizu_name_get(catalogue, "533847.bmp", language).display, "瀬見川");
  EXPECT_EQ(maps::chikeizu_name_get(catalogue, "53385605.bmp", language).display, "霧沢南東部");
  const maps::Corner_texts corners = maps::catalogue_corners(catalogue.rows[maps::catalogue_row(catalogue, "533856")]);
  EXPECT_EQ(corners.lat_a, "N355000.0");
  EXPECT_EQ(corners.lon_a, "E1384500.0");
  EXPECT_EQ(corners.lat_b, "N354500.0");
  EXPECT_EQ(corners.lon_b, "E1385230.0");
}

// The datum lies some 11.6 seconds further north and 11.7 further west there.
TEST(Make_sample, GivesTheCornersOnBothDatums) {
  maps::Catalogue tokyo, wgs84;
  std::string language;
  maps::zumei_read(made().files, tokyo, made().program(), maps::folder_25000, core::tokyo_datum, language);
  maps::zumei_read(made().files, wgs84, made().program(), maps::folder_25000, core::wgs_84, language);
  ASSERT_EQ(wgs84.sheet_count, 4);
  for (int row = 1; row <= 4; ++row) {
    const maps::Corner_seconds on_tokyo = maps::corner_seconds(maps::catalogue_corners(tokyo.rows[row]));
    const maps::Corner_seconds on_wgs84 = maps::corner_seconds(maps::catalogue_corners(wgs84.rows[row]));
    EXPECT_NEAR(on_wgs84.lat_a - on_tokyo.lat_a, 11.6, 0.3) << row;
    EXPECT_NEAR(on_wgs84.lon_a - on_tokyo.lon_a, -11.7, 0.4) << row;
    EXPECT_NEAR(on_wgs84.lat_b - on_tokyo.lat_b, 11.6, 0.3) << row;
    EXPECT_NEAR(on_wgs84.lon_b - on_tokyo.lon_b, -11.7, 0.4) << row;
  }
}

TEST(Make_sample, HasASheetOfTheFiftyThousandthsWithItsRowAndFrame) {
  maps::Catalogue catalogue;
  std::string language;
  maps::zumei_read(made().files, catalogue, made().program(), maps::folder_50000, core::tokyo_datum, language);
  ASSERT_EQ(catalogue.sheet_count, 1);
  const maps::Sheet_row& row = catalogue.rows[1];
  EXPECT_EQ(row.code, "NI54319");
  const std::string folder = platform::join_path(made().program(), "map50000");
  EXPECT_GT(made().files.length(platform::join_path(folder, "NI54319.bmp")), 0);
  maps::Corner_texts frame;
  ASSERT_TRUE(maps::frame_read(made().files, platform::join_path(folder, "NI54319.set"), frame));
  const maps::Corner_seconds corners = maps::corner_seconds(frame);
  const auto seconds = [](const maps::Dms& at) { return at.degrees * 3600 + at.minutes * 60 + at.seconds; };
  EXPECT_DOUBLE_EQ(seconds(row.lat_a), corners.lat_a);
  EXPECT_DOUBLE_EQ(seconds(row.lon_a), corners.lon_a);
  EXPECT_DOUBLE_EQ(seconds(row.lat_b), corners.lat_b);
  EXPECT_DOUBLE_EQ(seconds(row.lon_b), corners.lon_b);
  EXPECT_DOUBLE_EQ(corners.lat_a, 35 * 3600 + 50 * 60);  // the north edge of 533856
}

TEST(Make_sample, HasAPictureForEverySlotOfAMosaic) {
  maps::Catalogue catalogue;
  std::string language;
  maps::zumei_read(made().files, catalogue, made().program(), maps::folder_25000, core::tokyo_datum, language);
  const std::string folder = platform::join_path(made().program(), "map");
  const auto present = [&](const char* stem) {
    int count = 0;
    for (const std::string& name : maps::tile_names(catalogue, stem, maps::folder_25000))
      count += !name.empty() && made().files.length(platform::join_path(folder, name)) > 0;
    return count;
  };
  EXPECT_EQ(present(sample::first_whole_sheet), 4);
  EXPECT_EQ(present(sample::first_quarter_sheet), 9);
}

TEST(Make_sample, WritesFramesOfBothLayouts) {
  maps::Corner_texts numbers, letters;
  const std::string folder = platform::join_path(made().program(), "map");
  ASSERT_TRUE(maps::frame_read(made().files, platform::join_path(folder, "瀬見川地質図.set"), numbers));
  EXPECT_EQ(numbers.lon_a, "E1384600.0");
  EXPECT_EQ(numbers.lat_a, "N355000.0");
  EXPECT_EQ(numbers.lon_b, "E1385900.0");
  EXPECT_EQ(numbers.lat_b, "N354100.0");
  ASSERT_TRUE(maps::frame_read(made().files, platform::join_path(folder, "keisharyou.set"), letters));
  EXPECT_EQ(letters.lon_a, "E1385100.0");
  EXPECT_EQ(letters.lat_a, "N354800.0");
  EXPECT_EQ(letters.lon_b, "E1385700.0");
  EXPECT_EQ(letters.lat_b, "N354400.0");
}

TEST(Make_sample, DrawsTwoMunicipalities) {
  maps::Boundaries boundaries;
  maps::gyousei_read(made().files, made().program(), boundaries);
  ASSERT_EQ(boundaries.lines.size(), 2u);
  for (const maps::Boundary& line : boundaries.lines) {
    EXPECT_GT(line.size(), 100u);
    EXPECT_EQ(line.front(), line.back());
    for (const maps::Boundary_point& point : line) {
      EXPECT_NEAR(point.x, 138.875, 0.14);
      EXPECT_NEAR(point.y, 35.75, 0.1);
    }
  }
}

TEST(Make_sample, ShiftsEverySheetByItsOwnTable) {
  geodesy::Shift_table table;
  EXPECT_EQ(geodesy::load_par(made().files, platform::join_path(made().program(), "TKY2JGD.par"), table), "Ver.S.1.0");
  EXPECT_EQ(table.count, 41 * 41);
  // Inside a cell the table is bilinear and the shift itself is not quite.
  for (double latitude = 35.6701; latitude < 35.84; latitude += 0.011)
    for (double longitude = 138.7501; longitude < 139; longitude += 0.013) {
      const geodesy::Shift read = geodesy::mesh_shift(table, latitude, longitude);
      const sample::Position shift = sample::datum_shift_seconds({latitude, longitude});
      ASSERT_NEAR(read.dB, shift.latitude, 3e-4);
      ASSERT_NEAR(read.dL, shift.longitude, 3e-4);
    }
}

// A dBASE III table: number of records at 4, length of the header at 8 and of a record at 10, the column's name at 32,
// its type at 43 and width at 48; the record; 1A.
TEST(Make_sample, HasATableOfAttributesForShapefiles) {
  const std::string table = made().files.read_bytes(platform::join_path(made().program(), "def.dbf"));
  ASSERT_EQ(table.size(), 65u + 255 + 1);
  EXPECT_EQ(table.substr(0, 12), std::string("\x03\x6C\x06\x05\x01\0\0\0\x41\0\xFF\0", 12));
  EXPECT_EQ(table.substr(32, 12), std::string("NAME\0\0\0\0\0\0\0C", 12));
  EXPECT_EQ(table[48], '\xFE');
  EXPECT_EQ(table.substr(64), "\x0D" + std::string(255, ' ') + "\x1A");
}

TEST(Make_sample, LetsAShapefileBeMadeInItsProgramFolder) {
  const support::Temporary_folder target;
  const std::string list = target.text() + "/list.txt", base = target.text() + "/point";
  made().files.write_whole(list, "P,10,20\r\n");
  ASSERT_TRUE(exchange::shape_convert(made().files, made().program(), list, base));
  EXPECT_EQ(made().files.length(base + ".shp"), 128);
  EXPECT_EQ(made().files.read_bytes(base + ".dbf"),
            made().files.read_bytes(platform::join_path(made().program(), "def.dbf")));
}

}  // namespace
