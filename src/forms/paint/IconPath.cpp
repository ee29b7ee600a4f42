// Icons are paths in a small part of SVG's notation (M L H V C A Z, absolute coordinates only). They are
// flattened to straight lines and turned into polygons: a filled path is its own polygon, a stroked one is a
// rectangle for each line and a wedge for each corner. All polygons of a stroke run in the same direction, so
// that where they overlap the non-zero rule counts them as inside.
#include "forms/paint/IconPath.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <span>

namespace sonaro {
namespace {

// A corner whose tip would stick out more than this many half pen widths is cut off straight.
constexpr double kMiterLimit = 4.0;
constexpr int kMaxSegments = 256;

PathPoint operator+(PathPoint a, PathPoint b) { return {a.x + b.x, a.y + b.y}; }
PathPoint operator-(PathPoint a, PathPoint b) { return {a.x - b.x, a.y - b.y}; }
PathPoint operator*(PathPoint a, double factor) { return {a.x * factor, a.y * factor}; }
double Cross(PathPoint a, PathPoint b) { return a.x * b.y - a.y * b.x; }
double Dot(PathPoint a, PathPoint b) { return a.x * b.x + a.y * b.y; }
double Length(PathPoint a) { return std::hypot(a.x, a.y); }

// Builds sub-paths from drawing commands.
class Builder {
 public:
  explicit Builder(double tolerance) : tolerance_(tolerance) {}

  void MoveTo(PathPoint to) { path_.push_back({{to}, false}); }
  void LineTo(PathPoint to) {
    if (path_.empty() || path_.back().closed) MoveTo(Current());
    path_.back().points.push_back(to);
  }
  void CurveTo(PathPoint control1, PathPoint control2, PathPoint to) {
    const PathPoint from = Current();
    // The length of the control polygon bounds that of the curve; the error of a flattened curve falls with
    // the square of the number of lines, hence the root.
    const double bend = Length(control1 - from) + Length(control2 - control1) + Length(to - control2);
    const int count = Segments(std::sqrt(bend / tolerance_));
    for (int i = 1; i < count; ++i) {
      const double t = static_cast<double>(i) / count;
      const double u = 1 - t;
      LineTo(from * (u * u * u) + control1 * (3 * u * u * t) + control2 * (3 * u * t * t) + to * (t * t * t));
    }
    LineTo(to);
  }
  // The elliptical arc of SVG, by the conversion that its standard gives (radii along the axes).
  void ArcTo(PathPoint radii, bool large, bool sweep, PathPoint to);
  void Close() {
    if (!path_.empty()) path_.back().closed = true;
  }
  PathPoint Current() const {
    if (path_.empty()) return {};
    return path_.back().closed ? path_.back().points.front() : path_.back().points.back();
  }
  FlatPath Take() { return std::move(path_); }

 private:
  static int Segments(double wanted) {
    return std::clamp(static_cast<int>(std::ceil(wanted)), 1, kMaxSegments);
  }

  double tolerance_;
  FlatPath path_;
};

void Builder::ArcTo(PathPoint radii, bool large, bool sweep, PathPoint to) {
  const PathPoint from = Current();
  radii = {std::abs(radii.x), std::abs(radii.y)};
  if (radii.x == 0 || radii.y == 0 || from == to) return LineTo(to);
  // In the space where the ellipse is the unit circle.
  PathPoint start = {from.x / radii.x, from.y / radii.y};
  PathPoint end = {to.x / radii.x, to.y / radii.y};
  const double half = Length(end - start) / 2;
  double scale = 1;
  if (half > 1) {  // radii too small to reach: the standard enlarges them
    scale = half;
    start = start * (1 / scale);
    end = end * (1 / scale);
  }
  const PathPoint chord = end - start;
  const double rise = std::sqrt(std::max(0.0, 1 - Dot(chord, chord) / 4)) / Length(chord);
  const double side = large == sweep ? -1 : 1;
  const PathPoint centre = (start + end) * 0.5 + PathPoint{-chord.y, chord.x} * (rise * side);
  const double first = std::atan2(start.y - centre.y, start.x - centre.x);
  double turn = std::atan2(end.y - centre.y, end.x - centre.x) - first;
  constexpr double kFull = 2 * std::numbers::pi;
  if (sweep && turn < 0) turn += kFull;
  if (!sweep && turn > 0) turn -= kFull;
  const double radius = std::max(radii.x, radii.y) * scale;
  // The angle at which a chord departs from its arc by the tolerance.
  const double step = 2 * std::acos(std::max(0.0, 1 - tolerance_ / radius));
  const int count = Segments(std::abs(turn) / std::max(step, 1e-3));
  for (int i = 1; i < count; ++i) {
    const double angle = first + turn * i / count;
    const PathPoint onCircle = centre + PathPoint{std::cos(angle), std::sin(angle)};
    LineTo({onCircle.x * radii.x * scale, onCircle.y * radii.y * scale});
  }
  LineTo(to);
}

class Reader {
 public:
  explicit Reader(std::string_view text) : text_(text) {}

  char Command() {
    SkipBlanks();
    if (text_.empty()) return '\0';
    const char command = text_.front();
    if (command < 'A' || command > 'Z') return '\0';
    text_.remove_prefix(1);
    return command;
  }
  // False when fewer numbers than asked for follow.
  bool Numbers(std::span<double> numbers) {
    for (double& number : numbers) {
      SkipBlanks();
      if (!Number(number)) return false;
    }
    return true;
  }

