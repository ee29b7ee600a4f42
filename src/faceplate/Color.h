// One opaque colour, its arithmetic and its text form. Pure values: window code turns them into the
// platform's.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace sonaro {

struct Color {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  friend bool operator==(Color, Color) = default;
};

inline constexpr Color kWhite{255, 255, 255};
inline constexpr Color kBlack{0, 0, 0};

// 0xRRGGBB, as colours are written in tables.
constexpr Color Rgb(std::uint32_t hex) {
  return {static_cast<std::uint8_t>(hex >> 16), static_cast<std::uint8_t>(hex >> 8),
          static_cast<std::uint8_t>(hex)};
}

// The colour `percent` (0 to 100) of the way from `from` to `to`, each channel rounded to nearest (ties to
// even).
Color Mix(Color from, Color to, int percent);

// "#RRGGBB", or the decimal number blue * 65536 + green * 256 + red that older faceplate packages hold.
// Anything else is no colour.
std::optional<Color> ParseColor(std::string_view text);
std::string FormatColor(Color color);  // "#RRGGBB"

// The WCAG 2 contrast ratio of two colours, 1 to 21, whichever is the lighter.
double ContrastRatio(Color a, Color b);

}  // namespace sonaro
