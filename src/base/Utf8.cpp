#include "base/Utf8.h"

namespace sonaro {

Utf8Character DecodeUtf8(std::string_view text, std::size_t position) {
  const auto byte = [&](std::size_t offset) { return static_cast<unsigned char>(text[position + offset]); };
  // The lead byte tells the length; a byte that can lead nothing, a continuation byte among them, leaves it
  // at 0.
  const unsigned char lead = byte(0);
  if (lead < 0x80) return {lead, 1};
  std::size_t length = 0;
  char32_t code = 0;
  char32_t smallest = 0;
  if ((lead & 0xE0) == 0xC0) {
    length = 2, code = lead & 0x1Fu, smallest = 0x80;
  } else if ((lead & 0xF0) == 0xE0) {
    length = 3, code = lead & 0x0Fu, smallest = 0x800;
  } else if ((lead & 0xF8) == 0xF0) {
    length = 4, code = lead & 0x07u, smallest = 0x10000;
  }
  if (length == 0 || text.size() - position < length) return {};
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(i) & 0xC0) != 0x80) return {};
    code = (code << 6) | (byte(i) & 0x3Fu);
  }
  // Forms that are longer than needed are refused as well: they would let a character slip past comparisons
  // of bytes.
  const bool surrogate = code >= 0xD800 && code < 0xE000;
  if (code < smallest || code > 0x10FFFF || surrogate) return {};
  return {code, length};
}

// `code` must be a character: halves of surrogates are replaced before they come here.
void AppendUtf8(std::string& text, char32_t code) {
  const auto put = [&](char32_t byte) { text.push_back(static_cast<char>(byte)); };
  if (code < 0x80) {
    put(code);
    return;
  }
  if (code < 0x800) {
    put(0xC0 | (code >> 6));
  } else {
    if (code < 0x10000) {
      put(0xE0 | (code >> 12));
    } else {
      put(0xF0 | (code >> 18));
      put(0x80 | ((code >> 12) & 0x3F));
    }
    put(0x80 | ((code >> 6) & 0x3F));
  }
  put(0x80 | (code & 0x3F));
}

namespace {

constexpr char32_t kReplacementCharacter = 0xFFFD;

Utf16Text DecodeUtf16(std::string_view bytes, bool bigEndian) {
  Utf16Text decoded;
  char32_t high = 0;  // the first half of a character, waiting for its second
  const auto appendHalf = [&] {
    AppendUtf8(decoded.text, kReplacementCharacter);
    decoded.damaged = true;
  };
  // Characters beyond U+FFFF are two units, a high and a low half. A half without its other half is damage.
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    const char32_t first = static_cast<unsigned char>(bytes[i]);
    const char32_t second = static_cast<unsigned char>(bytes[i + 1]);
    const char32_t unit = bigEndian ? first << 8 | second : second << 8 | first;
    const bool low = unit >= 0xDC00 && unit <= 0xDFFF;
    if (high != 0 && low) {
      AppendUtf8(decoded.text, 0x10000 + ((high - 0xD800) << 10) + (unit - 0xDC00));
    } else {
      if (high != 0 || low) appendHalf();
      if (!low && (unit < 0xD800 || unit > 0xDBFF)) AppendUtf8(decoded.text, unit);
    }
    high = unit >= 0xD800 && unit <= 0xDBFF ? unit : 0;
  }
  // What ends in the middle of a unit or a character is damaged, and the rest of it is kept.
  if (high != 0 || bytes.size() % 2 != 0) appendHalf();
  return decoded;
}

}  // namespace

// Both marks have two bytes, so either may be cut off by the length of one.
std::optional<Utf16Text> DecodeMarkedUtf16(std::string_view bytes) {
  const bool little = bytes.starts_with(kMarkOfUtf16Little);
  if (!little && !bytes.starts_with(kMarkOfUtf16Big)) return std::nullopt;
  return DecodeUtf16(bytes.substr(kMarkOfUtf16Little.size()), !little);
}

}  // namespace sonaro
