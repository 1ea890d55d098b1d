#include "exchange/shape_export.h"

#include <gmock/gmock.h>

#include "exchange/exchange_place.h"
#include "exchange/shapefile.h"
#include "platform/failures.h"
#include "support/fault_files.h"
#include "support/golden.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

struct Shape_export : testing::Test {
  support::Exchange_place place;
  support::Fault_files faults{place.files};
  exchange::Shape_boxes boxes{"", place.target, "a", false};

  bool convert() { return exchange::shape_convert(faults, place.program, place.tmp(), place.base); }
  bool ok() { return exchange::frm_Shape_ok(place.settings, boxes, faults, place.prompts, place.clock); }
  std::string shape_set() {
    const std::string path = platform::join_path(place.program, "shape.set");
    return place.files.length(path) == 0 ? "(none)" : place.files.read_bytes(path);
  }
  // The old set that a failing save must not harm.
  void old_set() {
    for (const char* ending : {".shp", ".shx", ".dbf"})
      place.files.write_whole(place.base + ending, std::string("old") + ending);
  }
};

// The conversion

TEST_F(Shape_export, WritesTheThreeFilesOfAShape) {
  place.list("S,0,0,10,0,10,10\r\n");
  EXPECT_TRUE(convert());
  EXPECT_THAT(place.names(), ElementsAre("a.dbf", "a.shp", "a.shx"));
  EXPECT_TRUE(support::same_as_golden(place.made("a.shp"), "exchange/polygon.shp"));
  EXPECT_TRUE(support::same_as_golden(place.made("a.shx"), "exchange/polygon.shx"));
  EXPECT_EQ(place.made("a.dbf"), "the template, as it stands");
}

TEST_F(Shape_export, LeavesTheLastOfSeveralShapesAndTheTailOfALongerOne) {
  place.list("L,1.5,-2.25,3,4,-5,6,7,8.125\r\nP,10,20\r\n");
  EXPECT_TRUE(convert());
  EXPECT_TRUE(support::same_as_golden(place.made("a.shp"), "exchange/point_over_line.shp"));
  EXPECT_TRUE(support::same_as_golden(place.made("a.shx"), "exchange/point_over_line.shx"));
}

TEST_F(Shape_export, LeavesTheTailOfALongerShapeOfAnEarlierRun) {
  place.list("L,1.5,-2.25,3,4,-5,6,7,8.125\r\n");
  convert();
  place.list("P,10,20\r\n");
  convert();
  EXPECT_TRUE(support::same_as_golden(place.made("a.shp"), "exchange/point_over_line.shp"));
}

TEST_F(Shape_export, WritesNothingForAListWithoutAShape) {
  place.list("X,1,2\r\n");
  EXPECT_FALSE(convert());
  EXPECT_THAT(place.names(), ElementsAre());
}

TEST_F(Shape_export, WritesNothingWhenAnyLineOfTheListIsBroken) {
  place.list("P,1,2\r\nP,1,x\r\n");
  EXPECT_THROW(convert(), platform::Type_failure);
  EXPECT_THAT(place.names(), ElementsAre());
}

TEST_F(Shape_export, FailsForAMissingListAndWritesNothing) {
  EXPECT_THROW(convert(), platform::File_failure);
  EXPECT_THAT(place.names(), ElementsAre());
}

TEST_F(Shape_export, FailsForAMissingTemplateAndRemovesNothing) {
  place.files.remove(platform::join_path(place.program, "def.dbf"));
  place.list("P,10,20\r\n");
  EXPECT_THROW(convert(), platform::File_failure);
  EXPECT_THAT(place.names(), ElementsAre("a.shp", "a.shx"));
  EXPECT_TRUE(support::same_as_golden(place.made("a.shp"), "exchange/point.shp"));
}

TEST_F(Shape_export, LeavesTheOldSetWholeWhenTheFirstOrSecondFileFails) {
  place.list("P,10,20\r\n");
  for (int failing = 1; failing <= 2; ++failing) {
    old_set();
    faults.failing_write = failing;
    EXPECT_THROW(convert(), platform::File_failure);
    for (const char* ending : {".shp", ".shx", ".dbf"})
      EXPECT_EQ(place.made(std::string("a") + ending), std::string("old") + ending) << failing;
  }
}

TEST_F(Shape_export, RemovesNothingOfANewSetWhenTheSecondFileFails) {
  place.list("P,10,20\r\n");
  faults.failing_write = 2;
  EXPECT_THROW(convert(), platform::File_failure);
  EXPECT_THAT(place.names(), ElementsAre("a.shp"));
}

