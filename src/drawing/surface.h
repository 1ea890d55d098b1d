// What every drawing procedure draws on. Coordinates are canvas units: half a logical pixel, y downwards. The window
// implements it on the toolkit's painter; the tests implement it as a recorder.
#pragma once

#include <span>
#include <string>

#include "platform/pictures.h"

namespace drawing {

using platform::Colour;

inline constexpr Colour black = 0x000000;
inline constexpr Colour white = 0xffffff;
inline constexpr Colour red = 0xff0000;
inline constexpr Colour blue = 0x0000ff;

struct Point {
  double x = 0, y = 0;
  bool operator==(const Point&) const = default;
};

struct Rect {
  double x = 0, y = 0, width = 0, height = 0;
  bool operator==(const Rect&) const = default;
};

enum class Line_style { solid, dashed, dotted, none };

struct Pen {
  Colour colour = black;
  double width = 1;  // logical pixels, the same at every zoom
  Line_style style = Line_style::solid;
  bool operator==(const Pen&) const = default;
};

enum class Fill_style { none, solid, see_through, hatched };

struct Fill {
  Colour colour = white;
  Fill_style style = Fill_style::none;
  bool operator==(const Fill&) const = default;
};

struct Font {
  std::string name = "MS Gothic";
  double height = 16;  // canvas units
  bool bold = false;
  bool operator==(const Font&) const = default;
};

struct Sheet_picture;  // sheet_picture.h

inline constexpr Rect everywhere{-1e9, -1e9, 2e9, 2e9};

class Surface {
 public:
  virtual ~Surface() = default;
  // Where drawing leaves a trace at all: a strip of the canvas while it is moved. What lies wholly outside may be left
  // out.
  virtual Rect touched_part() const { return everywhere; }
  virtual void clear(Colour colour) = 0;
  virtual void line(Point from, Point to, const Pen& pen) = 0;
  virtual void polyline(std::span<const Point> points, const Pen& pen) = 0;
  virtual void polygon(std::span<const Point> points, const Pen& pen, const Fill& fill) = 0;
  virtual void circle(Point centre, double radius, const Pen& pen, const Fill& fill) = 0;
  // The text's top-left corner stands at `at`; `tenths` is the escapement in tenths of a degree, counter-clockwise.
  virtual void text(Point at, const std::string& text, const Font& font, Colour colour, int tenths) = 0;
  virtual void picture(const Sheet_picture& picture, const Rect& target) = 0;
};

}  // namespace drawing
