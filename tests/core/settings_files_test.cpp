#include "core/settings_files.h"

#include <gmock/gmock.h>

#include "core/project_folders.h"
#include "support/settings_place.h"

namespace {

using support::Place;

std::string written(const Place& place, const std::string& name) {
  return support::bytes_of((place.program / name).string());
}

using One_line_reader = std::string (*)(platform::Files&, const std::string&);
using One_line_writer = void (*)(platform::Files&, const std::string&, const std::string&);

struct One_line_file {
  const char* name;
  const char* text;
  One_line_reader read;
  One_line_writer write;
};

constexpr One_line_file one_line_files[] = {
    {"dempath.dat", "C:\\DEM50\\データ", core::dempath_r, core::dempath_w},
    {"BoringOut.set", "C:\\柱状図", core::boring_out_r, core::boring_out_w},
    {"Rockview3d.set", "C:\\Rockview3D", core::rockview3d_r, core::rockview3d_w},
    {"setpath2.dat", "C:\\boring,old", core::setpath2_r, core::setpath2_w},
};

TEST(One_line_files, AreWrittenAndReadAsWholeLines) {
  for (const One_line_file& file : one_line_files) {
    Place place;
    EXPECT_EQ(file.read(place.files, place.program.string()), "") << file.name;
    file.write(place.files, place.program.string(), file.text);
    EXPECT_TRUE(support::same_as_golden(written(place, file.name), std::string("core/") + file.name));
    EXPECT_EQ(file.read(place.files, place.program.string()), file.text);
  }
}

TEST(One_line_files, AreFoundWithoutRegardToCase) {
  Place place;
  support::put(place.program / "ROCKVIEW3D.SET", "C:\\R\r\n");
  EXPECT_EQ(core::rockview3d_r(place.files, place.program.string()), "C:\\R");
}

TEST(Yoshiki, LiesInTheProject) {
  Place place;
  core::yoshiki_w(place.files, place.project.string(), "土質");
  EXPECT_TRUE(support::same_as_golden(support::bytes_of((place.project / "chisou_men" / "yoshiki.ini").string()),
                                      "core/yoshiki.ini"));
  EXPECT_EQ(core::yoshiki_r(place.files, place.project.string()), "土質");
  EXPECT_EQ(core::yoshiki_r(place.files, place.program.string()), "");
}

TEST(Pro_atlas, HasAClassOfItsOwnWhereTheFileNamesNone) {
  Place place;
  EXPECT_EQ(core::pro_atlas_class(place.files, place.program.string()), "ProAtlasSV.Map");
  support::put(place.program / "ProAtlas.ini", "\r\n");
  EXPECT_EQ(core::pro_atlas_class(place.files, place.program.string()), "ProAtlasSV.Map");
  support::put(place.program / "ProAtlas.ini", "Other.Map\r\n");
  EXPECT_EQ(core::pro_atlas_class(place.files, place.program.string()), "Other.Map");
}

TEST(Rockview_path, IsWrittenAndReadBack) {
  Place place;
  core::rockview_path_w(place.files, place.program.string(), {"c:", "c:\\model", "谷3d", 1, 0, "30"});
  EXPECT_TRUE(support::same_as_golden(written(place, "RockviewPath.dat"), "core/RockviewPath.dat"));
  core::Rockview_path job{"", "", "", 0, 1, "99"};
  core::rockview_path_r(place.files, place.program.string(), job);
  EXPECT_EQ(job.Dir9, "c:\\model");
  EXPECT_EQ(job.Text11, "谷3d");
  EXPECT_EQ(job.Check4, 1);
  EXPECT_EQ(job.Check11, 0);
  EXPECT_EQ(job.Text15, "30");
}

TEST(Rockview_path, AShortFileLeavesTheRest) {
  Place place;
  support::put(place.program / "RockviewPath.dat", "d:\r\nd:\\m\r\nname\r\n");
  core::Rockview_path job;
  job.Check4 = 1;
  core::rockview_path_r(place.files, place.program.string(), job);
  EXPECT_EQ(job.Text11, "name");
  EXPECT_EQ(job.Check4, 1);
  EXPECT_EQ(job.Text15, "30");
}

TEST(Rockview_path, EndsItsFieldsAtACommaAndIsLeftByAMissingFile) {
  Place place;
  core::Rockview_path job{"d:", "d:\\m", "name", 1, 1, "50"};
  core::rockview_path_r(place.files, place.program.string(), job);
  EXPECT_EQ(job.Text11, "name");
  EXPECT_EQ(job.Text15, "50");
  support::put(place.program / "RockviewPath.dat", "e:,x\r\ne:\\a,b\r\n\"c,d\"\r\n 1 ,0\r\n0\r\n25,5\r\n");
  core::rockview_path_r(place.files, place.program.string(), job);
  EXPECT_EQ(job.Drive9, "e:");
  EXPECT_EQ(job.Dir9, "e:\\a");
  EXPECT_EQ(job.Text11, "c,d");
  EXPECT_EQ(job.Check4, 1);
  EXPECT_EQ(job.Check11, 0);
  EXPECT_EQ(job.Text15, "25");
}

TEST(Danmen_line, IsWrittenWithNumbersBetweenBlanks) {
  Place place;
  core::danmen_line_w(place.files, place.program.string(), {1250.5, 3300.25, 1875, -12.5});
  EXPECT_TRUE(support::same_as_golden(written(place, "danmen.dat"), "core/danmen.dat"));
  core::Section_line line;
  ASSERT_TRUE(core::danmen_line_r(place.files, place.program.string(), line));
  EXPECT_EQ(line.x1, 1250.5);
  EXPECT_EQ(line.y1, 3300.25);
  EXPECT_EQ(line.x2, 1875);
  EXPECT_EQ(line.y2, -12.5);
}

TEST(Danmen_line, AShortFileLeavesTheLine) {
  Place place;
  core::Section_line line{1, 2, 3, 4};
  EXPECT_FALSE(core::danmen_line_r(place.files, place.program.string(), line));
  support::put(place.program / "danmen.dat", "A-A',2\r\n5,6\r\n");
  EXPECT_FALSE(core::danmen_line_r(place.files, place.program.string(), line));
  EXPECT_EQ(line.x1, 1);
}

core::Rsport some_link() {
  return {"04",       "7",  "c:",       "c:\\gps",  "0612.csv", "c:", "c:\\写真",
          "p001.jpg", "d:", "d:\\gps2", "0612.nme", "-7.2",     1};
}

TEST(Rsport, IsWrittenAndReadBack) {
  Place place;
  core::rsport_w(place.files, place.program.string(), some_link());
  EXPECT_TRUE(support::same_as_golden(written(place, "RSPORT.dat"), "core/RSPORT.dat"));
  core::Rsport link;
  core::rsport_r(place.files, place.program.string(), link);
  EXPECT_EQ(link.Combo8, "04");
  EXPECT_EQ(link.Text15, "007");
  EXPECT_EQ(link.DirImage, "c:\\写真");
  EXPECT_EQ(link.Text1, "-7.2");
  EXPECT_EQ(link.Check3, 1);
}

TEST(Rsport, TheLiveDialogWritesTwoLinesOnly) {
  Place place;
  core::Rsport link = some_link();
  link.Text15 = "1234";
  core::rsport_w2(place.files, place.program.string(), link);
  EXPECT_TRUE(support::same_as_golden(written(place, "RSPORT.dat"), "core/RSPORT2.dat"));
  core::Rsport read = some_link();
  core::rsport_r(place.files, place.program.string(), read);
  EXPECT_EQ(read.Text15, "234");
  EXPECT_EQ(read.FileGPS2, "0612.nme") << "lines that the file doesn't have leave their boxes";
}

TEST(Rsport, AnEmptyNumberIsThreeNoughts) {
  Place place;
  core::rsport_w2(place.files, place.program.string(), {});
  EXPECT_EQ(written(place, "RSPORT.dat"), "\r\n000\r\n");
}

TEST(Psettei, IsWrittenAndReadBackWhereTheFoldersExist) {
  Place place;
  core::psettei_w(place.files, place.program.string(), {"c:\\写真\\新", "c:\\写真\\保存"});
  EXPECT_TRUE(support::same_as_golden(written(place, "psettei.dat"), "core/psettei.dat"));
  core::psettei_w(place.files, place.program.string(), {"Z:\\gone", place.project.string()});
  core::Picture_folders folders{"before", "before"};
  core::psettei_r(place.files, place.program.string(), folders);
  EXPECT_EQ(folders.Dir1, "before");
  EXPECT_EQ(folders.Dir2, place.project.string());
}

TEST(Psettei, EndsAFolderAtItsComma) {
  Place place;
  std::filesystem::create_directories(place.folder.path() / "new");
  const std::string cut = (place.folder.path() / "new").string();
  support::put(place.program / "psettei.dat", cut + ",2\r\n");
  core::Picture_folders folders{"before", "before"};
  core::psettei_r(place.files, place.program.string(), folders);
  EXPECT_EQ(folders.Dir1, cut);
  EXPECT_EQ(folders.Dir2, "before");
}

core::Zahyo some_range() {
  return {120.5, 80, 900, 640, {139, 30, 12.25}, {35, 20, 0.5}, {139, 31, 0}, {35, 19, 45.125}, "C:\\DEM50", 1};
}

TEST(Zahyo, HasFortyLinesAndReadsBack) {
  Place place;
  core::zahyo_w(place.files, place.project.string(), some_range());
  const std::string bytes = support::bytes_of((place.project / "chisou_men" / "zahyo.dat").string());
  EXPECT_TRUE(support::same_as_golden(bytes, "core/zahyo.dat"));
  EXPECT_EQ(core::zahyo_lines_r(place.files, place.project.string()).size(), 40u);
  core::Zahyo range;
  ASSERT_TRUE(core::zahyo_r(place.files, place.project.string(), range));
  EXPECT_EQ(range.left, 120.5);
  EXPECT_EQ(range.bottom, 640);
  EXPECT_EQ(range.left_lon.degrees, 139);
  EXPECT_EQ(range.top_lat.minutes, 20);
  EXPECT_EQ(range.bottom_lat.seconds, 45.125);
  EXPECT_EQ(range.dem_folder, "C:\\DEM50");
  EXPECT_EQ(range.datum_mode, 1);
}

TEST(Zahyo, AReaderKeepsAHundredLinesAndLeavesTheRangeBesideAShortFile) {
  Place place;
  core::Zahyo range = some_range();
  EXPECT_FALSE(core::zahyo_r(place.files, place.project.string(), range));
  EXPECT_EQ(range.left, 120.5);
  std::string many;
  for (int i = 0; i < 150; ++i) many += "1e300\r\n";
  support::put(place.project / "chisou_men" / "zahyo.dat", many);
  EXPECT_EQ(core::zahyo_lines_r(place.files, place.project.string()).size(), core::zahyo_limit);
  ASSERT_TRUE(core::zahyo_r(place.files, place.project.string(), range));
  EXPECT_EQ(range.left_lon.degrees, 1000000000);
}

TEST(Project_folders, AreMadeAndMayExist) {
  Place place;
  core::program_folders_make(place.files, place.program.string());
  core::program_folders_make(place.files, place.program.string());
  for (const char* name : {"map", "map50000", "mps", "data", "pda_chizu", "dummy"})
    EXPECT_TRUE(std::filesystem::is_directory(place.program / name)) << name;
  core::project_folders_make(place.files, place.project.string());
  EXPECT_TRUE(std::filesystem::is_directory(place.project / "data"));
  EXPECT_TRUE(std::filesystem::is_directory(place.project / "chisou_men"));
}

TEST(Project_folders, AFileInTheWayOfOneLeavesTheOthers) {
  Place place;
  std::filesystem::remove_all(place.program / "map");
  support::put(place.program / "map", "a file");
  core::program_folders_make(place.files, place.program.string());
  EXPECT_TRUE(std::filesystem::is_regular_file(place.program / "map"));
  EXPECT_TRUE(std::filesystem::is_directory(place.program / "pda_chizu"));
}

TEST(Project_folders, ACutMapMarksItsProject) {
  Place place;
  EXPECT_FALSE(core::is_cut_map_project(place.files, place.project.string()));
  support::put(place.project / "chisou_men" / "GAZOU_01.BMP", "");
  EXPECT_FALSE(core::is_cut_map_project(place.files, place.project.string()));
  support::put(place.project / "chisou_men" / "GAZOU_01.BMP", "BM");
  EXPECT_TRUE(core::is_cut_map_project(place.files, place.project.string()));
}

}  // namespace