TEST_F(Shape_export, KeepsTheOldTableWhenTheTableFails) {
  place.list("P,10,20\r\n");
  old_set();
  faults.failing_write = 3;
  EXPECT_THROW(convert(), platform::File_failure);
  EXPECT_EQ(place.made("a.dbf"), "old.dbf");
  EXPECT_EQ(support::read_shp(place.made("a.shp")).points, std::vector<drawing::Point>({{10, 20}}));
}

TEST_F(Shape_export, WritesNothingOnAFullDisk) {
  place.list("P,10,20\r\n");
  faults.room = 100;
  EXPECT_THROW(convert(), platform::File_failure);
  EXPECT_THAT(place.names(), ElementsAre());
}

// shape.set

TEST_F(Shape_export, KeepsTheFolderAsOneLine) {
  exchange::shape_set_w(place.files, place.program, "C:\\GIS\\谷");
  EXPECT_TRUE(support::same_as_golden(shape_set(), "exchange/shape.set"));
  EXPECT_EQ(exchange::shape_set_r(place.files, place.program), "C:\\GIS\\谷");
  place.put_program("shape.set", "C:\\a, b\r\nmore\r\n");
  EXPECT_EQ(exchange::shape_set_r(place.files, place.program), "C:\\a, b");
}

TEST_F(Shape_export, PresetsTheFolderOfTheLastRun) {
  exchange::frm_Shape_load(place.settings, boxes, place.files);
  EXPECT_EQ(boxes.Dir1, place.settings.project_path);
  place.put_program("shape.set", place.target + "\r\n");
  exchange::frm_Shape_load(place.settings, boxes, place.files);
  EXPECT_EQ(boxes.Dir1, place.target);
  place.put_program("shape.set", place.target + "_gone\r\n");
  exchange::frm_Shape_load(place.settings, boxes, place.files);
  EXPECT_EQ(boxes.Dir1, place.settings.project_path);
}

TEST_F(Shape_export, KnowsTheDriveOfAFolder) {
  EXPECT_EQ(exchange::drive_of("c:\\gis"), "c:");
  EXPECT_EQ(exchange::drive_of("D:"), "D:");
  EXPECT_EQ(exchange::drive_of("/home/a"), "");
  EXPECT_EQ(exchange::drive_of(""), "");
}

// OK of frm_Shape

TEST_F(Shape_export, TellsTheBaseNameAndKeepsTheFolder) {
  place.list("P,10,20\r\n");
  boxes.Text1 = "  谷 ";
  for (const char* language : {"Japanese", "English"}) {
    place.prompts.shown.clear();
    place.prompts.use_language(language);
    EXPECT_TRUE(ok());
    EXPECT_THAT(place.prompts.shown, ElementsAre(place.target + "\\谷を作成しました。"));
  }
  EXPECT_THAT(place.names(), ElementsAre("谷.dbf", "谷.shp", "谷.shx"));
  EXPECT_EQ(exchange::shape_set_r(place.files, place.program), place.target);
}

TEST_F(Shape_export, DoesNothingForANameOfBlanksOrAnEmptyList) {
  place.list("P,10,20\r\n");
  for (const char* name : {"", "   "}) {
    boxes.Text1 = name;
    EXPECT_FALSE(ok());
  }
  boxes.Text1 = "a";
  place.list("");
  EXPECT_FALSE(ok());
  place.files.remove(place.tmp());
  EXPECT_FALSE(ok());
  EXPECT_THAT(place.prompts.shown, ElementsAre());
  EXPECT_THAT(place.names(), ElementsAre());
  EXPECT_EQ(shape_set(), "(none)");
}

TEST_F(Shape_export, RefusesAnOddNameAFolderThatIsGoneAndAListWithoutAShapeInBothLanguages) {
  const auto refused = [this](const char* japanese, const char* english) {
    place.prompts.shown.clear();
    for (const char* language : {"Japanese", "English"}) {
      place.prompts.use_language(language);
      EXPECT_FALSE(ok());
    }
    EXPECT_THAT(place.prompts.shown, ElementsAre(HasSubstr(japanese), HasSubstr(english)));
  };
  place.list("P,10,20\r\n");
  for (const char* name : {"..\\b", "a/b", "con", "a?", ".."}) {
    boxes.Text1 = name;
    refused("使えない名前", "can't be used as a file name");
  }
  boxes.Text1 = "a";
  boxes.Dir1 = place.target + "\\gone";
  refused("フォルダがありません", "folder to save to isn't there");
  boxes.Dir1 = "";
  refused("フォルダがありません", "folder to save to isn't there");
  boxes.Dir1 = place.target;
  place.list("X,1\r\n");
  refused("図形がありません", "no shape");
  place.list("L,1,2\r\n");
  boxes.Check1 = true;
  refused("GIS用", "Nothing was written");
  EXPECT_THAT(place.names(), ElementsAre());
  EXPECT_EQ(shape_set(), "(none)");
}

