#include "make_sample/sheet_painter.h"

#include <QFont>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <numbers>

#include "make_sample/course.h"
#include "make_sample/land_picture.h"
#include "make_sample/observations.h"
#include "make_sample/random.h"

namespace sample {

namespace {

const QColor water_line(58, 130, 192);
const QColor water_fill(186, 220, 240);
const QColor ink(52, 46, 44);

QPen round_pen(const QColor& colour, double width) {
  return QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

QPolygonF polygon_of(const View& view, const Course& course) {
  QPolygonF polygon;
  for (Point at : course) polygon << pixel_of(view, at);
  return polygon;
}

bool touches(const View& view, const Course& course, double margin) {
  return std::any_of(course.begin(), course.end(), [&](Point at) { return in_view(view, at, margin); });
}

// --- waters ---

// Width of a stream's line in pixels: its water to scale, but never thinner than can be seen.
double stream_line(const View& view, double width) {
  const double thinnest = (0.1 + 0.012 * std::min(width, 14.0)) * pixels_per_mm(view);
  return std::max({0.7, thinnest, width * pixels_per_metre(view)});
}

template <typename Draw>
void each_piece(const Country& country, const View& view, const River& river, double narrowest, const Draw& draw) {
  for (std::size_t i = 1; i < river.course.size(); ++i) {
    const Point a = river.course[i - 1], b = river.course[i];
    if (river.widths[i] < narrowest || (!in_view(view, a, 300) && !in_view(view, b, 300))) continue;
    if (under_lake(country, b, relief_at(country.relief, b.x, b.y).z)) continue;
    draw(pixel_of(view, a), pixel_of(view, b), river.widths[i]);
  }
}

void paint_rivers(QPainter& painter, const Country& country, const View& view) {
  const double mm = pixels_per_mm(view);
  const double narrowest = view.scale >= 50000 ? 1.6 : 1.05;  // metres: the topmost gullies stay dry
  for (const River& river : country.rivers)
    each_piece(country, view, river, narrowest, [&](QPointF a, QPointF b, double width) {
      painter.setPen(round_pen(water_line, stream_line(view, width)));
      painter.drawLine(a, b);
    });
  // Where the water is wide enough it is filled between its two banks.
  for (const River& river : country.rivers)
    each_piece(country, view, river, 12, [&](QPointF a, QPointF b, double width) {
      const double inner = stream_line(view, width) - std::max(1.2, 0.24 * mm);
      if (inner < 0.8) return;
      painter.setPen(round_pen(water_fill, inner));
      painter.drawLine(a, b);
    });
}

void paint_dam(QPainter& painter, const Country& country, const View& view) {
  if (country.lake.covered.empty()) return;
  painter.setPen(QPen(ink, 0.75 * pixels_per_mm(view), Qt::SolidLine, Qt::FlatCap));
  painter.drawLine(pixel_of(view, country.lake.dam_left), pixel_of(view, country.lake.dam_right));
  painter.setPen(QPen(QColor(236, 232, 226), 0.45 * pixels_per_mm(view), Qt::SolidLine, Qt::FlatCap));
  painter.drawLine(pixel_of(view, country.lake.dam_left), pixel_of(view, country.lake.dam_right));
}

// --- growth ---

void paint_paddy(QPainter& painter, QPointF at, double mm) {
  for (double side : {-0.22, 0.22}) painter.drawLine(at + QPointF(side, -0.4) * mm, at + QPointF(side, 0.4) * mm);
}

void paint_broadleaf(QPainter& painter, QPointF at, double mm) {
  painter.drawEllipse(at, 0.42 * mm, 0.42 * mm);
  painter.drawLine(at + QPointF(0, 0.42) * mm, at + QPointF(0.3, 0.95) * mm);
}

void paint_conifer(QPainter& painter, QPointF at, double mm) {
  painter.drawPolyline(
      QPolygonF{at + QPointF(-0.4, 0.6) * mm, at + QPointF(0, -0.6) * mm, at + QPointF(0.4, 0.6) * mm});
}

// Signs on a lattice that is the same for all sheets, each shaken a little out of its place.
void paint_growth(QPainter& painter, const Country& country, const View& view) {
  const double mm = pixels_per_mm(view);
  const double spacing = 6.0 * view.scale / 1000;
  painter.setBrush(Qt::NoBrush);
  painter.setPen(round_pen(QColor(106, 148, 106, 190), std::max(0.7, 0.1 * mm)));
  const auto first = [&](double from) { return static_cast<int>(std::floor(from / spacing)) - 1; };
  for (int j = first(view.south); j * spacing < view.north + spacing; ++j)
    for (int i = first(view.west); i * spacing < view.east + spacing; ++i) {
      ground::Random random{static_cast<std::uint64_t>((i + 5000) * 10000 + j + 5000)};
      const Point at{(i + ground::next_between(random, 0.1, 0.9)) * spacing,
                     (j + ground::next_between(random, 0.1, 0.9)) * spacing};
      const double choice = ground::next_fraction(random);
      const ground::Height height = relief_at(country.relief, at.x, at.y);
      if (under_lake(country, at, height.z)) continue;
      const double slope = std::hypot(height.dx, height.dy);
      const QPointF pixel = pixel_of(view, at);
      if (slope < 0.05)
        paint_paddy(painter, pixel, mm);
      else if (slope > 0.22 && choice < 0.22)
        (height.z + 260 * choice > 430) ? paint_conifer(painter, pixel, 0.8 * mm)
                                        : paint_broadleaf(painter, pixel, 0.8 * mm);
    }
}

// --- ways ---

struct Way_style {
  Road_kind kind;
  double casing, fill;  // mm; a way without a fill is one line
  QColor colour;
};

const Way_style way_styles[] = {
    {Road_kind::town, 0.50, 0.30, QColor(255, 255, 255)},
    {Road_kind::prefectural, 0.70, 0.48, QColor(250, 224, 138)},
    {Road_kind::national, 0.95, 0.68, QColor(240, 164, 128)},
};

void paint_ways(QPainter& painter, const Country& country, const View& view) {
  const double mm = pixels_per_mm(view);
  painter.setBrush(Qt::NoBrush);
  for (const Road& road : country.roads) {
    if (!touches(view, road.course, 300)) continue;
    if (road.kind == Road_kind::track) painter.setPen(round_pen(QColor(96, 84, 76), std::max(0.9, 0.17 * mm)));
    if (road.kind == Road_kind::path)
      painter.setPen(QPen(QColor(96, 84, 76), std::max(0.8, 0.13 * mm), Qt::CustomDashLine));
    if (road.kind == Road_kind::path) {
      QPen pen = painter.pen();
      pen.setDashPattern({7, 4});
      painter.setPen(pen);
    }
    if (road.kind == Road_kind::track || road.kind == Road_kind::path)
      painter.drawPolyline(polygon_of(view, road.course));
  }
  for (bool casing : {true, false})
    for (const Way_style& style : way_styles)
      for (const Road& road : country.roads) {
        if (road.kind != style.kind || !touches(view, road.course, 300)) continue;
        painter.setPen(casing ? round_pen(QColor(112, 98, 90), std::max(1.8, style.casing * mm))
                              : round_pen(style.colour, std::max(0.9, style.fill * mm)));
        painter.drawPolyline(polygon_of(view, road.course));
      }
}

void paint_railway(QPainter& painter, const Country& country, const View& view) {
  const double mm = pixels_per_mm(view);
  const QPolygonF line = polygon_of(view, country.railway);
  painter.setPen(QPen(ink, std::max(1.8, 0.52 * mm), Qt::SolidLine, Qt::FlatCap));
  painter.drawPolyline(line);
  QPen dashes(QColor(255, 255, 255), std::max(0.9, 0.30 * mm), Qt::CustomDashLine, Qt::FlatCap);
  dashes.setDashPattern({9, 9});
  painter.setPen(dashes);
  painter.drawPolyline(line);
  for (const Station& station : country.stations) {
    painter.save();
    painter.translate(pixel_of(view, station.at));
    painter.rotate(-station.angle * 180 / std::numbers::pi);
    painter.setPen(QPen(ink, std::max(0.9, 0.16 * mm)));
    painter.setBrush(QColor(255, 255, 255));
    painter.drawRect(QRectF(-1.7 * mm, -0.5 * mm, 3.4 * mm, 1.0 * mm));
    painter.restore();
  }
}

void paint_buildings(QPainter& painter, const Country& country, const View& view) {
  const double metre = pixels_per_metre(view), mm = pixels_per_mm(view);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(84, 74, 70));
  for (const Building& building : country.buildings) {
    if (!in_view(view, building.at, 60)) continue;
    painter.save();
    painter.translate(pixel_of(view, building.at));
    painter.rotate(-building.angle * 180 / std::numbers::pi);
    const double length = std::max(building.length * metre, 0.46 * mm),
                 breadth = std::max(building.breadth * metre, 0.36 * mm);
    painter.drawRect(QRectF(-length / 2, -breadth / 2, length, breadth));
    painter.restore();
  }
}

void paint_border(QPainter& painter, const Country& country, const View& view) {
  const double mm = pixels_per_mm(view);
  QPen pen(QColor(120, 84, 140, 210), std::max(1.1, 0.3 * mm), Qt::CustomDashLine, Qt::FlatCap);
  pen.setDashPattern({9, 3, 1.5, 3});
  painter.setPen(pen);
  painter.setBrush(Qt::NoBrush);
  painter.drawPolyline(polygon_of(view, country.border));
}

void paint_fault(QPainter& painter, const Country& country, const View& view) {
  Course trace;
  for (double along = -14000; along <= 14000; along += 25) trace.push_back(fault_trace(country, along));
  painter.setBrush(Qt::NoBrush);
  painter.setPen(round_pen(QColor(190, 40, 40), 0.5 * pixels_per_mm(view)));
  painter.drawPolyline(polygon_of(view, trace));
}

// --- signs and names ---

void paint_summits(QPainter& painter, const Country& country, const View& view) {
  const double mm = pixels_per_mm(view);
  for (const Named_summit& summit : country.summits) {
    if (!in_view(view, summit.at, 100)) continue;
    const QPointF at = pixel_of(view, summit.at);
    painter.setPen(QPen(ink, std::max(0.9, 0.16 * mm)));
    painter.setBrush(Qt::NoBrush);
    if (summit.triangulated)
      painter.drawPolygon(
          QPolygonF{at + QPointF(0, -1.0) * mm, at + QPointF(0.9, 0.6) * mm, at + QPointF(-0.9, 0.6) * mm});
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    painter.drawEllipse(at, 0.2 * mm, 0.2 * mm);
  }
}

struct Letter_style {
  QColor colour;
  double halo;  // mm of blank around the letters
};

Letter_style letter_style(Letters letters) {
  switch (letters) {
    case Letters::river:
    case Letters::lake:
      return {QColor(32, 92, 160), 0.28};
    case Letters::contour:
      return {QColor(140, 88, 44), 0.3};
    case Letters::municipality:
      return {QColor(128, 92, 148), 0.3};
    case Letters::town:
    case Letters::village:
    case Letters::station:
    case Letters::summit:
    case Letters::height:
      break;
  }
  return {QColor(34, 30, 30), 0.3};
}

// Outlines of a label around its middle, in letters of `size` pixels.
QPainterPath outlines(const Label& label, const QFont& font, double size) {
  QPainterPath path;
  const QString text = QString::fromStdString(label.text);
  const QFontMetricsF metrics(font);
  double x = 0;
  for (const QChar letter : text) {
    path.addText(x, 0, font, QString(letter));
    x += metrics.horizontalAdvance(letter) + label.spread * font.pixelSize();
  }
  const double scale = size / font.pixelSize();
  const QRectF box = path.boundingRect();
  QTransform transform;
  transform.rotate(-label.angle * 180 / std::numbers::pi);
  transform.scale(scale, scale);
  transform.translate(-box.center().x(), -box.center().y());
  return transform.map(path);
}

void paint_labels(QPainter& painter, const std::vector<Label>& labels, const View& view, const QString& family) {
  const double mm = pixels_per_mm(view);
  QFont font(family);
  font.setPixelSize(96);
  font.setHintingPreference(QFont::PreferNoHinting);
  for (const Label& label : labels) {
    if (!in_view(view, label.at, 14.0 * label.mm * view.scale / 1000)) continue;
    const Letter_style style = letter_style(label.letters);
    const QPainterPath path = outlines(label, font, label.mm * mm).translated(pixel_of(view, label.at));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(round_pen(QColor(255, 254, 248, 215), 2 * style.halo * mm));
    painter.drawPath(path);
    painter.setPen(Qt::NoPen);
    painter.setBrush(style.colour);
    painter.drawPath(path);
  }
}

}  // namespace

QImage paint_sheet(const Country& country, const std::vector<Label>& labels, const View& view, const QString& font) {
  QImage picture = land_picture(country, view);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  if (view.theme == Theme::topographic) paint_growth(painter, country, view);
  paint_rivers(painter, country, view);
  paint_dam(painter, country, view);
  if (view.theme == Theme::topographic) {
    paint_border(painter, country, view);
    paint_ways(painter, country, view);
    paint_railway(painter, country, view);
    paint_buildings(painter, country, view);
  }
  if (view.theme == Theme::geological) paint_fault(painter, country, view);
  paint_summits(painter, country, view);
  if (!font.isEmpty()) paint_labels(painter, labels, view, font);
  return picture;
}

}  // namespace sample
