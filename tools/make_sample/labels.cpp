#include "make_sample/labels.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "make_sample/course.h"
#include "make_sample/land_picture.h"
#include "make_sample/random.h"
#include "platform/numbers.h"

namespace sample {

namespace {

// The lettering so far, with the circles that it covers: a label is a row of circles, so any angle is easy to test.
struct Lettering {
  std::vector<Label> labels;
  struct Circle {
    Point at;
    double radius;
  };
  std::vector<Circle> taken;
};

int letter_count(const std::string& text) {
  return static_cast<int>(
      std::count_if(text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

// Length of a label in letter heights; digits take half a letter.
double length_in_letters(const Label& label) {
  const bool digits = static_cast<unsigned char>(label.text[0]) < 0x80;
  const int count = letter_count(label.text);
  return digits ? 0.55 * count : count + label.spread * (count - 1);
}

std::vector<Lettering::Circle> circles_of(const Label& label, int scale) {
  const double letter = label.mm * scale / 1000;  // metres
  const double half = length_in_letters(label) * letter / 2;
  const int steps = std::max(1, static_cast<int>(std::ceil(2 * half / letter)));
  std::vector<Lettering::Circle> circles;
  for (int i = 0; i <= steps; ++i) {
    const double along = -half + 2 * half * i / steps;
    circles.push_back(
        {{label.at.x + along * std::cos(label.angle), label.at.y + along * std::sin(label.angle)}, 0.62 * letter});
  }
  return circles;
}

bool free_of(const std::vector<Lettering::Circle>& taken, const std::vector<Lettering::Circle>& circles) {
  for (const auto& a : circles)
    for (const auto& b : taken)
      if (distance(a.at, b.at) < a.radius + b.radius) return false;
  return true;
}

bool place(Lettering& lettering, const Label& label, int scale) {
  const std::vector<Lettering::Circle> circles = circles_of(label, scale);
  if (!free_of(lettering.taken, circles)) return false;
  lettering.labels.push_back(label);
  lettering.taken.insert(lettering.taken.end(), circles.begin(), circles.end());
  return true;
}

// Tries a label on each side of the thing that it names.
bool place_beside(Lettering& lettering, Label label, Point thing, double gap_mm, int scale) {
  const double metres = scale / 1000.0;
  const double half = length_in_letters(label) * label.mm * metres / 2;
  const double away = gap_mm * metres;
  const double up = (label.mm * 0.5 + gap_mm) * metres;
  const Point tries[] = {
      {thing.x + half + away, thing.y}, {thing.x - half - away, thing.y},      {thing.x, thing.y + up},
      {thing.x, thing.y - up},          {thing.x + half + away, thing.y + up}, {thing.x - half - away, thing.y - up}};
  for (Point at : tries) {
    label.at = at;
    if (place(lettering, label, scale)) return true;
  }
  return false;
}

double readable(double angle) {
  while (angle > std::numbers::pi / 2) angle -= std::numbers::pi;
  while (angle <= -std::numbers::pi / 2) angle += std::numbers::pi;
  return angle;
}

void label_settlements(Lettering& lettering, const Country& country, int scale) {
  for (const Settlement& one : country.settlements)
    if (one.town) place_beside(lettering, {one.name, {}, 0, 4.4, 0.2, Letters::town}, one.at, 5, scale);
  for (const Station& one : country.stations)
    place_beside(lettering, {one.name + "駅", {}, 0, 2.6, 0, Letters::station}, one.at, 1.4, scale);
  for (const Settlement& one : country.settlements)
    if (!one.town) place_beside(lettering, {one.name, {}, 0, 3.1, 0.1, Letters::village}, one.at, 2.2, scale);
}

void label_summits(Lettering& lettering, const Country& country, int scale) {
  for (const Named_summit& one : country.summits) lettering.taken.push_back({one.at, 1.1 * scale / 1000});
  for (const Named_summit& one : country.summits) {
    const std::string height = platform::format_number(one.height, one.triangulated ? "0.0" : "0");
    if (!one.name.empty()) place_beside(lettering, {one.name, {}, 0, 3.3, 0.05, Letters::summit}, one.at, 2.9, scale);
    if (scale < 50000 || !one.name.empty())
      place_beside(lettering, {height, {}, 0, 2.3, 0, Letters::height}, one.at, 1.3, scale);
  }
}

// A river's name stands along its course, every 90 mm of it, a little to the side.
void label_rivers(Lettering& lettering, const Country& country, int scale) {
  for (const River_name& one : country.river_names) {
    const River& river = country.rivers[static_cast<std::size_t>(one.river)];
    const double mm = one.river == 0 ? 4.0 : 3.0;
    const double every = 120.0 * scale / 1000;
    double since_last = every * 0.75;
    for (const Stop& stop : stops(river.course, 60)) {
      since_last += 60;
      if (since_last < every || under_lake(country, stop.at, relief_at(country.relief, stop.at.x, stop.at.y).z))
        continue;
      const Nearest here = nearest_point(river.course, stop.at);
      const double aside = river.widths[here.index] / 2 + (0.75 * mm + 0.3) * scale / 1000;
      Label label{one.name, {}, 0, mm, 0.8, Letters::river};
      // The direction over the label's whole length, not of one short piece.
      const std::size_t low = here.index >= 8 ? here.index - 8 : 0;
      const std::size_t high = std::min(here.index + 8, river.course.size() - 1);
      label.angle = readable(angle_of(river.course[low], river.course[high]));
      label.at = {stop.at.x - aside * std::sin(label.angle), stop.at.y + aside * std::cos(label.angle)};
      if (place(lettering, label, scale)) since_last = 0;
    }
  }
}

// Walks from a point down or up the slope to the height; false where the land is too flat or too rough to write on.
bool walk_to_height(const Relief& relief, double height, Point& at) {
  for (int i = 0; i < 8; ++i) {
    const ground::Height here = relief_at(relief, at.x, at.y);
    const double slope2 = here.dx * here.dx + here.dy * here.dy;
    if (slope2 < 0.01) return false;
    const double off = (height - here.z) / slope2;
    if (std::abs(off) * std::sqrt(slope2) > 200) return false;
    at = {at.x + off * here.dx, at.y + off * here.dy};
  }
  return std::abs(relief_at(relief, at.x, at.y).z - height) < 0.5;
}

void label_contours(Lettering& lettering, const Country& country, int scale) {
  ground::Random random{50};
  const double interval = 5.0 * contour_interval(scale);
  const double spacing = 28.0 * scale / 1000;
  for (double y = -9400; y < 9400; y += spacing)
    for (double x = -11500; x < 11500; x += spacing) {
      Point at{x + next_between(random, 0, 0.7 * spacing), y + next_between(random, 0, 0.7 * spacing)};
      const double height = std::round(relief_at(country.relief, at.x, at.y).z / interval) * interval;
      if (!walk_to_height(country.relief, height, at)) continue;
      const ground::Height here = relief_at(country.relief, at.x, at.y);
      if (std::hypot(here.dx, here.dy) > 0.75) continue;
      // The foot of the figures points downhill; those that would stand on their heads are left out.
      const double angle = std::atan2(here.dy, here.dx) - std::numbers::pi / 2;
      const double upright = std::remainder(angle, 2 * std::numbers::pi);
      if (std::abs(upright) > 1.3) continue;
      Label label{platform::format_number(height, "0"), at, upright, 2.0, 0, Letters::contour};
      place(lettering, label, scale);
    }
}

}  // namespace

std::vector<Label> make_labels(const Country& country, int scale) {
  Lettering lettering;
  label_settlements(lettering, country, scale);
  if (!country.lake.covered.empty())
    place(lettering, {lake_name, country.lake.middle, 0, 3.8, 0.6, Letters::lake}, scale);
  for (const auto& [name, at] : {std::pair<const char*, Point>{northern_municipality, {-3600, 6100}},
                                 std::pair<const char*, Point>{southern_municipality, {3000, -5200}}})
    place(lettering, {name, at, 0, 6.4, 2.0, Letters::municipality}, scale);
  label_summits(lettering, country, scale);
  label_rivers(lettering, country, scale);
  label_contours(lettering, country, scale);
  return lettering.labels;
}

}  // namespace sample
