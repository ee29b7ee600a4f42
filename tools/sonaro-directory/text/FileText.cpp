#include "text/FileText.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>

#include "base/Utf8.h"

namespace sonaro {
namespace {

constexpr char32_t kReplacementCharacter = 0xFFFD;

// What the bytes 0x80 to 0x9F are in Windows-1252; the five it leaves open are the replacement character.
constexpr std::array<char16_t, 32> kWindows1252 = {
    0x20AC, 0xFFFD, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0xFFFD, 0x017D, 0xFFFD, 0xFFFD, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0xFFFD, 0x017E, 0x0178};

}  // namespace

char32_t NextCharacter(std::string_view text, std::size_t& position) {
  const Utf8Character character = DecodeUtf8(text, position);
  position += std::max<std::size_t>(character.length, 1);
  return character.length == 0 ? kReplacementCharacter : character.code;
}

std::string DecodeFileText(std::string_view bytes) {
  if (bytes.starts_with(kMarkOfUtf8)) bytes.remove_prefix(kMarkOfUtf8.size());
  if (const std::optional<Utf16Text> wide = DecodeMarkedUtf16(bytes)) return wide->text;

  // One broken character in a UTF-8 list must not garble all the others, so the majority decides.
  std::size_t characters = 0;
  std::size_t broken = 0;
  for (std::size_t position = 0; position < bytes.size();) {
    const std::size_t length = DecodeUtf8(bytes, position).length;
    if (length == 0) ++broken;
    if (length > 1) ++characters;
    position += std::max<std::size_t>(length, 1);
  }
  if (broken == 0) return std::string(bytes);
  std::string text;
  text.reserve(bytes.size() + broken * 2);
  // Mostly UTF-8: the broken bytes are replaced. Else the file is taken for Windows-1252, which any bytes
  // are.
  if (characters >= broken) {
    for (std::size_t position = 0; position < bytes.size();) AppendUtf8(text, NextCharacter(bytes, position));
    return text;
  }
  for (const char byte : bytes) {
    const auto value = static_cast<std::uint8_t>(byte);
    AppendUtf8(text, value >= 0x80 && value < 0xA0 ? kWindows1252[value - 0x80U] : value);
  }
  return text;
}

}  // namespace sonaro
