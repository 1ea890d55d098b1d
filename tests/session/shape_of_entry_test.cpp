#include "core/session/shape_of_entry.h"

#include <gmock/gmock.h>

#include "exchange/shape_export.h"
#include "observations/vertices.h"
#include "session/session_fixture.h"

namespace {

using exchange::Shape;
using exchange::Shape_kind;

struct Shape_of_entry : support::Session_fixture {
  // A new record in the open panel, at (13952431.25, 3561208.5), with a mark of this name.
  void open_panel(const std::string& mark) {
    session.registry.N = 1;
    session.registry.rows[1] = {};
    session.entry.open = session.entry.unsaved = true;
    session.entry.touroku = 1;
    session.entry.boxes.Combo1 = mark;
    observations::position_to_boxes(session.entry.boxes, {13952431.25, 3561208.5});
  }
  // Drawn and taken into the record, but not saved.
  void draw(const std::vector<geodesy::Point>& vertices) {
    observations::Command6(session.flags, session.line);
    for (const geodesy::Point& vertex : vertices)
      observations::line_vertex(session.flags, session.line, vertex, false, prompts);
    ASSERT_TRUE(observations::line_store(session.flags, session.line, session.registry, session.entry.touroku).stored);
  }
  std::string written() {
    session.settings.program_path = program();
    session::Command7(session, ports);
    return files.read_bytes(program() + "/TMP.TMP");
  }
};

TEST_F(Shape_of_entry, IsAPolygonOfTheVerticesThatAreNotSavedYet) {
  for (const char* mark : {"範囲", "Area"}) {
    open_panel(mark);
    draw({{13952431.25, 3561208.5}, {13952600, 3561300.75}, {13952550, 3561150}});
    EXPECT_EQ(written(), "S,13952431.25,3561208.5,13952600.0,3561300.75,13952550.0,3561150.0\r\n") << mark;
  }
}

TEST_F(Shape_of_entry, IsThePointOfTheBoxesForEveryOtherMark) {
  for (const char* mark : {"○", "線", "Line", "文字", "囲み", ""}) {
    open_panel(mark);
    draw({{1, 2}, {3, 4}});
    EXPECT_EQ(written(), "P,13952431.25,3561208.5\r\n") << mark;
  }
}

TEST_F(Shape_of_entry, FollowsTheBoxesAndNotTheStoredRecord) {
  open_panel("○");
  session.registry.rows[1].mark = "範囲";
  session.entry.boxes.Text14[observations::box_X] = "12.5";
  session.entry.boxes.Text14[observations::box_Y] = "no number";
  EXPECT_EQ(written(), "P,12.5,0.0\r\n");
}

TEST_F(Shape_of_entry, HasNoPointsForAnEnclosureThatIsNotDrawnOrNotThere) {
  open_panel("範囲");
  EXPECT_EQ(written(), "S\r\n");
  for (const int gone : {0, 2, -1}) {
    session.entry.touroku = gone;
    EXPECT_EQ(session::shape_of_entry(session.entry, session.registry), (Shape{Shape_kind::polygon, {}})) << gone;
  }
}

TEST_F(Shape_of_entry, TakesNoVerticesOfAnotherRecordInItsRow) {
  const Shape nothing{Shape_kind::polygon, {}}, drawn{Shape_kind::polygon, {{1, 2}, {3, 4}}};
  const auto shape = [&] { return session::shape_of_entry(session.entry, session.registry); };
  open_panel("範囲");
  draw({{1, 2}, {3, 4}});
  EXPECT_EQ(shape(), drawn);
  ++session.registry.reads;  // a new record's row is gone with the next reading
  EXPECT_EQ(shape(), nothing);
  session.entry.unsaved = false;
  session.entry.stored_number = session.registry.rows[1].touroku_no = "081115-001";
  EXPECT_EQ(shape(), drawn);
  session.registry.rows[1].touroku_no = "081115-002";
  EXPECT_EQ(shape(), nothing);
}

TEST_F(Shape_of_entry, FailsWhereTheListCantBeWritten) {
  open_panel("○");
  session.settings.program_path = program() + "/not there";
  EXPECT_THROW(session::Command7(session, ports), platform::File_failure);
}

// The whole road: the list of the panel becomes a set of files.
TEST_F(Shape_of_entry, BecomesAShapefile) {
  open_panel("範囲");
  draw({{0, 0}, {10, 0}, {10, 10}});
  written();
  files.write_whole(program() + "/def.dbf", "table");
  ASSERT_TRUE(exchange::shape_convert(files, program(), exchange::tmp_path(program()), project() + "/area"));
  const std::string shp = files.read_bytes(project() + "/area.shp");
  ASSERT_EQ(shp.size(), 204u);  // 100 + 56 + 3 x 16
  EXPECT_EQ(shp[108], 5);
  EXPECT_EQ(shp[148], 3);
  EXPECT_EQ(files.read_bytes(project() + "/area.dbf"), "table");
}

}  // namespace
