#include "text/CleanText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <map>
#include <optional>
#include <utility>

#include "base/Text.h"
#include "base/Utf8.h"

namespace sonaro {

namespace {

// Everything that shows as a gap or as nothing and separates words: control characters, also the C1 controls
// that appear when text in another encoding was taken for Latin-1, and the blanks of Unicode.
bool IsSpaceLike(char32_t c) {
  return c <= 0x20 || (c >= 0x7F && c <= 0xA0) || c == 0x1680 || (c >= 0x2000 && c <= 0x200A) ||
         c == 0x2028 || c == 0x2029 || c == 0x202F || c == 0x205F || c == 0x3000;
}

// Characters that show nothing and separate nothing: soft hyphen, zero-width space, marks of writing
// direction, byte order mark, tags, noncharacters. They are removed: a hidden direction mark can turn the
// rest of a line in a terminal or a list box around. Joiners (U+200C, U+200D) stay, since Persian and Hindi
// spell with them.
bool IsInvisible(char32_t c) {
  return c == 0xAD || c == 0x200B || c == 0x200E || c == 0x200F || (c >= 0x202A && c <= 0x202E) ||
         c == 0x2060 || (c >= 0x2066 && c <= 0x2069) || c == 0xFEFF || (c >= 0xFFF9 && c <= 0xFFFB) ||
         (c >= 0xE0000 && c <= 0xE007F) || (c & 0xFFFE) == 0xFFFE;
}

// Small letters that are a base letter with something added, after case folding.
constexpr std::array<std::pair<std::string_view, std::string_view>, 38> kBaseLetters = {{
    {"a", "àáâãäåāăąǎ"}, {"ae", "æ"},           {"c", "çćĉċč"},      {"d", "ďđð"},    {"e", "èéêëēĕėęěə"},
    {"g", "ĝğġģ"},       {"h", "ĥħ"},           {"i", "ìíîïĩīĭįı"},  {"j", "ĵ"},      {"k", "ķ"},
    {"l", "ĺļľŀł"},      {"n", "ñńņňŉ"},        {"o", "òóôõöøōŏőơ"}, {"oe", "œ"},     {"r", "ŕŗř"},
    {"s", "śŝşšș"},      {"ss", "ß"},           {"t", "ţťŧț"},       {"th", "þ"},     {"u", "ùúûüũūŭůűųư"},
    {"w", "ŵ"},          {"y", "ýÿŷ"},          {"z", "źżž"},        {"α", "ά"},      {"ε", "έ"},
    {"η", "ή"},          {"ι", "ίϊΐ"},          {"ο", "ό"},          {"υ", "ύϋΰ"},    {"ω", "ώ"},
    {"σ", "ς"},          {"е", "ёѐ"},           {"и", "ѝ"},          {"", "'’‘`´ʼ′"}, {"n", "ʼn"},
    {"", "ʹʺ"},          {"a", "ạảấầẩẫậắằẳẵặ"}, {"e", "ẹẻẽếềểễệ"},
}};

// From each accented letter to its base. Apostrophes have the empty base: they vanish from a key.
const std::map<char32_t, std::string_view>& BaseLetters() {
  static const std::map<char32_t, std::string_view> letters = [] {
    std::map<char32_t, std::string_view> map;
    for (const auto& [base, forms] : kBaseLetters) {
      for (std::size_t position = 0; position < forms.size();)
        map.emplace(NextCharacter(forms, position), base);
    }
    return map;
  }();
  return letters;
}

bool IsAsciiAlphanumeric(char32_t c) {
  return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

// Punctuation and symbols outside ASCII that separate words. U+00AA, U+00B5 and U+00BA are left out: they are
// letters. From U+1F000 on there are pictures.
bool IsWidePunctuation(char32_t c) {
  return (c >= 0x80 && c < 0xC0 && c != 0xAA && c != 0xB5 && c != 0xBA) || c == 0xD7 || c == 0xF7 ||
         (c >= 0x2000 && c <= 0x2BFF) || (c >= 0x3000 && c <= 0x303F) || (c >= 0xFF00 && c <= 0xFF0F) ||
         (c >= 0xFF1A && c <= 0xFF20) || (c >= 0xFE00 && c <= 0xFE0F) || c >= 0x1F000;
}

// One character of a match key: letters and digits without accents; a run of anything else is one blank. An
// apostrophe vanishes, so that "Rock'n'Roll" and "RocknRoll" are equal.
void AppendKeyCharacter(std::string& key, char32_t c) {
  if (c < 0x80) {
    if (IsAsciiAlphanumeric(c)) {
      key.push_back(static_cast<char>(c));
    } else if (c != '\'' && c != '`' && !key.empty() && key.back() != ' ') {
      key.push_back(' ');
    }
    return;
  }
  if (c >= 0x300 && c <= 0x36F) return;  // combining accents
  const auto base = BaseLetters().find(c);
  if (base != BaseLetters().end()) {
    key += base->second;
  } else if (IsWidePunctuation(c) || IsSpaceLike(c) || IsInvisible(c)) {
    if (!key.empty() && key.back() != ' ') key.push_back(' ');
  } else {
    AppendUtf8(key, c);
  }
}

// Only what lists really contain: the five names of XML, "nbsp", and numbers. Surrogates and numbers beyond
// Unicode are refused, since they cannot be written as UTF-8.
//
// Returns the character that the reference between '&' and ';' stands for, 0 when it is not a valid one.
char32_t ReferencedCharacter(std::string_view name) {
  constexpr std::array<std::pair<std::string_view, char32_t>, 6> kNamed = {
      {{"amp", '&'}, {"lt", '<'}, {"gt", '>'}, {"quot", '"'}, {"apos", '\''}, {"nbsp", ' '}}};
  for (const auto& [known, character] : kNamed) {
    if (name == known) return character;
  }
  if (!name.starts_with('#') || name.size() < 2) return 0;
  name.remove_prefix(1);
  const bool hexadecimal = name.front() == 'x' || name.front() == 'X';
  if (hexadecimal) name.remove_prefix(1);
  std::uint32_t value = 0;
  const auto [end, error] =
      std::from_chars(name.data(), name.data() + name.size(), value, hexadecimal ? 16 : 10);
  const bool valid = error == std::errc() && end == name.data() + name.size() && !name.empty() &&
                     value <= 0x10FFFF && (value < 0xD800 || value > 0xDFFF);
  return valid ? value : 0;
}

constexpr char32_t kReplacementCharacter = 0xFFFD;

// What the bytes 0x80 to 0x9F are in Windows-1252; the five it leaves open are the replacement character.
constexpr std::array<char16_t, 32> kWindows1252 = {
    0x20AC, 0xFFFD, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0xFFFD, 0x017D, 0xFFFD, 0xFFFD, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0xFFFD, 0x017E, 0x0178};

}  // namespace

std::string CleanText(std::string_view text) {
  std::string clean;
  clean.reserve(text.size());
  bool gap = false;
  for (std::size_t position = 0; position < text.size();) {
    const char32_t c = NextCharacter(text, position);
    if (IsInvisible(c)) continue;
    if (IsSpaceLike(c)) {
      gap = true;
      continue;
    }
    if (gap && !clean.empty()) clean.push_back(' ');
    gap = false;
    AppendUtf8(clean, c);
  }
  return clean;
}

// Decodes once. "&amp;amp;" becomes "&amp;" and no more.
std::string DecodeEntities(std::string_view text) {
  constexpr std::size_t kMaxReferenceLength = 10;
  std::string decoded;
  decoded.reserve(text.size());
  for (std::size_t position = 0; position < text.size(); ++position) {
    const std::size_t end = text[position] == '&' ? text.find(';', position) : std::string_view::npos;
    if (end != std::string_view::npos && end - position <= kMaxReferenceLength) {
      if (const char32_t c = ReferencedCharacter(text.substr(position + 1, end - position - 1)); c != 0) {
        AppendUtf8(decoded, c);
        position = end;
        continue;
      }
    }
    decoded.push_back(text[position]);
  }
  return decoded;
}

std::string MatchKey(std::string_view text) {
  const std::string folded = FoldCase(text);
  std::string key;
  key.reserve(folded.size());
  for (std::size_t position = 0; position < folded.size();) {
    AppendKeyCharacter(key, NextCharacter(folded, position));
  }
  if (key.ends_with(' ')) key.pop_back();
  return key;
}

// A name of nothing but signs ("+++") has an empty match key, and all such names would count as one station.
std::string NameKey(std::string_view name) {
  std::string key = MatchKey(name);
  return key.empty() ? FoldCase(name) : key;
}

std::vector<std::string_view> KeyWords(std::string_view key) {
  if (key.empty()) return {};
  return Split(key, ' ');
}

// Latin-1, Greek and Cyrillic small letters have their capitals at a fixed distance; other scripts have none
// or are left as they are. The final sigma (U+03C2) has no capital of its own in that place.
std::string Capitalized(std::string_view text) {
  if (text.empty()) return {};
  std::size_t position = 0;
  char32_t c = NextCharacter(text, position);
  const bool latin = (c >= 'a' && c <= 'z') || (c >= 0xE0 && c <= 0xFE && c != 0xF7);
  const bool greekOrCyrillic = (c >= 0x3B1 && c <= 0x3C9 && c != 0x3C2) || (c >= 0x430 && c <= 0x44F);
  if (latin || greekOrCyrillic) c -= 0x20;
  if (c >= 0x450 && c <= 0x45F) c -= 0x50;
  std::string result;
  AppendUtf8(result, c);
  return result.append(text.substr(position));
}

std::string JoinAsSentence(const std::vector<std::string>& parts) {
  std::string text;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    if (i > 0) text += i + 1 == parts.size() ? " and " : ", ";
    text += parts[i];
  }
  return text;
}

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
