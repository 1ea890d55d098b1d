#include "ui/gps_state.h"

#include <gmock/gmock.h>

#include <QImage>
#include <QLabel>
#include <QTest>

#include "gui/clipping.h"
#include "ui/gps_mark.h"

namespace {

using instruments::Gps_light;

struct Gps_state : testing::Test {
  ui::Gps_state state;
  instruments::Gps gps;

  QString text(const char* name) const { return state.findChild<QLabel*>(name)->text(); }
  void show(Gps_light light, const char* label) {
    gps.light = light;
    gps.Label7 = label;
    state.show(gps);
  }
};

TEST_F(Gps_state, TellsTheLightAndTheStatusText) {
  show(Gps_light::no_fix, "GPS:検索中");
  EXPECT_EQ(text("Label7"), "GPS:検索中");
  EXPECT_EQ(text("gps_meaning"), "測位中");
  EXPECT_EQ(state.accessibleName(), "GPSの状態: 測位中");
  state.use_language(false);
  EXPECT_EQ(text("Label7"), "GPS:検索中");
  EXPECT_EQ(text("gps_meaning"), "Searching for satellites");
  EXPECT_EQ(state.accessibleName(), "GPS state: Searching for satellites");
}

TEST_F(Gps_state, GivesThePositionInItsTip) {
  gps.has_position = true;
  gps.latitude = 35.5;
  gps.longitude = 139.25;
  show(Gps_light::fix, "GPS:補足");
  EXPECT_THAT(state.toolTip().toStdString(), testing::HasSubstr("N 35°30'00.00\"  E 139°15'00.00\""));
}

TEST_F(Gps_state, LooksDifferentInEveryStateAndIsClippedInNone) {
  QStringList meanings;
  std::vector<QImage> lights;
  for (const bool japanese : {true, false}) {
    state.use_language(japanese);
    for (const Gps_light light : {Gps_light::closed, Gps_light::open, Gps_light::bytes, Gps_light::no_fix,
                                  Gps_light::fix, Gps_light::doubtful, Gps_light::lost}) {
      show(light, "GPS:補足");
      static_cast<QWidget&>(state).show();
      state.resize(state.sizeHint());
      QCoreApplication::processEvents();
      EXPECT_TRUE(support::nothing_clipped(&state));
      EXPECT_FALSE(meanings.contains(text("gps_meaning"))) << text("gps_meaning").toStdString();
      meanings << text("gps_meaning");
      if (!japanese) continue;
      const QImage image = state.findChild<QLabel*>("gps_light")->pixmap().toImage();
      for (const QImage& other : lights) EXPECT_NE(image, other);
      lights.push_back(image);
    }
  }
}

// The sheet of the marker's own test: 360 units right of and above the corner at (100, 1100).
TEST(Gps_mark_painted, StandsOnTheMapInBlack) {
  maps::Canvas canvas;
  canvas.is_geographic = true;
  canvas.geo_x0 = 13'900'000;
  canvas.geo_y1 = 3'500'000;
  canvas.sec_m_x = canvas.sec_m_y = 10;
  canvas.map_x1 = canvas.map_y1 = 1000;
  canvas.canvas_scale = 1;
  QImage image(600, 600, QImage::Format_RGB32);
  const auto painted = [&](const instruments::Gps_mark& mark) {
    image.fill(qRgb(200, 220, 200));
    QPainter painter(&image);
    ui::paint_gps_mark(painter, image.rect(), canvas, mark);
  };
  painted({true, 13'901'000, 3'501'000});
  EXPECT_LT(qGray(image.pixel(230, 370)), 100);
  EXPECT_LT(qGray(image.pixel(240, 370)), 100);
  EXPECT_EQ(image.pixel(260, 370), qRgb(200, 220, 200));
  for (const instruments::Gps_mark& none :
       {instruments::Gps_mark{false, 13'901'000, 3'501'000}, instruments::Gps_mark{true, 0, 0}}) {
    painted(none);
    QImage plain = image;
    plain.fill(qRgb(200, 220, 200));
    EXPECT_EQ(image, plain);
  }
}

}  // namespace
