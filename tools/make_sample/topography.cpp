#include <algorithm>
#include <cmath>

#include "make_sample/ground.h"
#include "make_sample/random.h"

namespace ground {

namespace {

// A value together with its two slopes; the arithmetic below carries all three.
struct Dual {
  double v = 0, x = 0, y = 0;
};

Dual operator+(Dual a, Dual b) {
  return {a.v + b.v, a.x + b.x, a.y + b.y};
}
Dual operator-(Dual a, Dual b) {
  return {a.v - b.v, a.x - b.x, a.y - b.y};
}
Dual operator*(Dual a, Dual b) {
  return {a.v * b.v, a.x * b.v + a.v * b.x, a.y * b.v + a.v * b.y};
}
Dual operator*(double f, Dual a) {
  return {f * a.v, f * a.x, f * a.y};
}
Dual operator/(Dual a, Dual b) {
  const double q = a.v / b.v;
  return {q, (a.x - q * b.x) / b.v, (a.y - q * b.y) / b.v};
}
Dual square_root(Dual a) {
  const double root = std::sqrt(std::max(a.v, 1e-12));
  return {root, a.x / (2 * root), a.y / (2 * root)};
}
Dual constant(double v) {
  return {v, 0, 0};
}

constexpr double cell = 250;  // of the table of near reaches
constexpr double beyond = 2000;
constexpr int columns = static_cast<int>(2 * (half_width_of_country + beyond) / cell);
constexpr int rows = static_cast<int>(2 * (half_height_of_country + beyond) / cell);

constexpr double side_slope = 0.60;     // rise of a hillside for a metre away from its stream
constexpr double steepest = 1.15;       // bound of the slope of any one valley, for the table of near reaches
constexpr double widest_rounding = 60;  // metres of height over which a ridge is rounded off

constexpr double farthest_valley = 2400;  // metres beyond which no valley is the lowest

// A lattice value from -1 to 1.
double lattice(int column, int row, unsigned kind) {
  const std::uint64_t key = (static_cast<std::uint64_t>(static_cast<std::uint32_t>(column)) << 32) ^
                            (static_cast<std::uint64_t>(static_cast<std::uint32_t>(row)) << 3) ^ kind;
  return static_cast<double>(mix_bits(key * 0x9e3779b97f4a7c15ULL + 77) >> 11) * 0x1.0p-52 - 1.0;
}

// Lattice values joined by a fifth-degree step whose first and second slopes vanish at the nodes.
Dual noise(double x, double y, double size, unsigned kind) {
  const double u = x / size, v = y / size;
  const double column = std::floor(u), row = std::floor(v);
  const double a = u - column, b = v - row;
  const double sa = a * a * a * (a * (a * 6 - 15) + 10), da = 30 * a * a * (a - 1) * (a - 1) / size;
  const double sb = b * b * b * (b * (b * 6 - 15) + 10), db = 30 * b * b * (b - 1) * (b - 1) / size;
  const int c = static_cast<int>(column), r = static_cast<int>(row);
  const double sw = lattice(c, r, kind), se = lattice(c + 1, r, kind);
  const double nw = lattice(c, r + 1, kind), ne = lattice(c + 1, r + 1, kind);
  const double cross = ne - se - nw + sw;
  return {sw + (se - sw) * sa + (nw - sw) * sb + cross * sa * sb, ((se - sw) + cross * sb) * da,
          ((nw - sw) + cross * sa) * db};
}

// Where a point stands along a reach: 0 at its lower end, 1 at its upper end.
double along(const Reach& reach, double x, double y) {
  const double dx = reach.high.x - reach.low.x, dy = reach.high.y - reach.low.y;
  return std::clamp(((x - reach.low.x) * dx + (y - reach.low.y) * dy) / (dx * dx + dy * dy), 0.0, 1.0);
}

// Height of the valley of one reach: its bed, a flat floor, then sides of an even slope `side`.
double valley_height(const Reach& reach, double x, double y, double side) {
  const double t = along(reach, x, y);
  const double ox = x - reach.low.x - t * (reach.high.x - reach.low.x);
  const double oy = y - reach.low.y - t * (reach.high.y - reach.low.y);
  const double d2 = ox * ox + oy * oy;
  const double floor = reach.floor_low + t * (reach.floor_high - reach.floor_low);
  return reach.bed_low + t * (reach.bed_high - reach.bed_low) + side * d2 * std::sqrt(d2) / (d2 + floor * floor + 1e-9);
}

struct Valley {
  Dual height, distance;
};

Valley valley(const Reach& reach, double x, double y, Dual side) {
  const double dx = reach.high.x - reach.low.x, dy = reach.high.y - reach.low.y;
  const double t = along(reach, x, y);
  const double moves = t > 0 && t < 1 ? 1 / (dx * dx + dy * dy) : 0;
  const Dual at{t, dx * moves, dy * moves};
  const Dual ox = Dual{x - reach.low.x, 1, 0} - dx * at;
  const Dual oy = Dual{y - reach.low.y, 0, 1} - dy * at;
  const Dual d2 = ox * ox + oy * oy;
  const Dual distance = square_root(d2);
  const Dual floor = constant(reach.floor_low) + (reach.floor_high - reach.floor_low) * at;
  const Dual bed = constant(reach.bed_low) + (reach.bed_high - reach.bed_low) * at;
  return {bed + side * (d2 * distance / (d2 + floor * floor + constant(1e-9))), distance};
}

// The lower of two heights, rounded off where they differ by less than `rounding` (I. Quilez's quadratic minimum).
Dual round_minimum(Dual a, Dual b, Dual rounding) {
  const Dual& low = a.v <= b.v ? a : b;
  const Dual& high = a.v <= b.v ? b : a;
  const Dual left = rounding - (high - low);
  if (left.v <= 0 || rounding.v <= 0) return low;
  return low - 0.25 * (left * left / rounding);
}

std::size_t cell_index(double x, double y) {
  const int column = std::clamp(static_cast<int>((x + half_width_of_country + beyond) / cell), 0, columns - 1);
  const int row = std::clamp(static_cast<int>((y + half_height_of_country + beyond) / cell), 0, rows - 1);
  return static_cast<std::size_t>(row) * columns + static_cast<std::size_t>(column);
}

std::vector<Reach> reaches_of(const Stream_net& net) {
  std::vector<Reach> reaches;
  for (std::size_t s = 0; s < net.size(); ++s)
    for (std::size_t i = 1; i < net[s].nodes.size(); ++i) {
      const Stream_node& low = net[s].nodes[i - 1];
      const Stream_node& high = net[s].nodes[i];
      reaches.push_back({low.at, high.at, low.bed, high.bed, low.floor, high.floor, static_cast<int>(s)});
    }
  return reaches;
}

// The reaches that can be lowest, or round off the lowest, anywhere in a cell: those whose valley at the cell's middle
// is no higher than the lowest one plus what both can change on the way to a corner.
std::vector<int> near_reaches(const std::vector<Reach>& reaches, const std::vector<int>& candidates, double x,
                              double y) {
  const double to_corner = cell / std::sqrt(2.0);
  std::vector<double> heights;
  double lowest = 1e9;
  for (int i : candidates) {
    heights.push_back(valley_height(reaches[static_cast<std::size_t>(i)], x, y, side_slope));
    lowest = std::min(lowest, heights.back());
  }
  std::vector<int> near;
  for (std::size_t i = 0; i < candidates.size(); ++i)
    if (heights[i] < lowest + widest_rounding + 2 * steepest * side_slope * to_corner) near.push_back(candidates[i]);
  return near;
}

// The reaches within farthest_valley of a block of cells.
std::vector<int> candidates_of_block(const std::vector<Reach>& reaches, double x, double y, double half_block) {
  std::vector<int> candidates;
  for (std::size_t i = 0; i < reaches.size(); ++i)
    if (std::max(std::abs(reaches[i].low.x - x), std::abs(reaches[i].low.y - y)) < farthest_valley + half_block)
      candidates.push_back(static_cast<int>(i));
  return candidates;
}

constexpr int block = 8;  // cells along a block's side

void fill_block(Ground& ground, int first_column, int first_row) {
  const double left = first_column * cell - half_width_of_country - beyond;
  const double bottom = first_row * cell - half_height_of_country - beyond;
  const double half = block * cell / 2;
  const std::vector<int> candidates = candidates_of_block(ground.reaches, left + half, bottom + half, half);
  for (int row = first_row; row < std::min(first_row + block, rows); ++row)
    for (int column = first_column; column < std::min(first_column + block, columns); ++column) {
      const double x = left + (column - first_column + 0.5) * cell;
      const double y = bottom + (row - first_row + 0.5) * cell;
      ground.near[cell_index(x, y)] = near_reaches(ground.reaches, candidates, x, y);
    }
}

}  // namespace

Ground make_ground() {
  Ground ground;
  ground.streams = make_streams();
  ground.reaches = reaches_of(ground.streams);
  ground.near.resize(std::size_t{columns} * rows);
  for (int row = 0; row < rows; row += block)
    for (int column = 0; column < columns; column += block) fill_block(ground, column, row);
  return ground;
}

Height topography(const Ground& ground, double x, double y) {
  const std::vector<int>& near = ground.near[cell_index(x, y)];
  if (near.empty()) return {};
  const Dual side = side_slope * (constant(1) + 0.24 * noise(x, y, 1100, 1) + 0.15 * noise(x, y, 420, 2) +
                                  0.06 * noise(x, y, 170, 3));
  // The lowest reach of each stream; the reaches of a stream stand together.
  struct Lowest {
    double height;
    int reach;
  };
  std::vector<Lowest> lowest;
  lowest.reserve(near.size());
  int stream = -1;
  for (int i : near) {
    const Reach& reach = ground.reaches[static_cast<std::size_t>(i)];
    const double height = valley_height(reach, x, y, side.v);
    if (reach.stream != stream) lowest.push_back({height, i});
    if (height < lowest.back().height) lowest.back() = {height, i};
    stream = reach.stream;
  }
  std::stable_sort(lowest.begin(), lowest.end(), [](const Lowest& a, const Lowest& b) { return a.height < b.height; });

  std::vector<Valley> valleys;
  for (const Lowest& one : lowest) {
    if (one.height > lowest[0].height + widest_rounding) break;
    valleys.push_back(valley(ground.reaches[static_cast<std::size_t>(one.reach)], x, y, side));
  }
  // Ridges are rounded the more, the further the streams; at a mouth nothing is, or the bed would have a pit there.
  const Dual* closest = &valleys[0].distance;
  for (const Valley& one : valleys)
    if (one.distance.v < closest->v) closest = &one.distance;
  const Dual rounding = closest->v * 0.34 < widest_rounding ? 0.34 * *closest : constant(widest_rounding);
  Dual height = valleys[0].height;
  for (std::size_t i = 1; i < valleys.size(); ++i) height = round_minimum(height, valleys[i].height, rounding);
  return {height.v, height.x, height.y};
}

}  // namespace ground