TEST_F(Shape_export, KeepsNoFolderOfARunThatFailed) {
  place.list("P,10,x\r\n");
  EXPECT_THROW(ok(), platform::Type_failure);
  EXPECT_EQ(shape_set(), "(none)");
  EXPECT_THAT(place.prompts.shown, ElementsAre());
}

// The second set

TEST_F(Shape_export, WritesTheSecondSetOnlyWhenItIsTicked) {
  place.list("L,13950000,3550000,13925000,3625000\r\n");
  boxes.Check1 = true;
  EXPECT_TRUE(ok());
  EXPECT_THAT(place.names(),
              ElementsAre("a.dbf", "a.shp", "a.shx", "a_gis.cpg", "a_gis.dbf", "a_gis.prj", "a_gis.shp", "a_gis.shx"));
  EXPECT_TRUE(support::same_as_golden(place.made("a_gis.shp"), "exchange/degrees_gis.shp"));
  EXPECT_THAT(place.made("a_gis.prj"), HasSubstr("D_Tokyo"));
  place.settings.datum_mode = core::wgs_84;
  ok();
  EXPECT_THAT(place.made("a_gis.prj"), HasSubstr("D_WGS_1984"));
}

TEST_F(Shape_export, CutsAnOlderSecondSetAndTakesItsPrjAway) {
  place.list("L,13950000,3550000,13925000,3625000\r\n");
  boxes.Check1 = true;
  ok();
  place.list("P,10,20\r\n");
  ok();
  EXPECT_TRUE(support::same_as_golden(place.made("a_gis.shp"), "exchange/point_gis.shp"));
  EXPECT_THAT(place.names(),
              ElementsAre("a.dbf", "a.shp", "a.shx", "a_gis.cpg", "a_gis.dbf", "a_gis.shp", "a_gis.shx"));
}

TEST_F(Shape_export, LeavesNothingOfASecondSetThatFails) {
  place.list("L,13950000,3550000,13925000,3625000\r\n");
  boxes.Check1 = true;
  for (int failing = 4; failing <= 8; ++failing) {  // behind the three files of the first set
    faults.failing_write = failing;
    EXPECT_THROW(ok(), platform::File_failure) << failing;
    EXPECT_THAT(place.names(), ElementsAre("a.dbf", "a.shp", "a.shx")) << failing;
  }
}

// OK of frm_ShapeMake

struct Shape_make : Shape_export {
  exchange::Shape_make_boxes make{place.target, "list.v1.txt", false};
  bool make_ok() { return exchange::frm_ShapeMake_ok(place.settings, make, faults, place.prompts, place.clock); }
  void text(const std::string& name, const std::string& bytes) {
    place.files.write_whole(platform::join_path(place.target, name), bytes);
  }
};

TEST_F(Shape_make, TakesThePathUpToTheFirstPointAsBaseName) {
  text("list.v1.txt", "P,10,20\r\n");
  EXPECT_TRUE(make_ok());
  EXPECT_THAT(place.names(), ElementsAre("list.dbf", "list.shp", "list.shx", "list.v1.txt"));
  EXPECT_THAT(place.prompts.shown, ElementsAre(place.target + "\\listを作成しました。"));
  EXPECT_EQ(shape_set(), "(none)");
}

TEST_F(Shape_make, TakesAPointInAFolderForTheFirst) {
  place.files.make_folder(platform::join_path(place.target, "b.c"));
  text("b.c\\list.txt", "P,10,20\r\n");
  make.Dir1 = platform::join_path(place.target, "b.c");
  make.File1 = "list.txt";
  EXPECT_TRUE(make_ok());
  EXPECT_THAT(place.names(), ElementsAre("b.dbf", "b.shp", "b.shx"));
}

TEST_F(Shape_make, DoesNothingWithoutAPickedFileAndRefusesAPathWithoutAName) {
  make.File1 = "";
  EXPECT_FALSE(make_ok());
  EXPECT_THAT(place.prompts.shown, ElementsAre());
  text(".txt", "P,10,20\r\n");
  make.File1 = ".txt";
  EXPECT_FALSE(make_ok());
  EXPECT_THAT(place.prompts.shown, ElementsAre(HasSubstr("can't be used as a file name")));
}

TEST_F(Shape_make, WritesTheSecondSetBesideTheFirst) {
  text("list.v1.txt", "P,10,20\r\n");
  make.Check1 = true;
  EXPECT_TRUE(make_ok());
  EXPECT_TRUE(support::same_as_golden(place.made("list_gis.shp"), "exchange/point_gis.shp"));
}

}  // namespace
