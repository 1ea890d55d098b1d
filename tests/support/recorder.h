// A surface that keeps every call, so that what is drawn is asserted to the coordinate.
#pragma once

#include <string>
#include <vector>

#include "drawing/surface.h"

namespace support {

struct Drawn {
  std::string what;  // "clear", "line", "polyline", "polygon", "circle", "text", "picture"
  std::vector<drawing::Point> points;
  drawing::Pen pen;
  drawing::Fill fill;
  double radius = 0;
  std::string text;
  drawing::Font font;
  drawing::Colour colour = 0;
  int tenths = 0;
  const drawing::Sheet_picture* picture = nullptr;
  drawing::Rect target;
};

class Recorder : public drawing::Surface {
 public:
  std::vector<Drawn> calls;

  std::vector<Drawn> of(const std::string& what) const {
    std::vector<Drawn> found;
    for (const Drawn& call : calls)
      if (call.what == what) found.push_back(call);
    return found;
  }

  void clear(drawing::Colour colour) override { add("clear").colour = colour; }
  void line(drawing::Point from, drawing::Point to, const drawing::Pen& pen) override {
    Drawn& call = add("line");
    call.points = {from, to};
    call.pen = pen;
  }
  void polyline(std::span<const drawing::Point> points, const drawing::Pen& pen) override {
    Drawn& call = add("polyline");
    call.points.assign(points.begin(), points.end());
    call.pen = pen;
  }
  void polygon(std::span<const drawing::Point> points, const drawing::Pen& pen, const drawing::Fill& fill) override {
    Drawn& call = add("polygon");
    call.points.assign(points.begin(), points.end());
    call.pen = pen;
    call.fill = fill;
  }
  void circle(drawing::Point centre, double radius, const drawing::Pen& pen, const drawing::Fill& fill) override {
    Drawn& call = add("circle");
    call.points = {centre};
    call.radius = radius;
    call.pen = pen;
    call.fill = fill;
  }
  void text(drawing::Point at, const std::string& text, const drawing::Font& font, drawing::Colour colour,
            int tenths) override {
    Drawn& call = add("text");
    call.points = {at};
    call.text = text;
    call.font = font;
    call.colour = colour;
    call.tenths = tenths;
  }
  void picture(const drawing::Sheet_picture& picture, const drawing::Rect& target) override {
    Drawn& call = add("picture");
    call.picture = &picture;
    call.target = target;
  }

 private:
  Drawn& add(const std::string& what) {
    calls.emplace_back();
    calls.back().what = what;
    return calls.back();
  }
};

}  // namespace support
