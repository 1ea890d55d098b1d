#include "observations/vertices.h"

#include <gtest/gtest.h>

#include "platform/failures.h"
#include "support/scripted_prompts.h"

namespace {

using observations::Vertex_taken;

struct Line_vertices : testing::Test {
  core::Interaction flags;
  observations::Line_input line;
  observations::Registry registry;
  support::Scripted_prompts prompts;

  Line_vertices() { observations::Command6(flags, line); }
  Vertex_taken press(double x, double y, bool area) {
    return observations::line_vertex(flags, line, {x, y}, area, prompts);
  }
  std::vector<std::pair<double, double>> drawn() const {
    std::vector<std::pair<double, double>> points;
    for (const geodesy::Point& p : line.vertices) points.emplace_back(p.x, p.y);
    return points;
  }
  using Points = std::vector<std::pair<double, double>>;
};

TEST_F(Line_vertices, AreAddedOneByOne) {
  EXPECT_EQ(flags.line_mode, 1);
  EXPECT_EQ(press(1, 2, false), Vertex_taken::added);
  EXPECT_EQ(press(3, 4, false), Vertex_taken::added);
  EXPECT_EQ(flags.line_count, 2);
  EXPECT_EQ(drawn(), (Points{{1, 2}, {3, 4}}));
}

TEST_F(Line_vertices, CloseAnEnclosureAtTheFirstCrossing) {
  // A tail at (-4, 0), then a square whose last side crosses the first one at (4, 0).
  for (const auto& [x, y] : Points{{-4, 0}, {0, 0}, {10, 0}, {10, 10}, {4, 10}}) press(x, y, true);
  EXPECT_EQ(press(4, -5, true), Vertex_taken::closed);
  EXPECT_EQ(drawn(), (Points{{10, 0}, {10, 10}, {4, 10}, {4, 0}}));
  EXPECT_EQ(flags.line_count, 4);
}

TEST_F(Line_vertices, TakeTheEarliestOfTwoCrossedSegments) {
  // The new side from (5, 8) down crosses the side at y = 4 first, but the one at y = 0 was drawn earlier.
  for (const auto& [x, y] : Points{{0, 0}, {10, 0}, {10, 4}, {0, 4}, {0, 8}, {5, 8}}) press(x, y, true);
  EXPECT_EQ(press(5, -1, true), Vertex_taken::closed);
  EXPECT_EQ(drawn(), (Points{{10, 0}, {10, 4}, {0, 4}, {0, 8}, {5, 8}, {5, 0}}));
}

TEST_F(Line_vertices, GoOnThroughACrossingInAnOpenLine) {
  for (const auto& [x, y] : Points{{0, 0}, {10, 0}, {10, 10}, {4, 10}}) press(x, y, false);
  EXPECT_EQ(press(4, -5, false), Vertex_taken::added);
  EXPECT_EQ(line.vertices.size(), 5u);
}

TEST_F(Line_vertices, TouchAnEndWithoutClosing) {
  for (const auto& [x, y] : Points{{0, 0}, {10, 0}, {10, 10}}) press(x, y, true);
  EXPECT_EQ(press(0, 0, true), Vertex_taken::added) << "ends on the first vertex";
  EXPECT_EQ(press(10, 0, true), Vertex_taken::added) << "runs back along an earlier side";
}

TEST_F(Line_vertices, EndAt148) {
  for (int i = 0; i < 148; ++i) EXPECT_EQ(press(i, i % 2, false), Vertex_taken::added);
  EXPECT_EQ(flags.line_count, 148);
  EXPECT_EQ(press(1, 2, false), Vertex_taken::none);
  EXPECT_EQ(line.vertices.size(), 148u);
  prompts.use_language("Japanese");
  press(1, 2, true);
  EXPECT_EQ(prompts.shown, (std::vector<std::string>{"Number of Point over!", "これ以上囲み線を入力できません。"}));
}

TEST_F(Line_vertices, EndAnOpenLineAtTheMouse) {
  press(1, 2, false);
  EXPECT_TRUE(observations::Command31(flags, line, {5, 6}));
  EXPECT_EQ(drawn(), (Points{{1, 2}, {5, 6}}));
}

TEST_F(Line_vertices, EndWithNothingWhenNothingWasDrawn) {
  EXPECT_FALSE(observations::Command31(flags, line, {5, 6}));
  EXPECT_EQ(flags.line_mode, 0);
  EXPECT_TRUE(line.vertices.empty());
}

TEST_F(Line_vertices, AreStoredInTheCurrentRecord) {
  press(1, 8, false);
  press(-3, 4, false);
  registry.N = 2;
  const observations::Line_stored stored = observations::line_store(flags, line, registry, 2);
  EXPECT_TRUE(stored.stored);
  EXPECT_FALSE(stored.shortened);
  EXPECT_EQ(stored.bounds.low.x, -3);
  EXPECT_EQ(stored.bounds.low.y, 4);
  EXPECT_EQ(stored.bounds.high.x, 1);
  EXPECT_EQ(stored.bounds.high.y, 8);
  ASSERT_EQ(registry.rows[2].vertices.size(), 2u);
  EXPECT_EQ(registry.rows[2].vertices[1].x, -3);
  EXPECT_EQ(flags.line_mode, 0);
  EXPECT_EQ(flags.line_count, 0);
  EXPECT_TRUE(line.vertices.empty());
}

TEST_F(Line_vertices, KeepTheFirstHundred) {
  for (int i = 1; i <= 101; ++i) press(i, -i, false);
  const observations::Line_stored stored = observations::line_store(flags, line, registry, 1);
  EXPECT_TRUE(stored.shortened);
  EXPECT_EQ(stored.bounds.high.x, 101);
  ASSERT_EQ(registry.rows[1].vertices.size(), 100u);
  EXPECT_EQ(registry.rows[1].vertices.back().x, 100);
}

TEST_F(Line_vertices, AreStoredNowhereWithoutACurrentRecord) {
  press(1, 2, false);
  EXPECT_FALSE(observations::line_store(flags, line, registry, 0).stored);
  EXPECT_EQ(flags.line_mode, 0);
}

}  // namespace