 private:
  // A decimal without exponent is all that the drawings hold; the library's reader of every other way to
  // write a number is 33 KB.
  bool Number(double& number) {
    const bool negative = text_.starts_with('-');
    if (negative) text_.remove_prefix(1);
    double digits = 0, scale = 0;
    bool any = false;
    for (; !text_.empty(); text_.remove_prefix(1)) {
      const char c = text_.front();
      if (c == '.' && scale == 0) {
        scale = 1;
        continue;
      }
      if (c < '0' || c > '9') break;
      any = true;
      digits = digits * 10 + (c - '0');
      scale *= 10;
    }
    number = (negative ? -digits : digits) / (scale == 0 ? 1 : scale);
    return any;
  }
  void SkipBlanks() {
    while (!text_.empty() && (text_.front() == ' ' || text_.front() == ',')) text_.remove_prefix(1);
  }
  std::string_view text_;
};

std::size_t NumbersOf(char command) {
  switch (command) {
    case 'M':
    case 'L':
      return 2;
    case 'H':
    case 'V':
      return 1;
    case 'C':
      return 6;
    case 'A':
      return 7;
    default:
      return 0;
  }
}

void Draw(Builder& builder, char command, const std::array<double, 7>& n) {
  switch (command) {
    case 'M':
      return builder.MoveTo({n[0], n[1]});
    case 'L':
      return builder.LineTo({n[0], n[1]});
    case 'H':
      return builder.LineTo({n[0], builder.Current().y});
    case 'V':
      return builder.LineTo({builder.Current().x, n[0]});
    case 'C':
      return builder.CurveTo({n[0], n[1]}, {n[2], n[3]}, {n[4], n[5]});
    case 'A':
      return builder.ArcTo({n[0], n[1]}, n[3] != 0, n[4] != 0, {n[5], n[6]});
    default:
      return builder.Close();
  }
}

// The area, positive when the polygon runs clockwise on the screen.
double SignedArea(const Polygon& polygon) {
  double area = 0;
  for (std::size_t i = 0; i < polygon.size(); ++i)
    area += Cross(polygon[i], polygon[(i + 1) % polygon.size()]);
  return area / 2;
}

void AddPositive(std::vector<Polygon>& polygons, Polygon polygon) {
  if (SignedArea(polygon) < 0) std::reverse(polygon.begin(), polygon.end());
  polygons.push_back(std::move(polygon));
}

// The wedge that fills the outer side of a corner between two segments with the directions `in` and `out`.
void AddJoin(std::vector<Polygon>& polygons, PathPoint corner, PathPoint in, PathPoint out, double half) {
  const double turn = Cross(in, out);
  if (std::abs(turn) < 1e-9) return;
  const double outer = turn > 0 ? half : -half;  // the side away from the turn
  const PathPoint a = corner + PathPoint{in.y, -in.x} * outer;
  const PathPoint b = corner + PathPoint{out.y, -out.x} * outer;
  const PathPoint middle = (a + b) * 0.5 - corner;
  const double distance = Length(middle);
  const double tip = half * half / std::max(distance, 1e-9);
  if (distance > 0 && tip <= kMiterLimit * half) {
    AddPositive(polygons, {corner, a, corner + middle * (tip / distance), b});
  } else {
    AddPositive(polygons, {corner, a, b});
  }
}

// Lines of no length have no direction.
Polygon WithoutRepeats(const SubPath& part) {
  Polygon points;
  for (const PathPoint point : part.points)
    if (points.empty() || Length(point - points.back()) > 1e-9) points.push_back(point);
  if (part.closed && points.size() > 1 && Length(points.front() - points.back()) <= 1e-9) points.pop_back();
  return points;
}

void AddStroke(std::vector<Polygon>& polygons, const SubPath& part, double half) {
  const Polygon points = WithoutRepeats(part);
  if (points.size() < 2) return;
  const std::size_t segments = part.closed ? points.size() : points.size() - 1;
  Polygon directions;
  for (std::size_t i = 0; i < segments; ++i) {
    const PathPoint from = points[i];
    const PathPoint to = points[(i + 1) % points.size()];
    const PathPoint direction = (to - from) * (1 / Length(to - from));
    const PathPoint side = PathPoint{-direction.y, direction.x} * half;
    AddPositive(polygons, {from + side, to + side, to - side, from - side});
    directions.push_back(direction);
  }
  // An open path has no corner at its start; a closed one joins its last line to its first.
  for (std::size_t i = part.closed ? 0 : 1; i < segments; ++i)
    AddJoin(polygons, points[i], directions[(i + segments - 1) % segments], directions[i], half);
}

}  // namespace

// The paths are the program's own: one that cannot be read ends where that begins, and the tests see it.
FlatPath ParsePath(std::string_view path, double tolerance) {
  Builder builder(tolerance);
  Reader reader(path);
  std::array<double, 7> numbers{};
  for (char command = reader.Command(); command != '\0'; command = reader.Command()) {
    const std::size_t count = NumbersOf(command);
    if (count == 0 && command != 'Z') break;
    if (!reader.Numbers(std::span(numbers).first(count))) break;
    Draw(builder, command, numbers);
  }
  return builder.Take();
}

std::vector<Polygon> FillPolygons(const FlatPath& path) {
  std::vector<Polygon> polygons;
  for (const SubPath& part : path) polygons.push_back(part.points);
  return polygons;
}

std::vector<Polygon> StrokePolygons(const FlatPath& path, double width) {
  std::vector<Polygon> polygons;
  for (const SubPath& part : path) AddStroke(polygons, part, width / 2);
  return polygons;
}

}  // namespace sonaro
