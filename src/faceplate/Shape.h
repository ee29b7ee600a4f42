// The polygon outlines of the windows, read from the faceplate's point file. Finds a window's line by its key
// and scales its points for the screen; cutting the window is forms/Screen's business.
#pragma once

#include <string_view>
#include <vector>

namespace sonaro {

class DataFolder;

// A corner of an outline in pixels from the window's top-left corner.
struct ShapePoint {
  int x = 0;
  int y = 0;
  friend bool operator==(ShapePoint, ShapePoint) = default;
};
using Outline = std::vector<ShapePoint>;

// Twips (1/1440 inch) that one pixel of the screen takes: 15 at 96 dots per inch.
struct TwipsPerPixel {
  double x = 15.0;
  double y = 15.0;
  static TwipsPerPixel OfDpi(int dpi) { return {1440.0 / dpi, 1440.0 / dpi}; }
};

// The line of the point file that begins with `key` (letter case counts); the file's last line when none
// does;
// "" for an empty file.
std::string_view OutlineLine(std::string_view fileText, std::string_view key);

// The points of one line "key=xxxxxyyyyyxxxxxyyyyy...": five characters a number. The highest index is
// length / 10 - 1 rounded to nearest (ties to even), so an incomplete last group may count; what it lacks is
// 0. A number that cannot be read is 0.
Outline ParseOutline(std::string_view line);

// Points made for 96 dots per inch, scaled to the screen and rounded to nearest (ties to even).
Outline ScaleOutline(const Outline& outline, TwipsPerPixel twips);

// Sizes of a window in pixels: what its outline was made for, and what it has.
struct OutlineSize {
  int width = 0;
  int height = 0;
};

// The outline of a window of another size than it was made for: points right of the middle keep their
// distance to the right edge, points below the middle theirs to the bottom.
Outline FitOutline(const Outline& outline, OutlineSize made, OutlineSize window);

class Shape {
 public:
  explicit Shape(DataFolder& folder) : folder_(folder) {}

  enum class Status { Ok, NoFile };
  struct Result {
    Status status = Status::NoFile;
    Outline outline;  // may be empty with Ok: the window then stays as it is
  };
  // The outline with `key`, scaled. The file is read at each call: a faceplate may replace it meanwhile.
  Result OutlineOf(std::string_view key, TwipsPerPixel twips) const;

 private:
  DataFolder& folder_;
};

}  // namespace sonaro
