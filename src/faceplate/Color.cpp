#include "faceplate/Color.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>

#include "base/Numbers.h"
#include "base/Text.h"

namespace sonaro {
namespace {

std::uint8_t MixChannel(int from, int to, int percent) {
  return static_cast<std::uint8_t>(std::nearbyint((from * 100 + (to - from) * percent) / 100.0));
}

// The light that a channel gives, 0 to 1, as WCAG 2 defines it.
double Linear(std::uint8_t channel) {
  const double value = channel / 255.0;
  return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double Luminance(Color color) {
  return 0.2126 * Linear(color.red) + 0.7152 * Linear(color.green) + 0.0722 * Linear(color.blue);
}

}  // namespace

Color Mix(Color from, Color to, int percent) {
  return {MixChannel(from.red, to.red, percent), MixChannel(from.green, to.green, percent),
          MixChannel(from.blue, to.blue, percent)};
}

// "#RRGGBB", or the decimal number in which the system keeps colours, 0x00BBGGRR: red is the lowest byte.
std::optional<Color> ParseColor(std::string_view text) {
  text = TrimBlanks(text);
  if (text.starts_with('#')) {
    text.remove_prefix(1);
    std::uint32_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, 16);
    if (text.size() != 6 || error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return Rgb(value);
  }
  if (text.find('.') != std::string_view::npos || !IsNumeric(text)) return std::nullopt;
  const std::int64_t value = NumberValue(text);
  if (value < 0 || value > 0xFFFFFF) return std::nullopt;
  const Color reversed = Rgb(static_cast<std::uint32_t>(value));
  return Color{reversed.blue, reversed.green, reversed.red};
}

std::string FormatColor(Color color) {
  std::array<char, 8> text{};
  std::snprintf(text.data(), text.size(), "#%02X%02X%02X", color.red, color.green, color.blue);
  return text.data();
}

// From 1 (no contrast) to 21 (black on white).
double ContrastRatio(Color a, Color b) {
  const double first = Luminance(a);
  const double second = Luminance(b);
  return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

}  // namespace sonaro
