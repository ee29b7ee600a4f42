// Reads tags and attributes of XML, no more: lists of stations keep all they have to say in attributes. It is
// no validating parser. Documents that are not quite XML are common (an "&" that is not escaped, a missing
// end tag) and are read as far as their meaning is clear. No entities are defined or fetched from anywhere.
#include "base/xml/OutlineReader.h"

#include <charconv>
#include <cstdint>

#include "base/Text.h"
#include "base/Utf8.h"

namespace sonaro {
namespace {

constexpr std::string_view kBlanks = " \t\r\n";

struct Reference {
  std::string_view name;
  char character;
};
constexpr Reference kReferences[] = {{"amp", '&'}, {"lt", '<'}, {"gt", '>'}, {"quot", '"'}, {"apos", '\''}};

bool IsScalar(std::uint32_t code) {
  return code != 0 && code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF);
}

// Appends what "&name;" stands for. False when it stands for nothing.
bool AppendReference(std::string_view name, std::string& out) {
  for (const Reference& reference : kReferences) {
    if (reference.name == name) {
      out += reference.character;
      return true;
    }
  }
  if (!name.starts_with('#')) return false;
  name.remove_prefix(1);
  int base = 10;
  if (name.starts_with('x') || name.starts_with('X')) {
    name.remove_prefix(1);
    base = 16;
  }
  std::uint32_t code = 0;
  const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), code, base);
  if (error != std::errc() || end != name.data() + name.size() || !IsScalar(code)) return false;
  AppendUtf8(out, code);
  return true;
}

// References replaced; one that means nothing stays as it is written, which is what people who forgot to
// escape an "&" meant.
std::string Unescaped(std::string_view text) {
  std::string out;
  while (!text.empty()) {
    const std::size_t mark = text.find('&');
    out += text.substr(0, mark);
    if (mark == std::string_view::npos) break;
    text.remove_prefix(mark + 1);
    // The longest reference that means something is "#x10FFFF", some leading zeros included.
    const std::size_t end = text.substr(0, 12).find(';');
    if (end != std::string_view::npos && AppendReference(text.substr(0, end), out)) {
      text.remove_prefix(end + 1);
    } else {
      out += '&';
    }
  }
  return out;
}

}  // namespace

std::string XmlElement::Value(std::initializer_list<std::string_view> names) const {
  for (const std::string_view wanted : names) {
    for (const Attribute& attribute : attributes) {
      // Letter case differs from writer to writer ("xmlUrl", "xmlurl"), and an empty attribute counts as
      // missing.
      if (!attribute.value.empty() && EqualIgnoringCase(attribute.name, wanted)) return attribute.value;
    }
  }
  return {};
}

// Nothing at the end and after damage. Elements read before the damage stand: a list that was cut off gives
// the stations up to there.
std::optional<XmlElement> OutlineReader::Next() {
  while (!damaged_) {
    const std::size_t tag = rest_.find('<');
    if (tag == std::string_view::npos) return std::nullopt;
    rest_.remove_prefix(tag + 1);
    if (rest_.starts_with('!') || rest_.starts_with('?')) {
      damaged_ = !SkipMarkup();
      continue;
    }
    XmlElement element;
    element.isEnd = rest_.starts_with('/');
    if (element.isEnd) rest_.remove_prefix(1);
    element.name = TakeName();
    if (element.name.empty() || !ReadAttributes(element)) break;
    return element;
  }
  damaged_ = true;
  return std::nullopt;
}

std::string OutlineReader::TextAhead() const {
  std::string_view text = rest_.substr(0, rest_.find('<'));
  const std::size_t start = text.find_first_not_of(kBlanks);
  if (start == std::string_view::npos) return {};
  return Unescaped(text.substr(start, text.find_last_not_of(kBlanks) + 1 - start));
}

bool OutlineReader::SkipTo(std::string_view end) {
  const std::size_t at = rest_.find(end);
  if (at == std::string_view::npos) return false;
  rest_.remove_prefix(at + end.size());
  return true;
}

// A document type with declarations of its own ends at its first ">". What is left of it holds no elements
// and does no harm.
bool OutlineReader::SkipMarkup() {
  if (rest_.starts_with("!--")) return SkipTo("-->");
  if (rest_.starts_with("![CDATA[")) return SkipTo("]]>");
  if (rest_.starts_with('?')) return SkipTo("?>");
  return SkipTo(">");
}

std::string_view OutlineReader::TakeName() {
  const std::size_t end = rest_.find_first_of(" \t\r\n/>=<\"'");
  const std::string_view name = rest_.substr(0, end);
  rest_.remove_prefix(name.size());
  return name;
}

void OutlineReader::SkipBlanks() {
  const std::size_t start = rest_.find_first_not_of(kBlanks);
  rest_.remove_prefix(start == std::string_view::npos ? rest_.size() : start);
}

bool OutlineReader::ReadAttributes(XmlElement& element) {
  while (true) {
    SkipBlanks();
    if (rest_.starts_with("/>")) {
      rest_.remove_prefix(2);
      element.isEmpty = true;
      return true;
    }
    if (rest_.starts_with('>')) {
      rest_.remove_prefix(1);
      return true;
    }
    if (!ReadAttribute(element)) return false;
  }
}

// Values stand in quotes of either kind. One without is damage: where it ends would be a guess.
bool OutlineReader::ReadAttribute(XmlElement& element) {
  const std::string_view name = TakeName();
  SkipBlanks();
  if (name.empty() || !rest_.starts_with('=')) return false;
  rest_.remove_prefix(1);
  SkipBlanks();
  if (!rest_.starts_with('"') && !rest_.starts_with('\'')) return false;
  const char quote = rest_[0];
  const std::size_t end = rest_.find(quote, 1);
  if (end == std::string_view::npos) return false;
  element.attributes.push_back({name, Unescaped(rest_.substr(1, end - 1))});
  rest_.remove_prefix(end + 1);
  return true;
}

std::string XmlText(std::string_view text) {
  std::string out;
  for (const char c : text) {
    switch (c) {
      case '&':
        out += "&amp;";
        break;
      case '<':
        out += "&lt;";
        break;
      case '>':
        out += "&gt;";
        break;
      case '"':
        out += "&quot;";
        break;
      default:
        // Control characters may not occur in XML in any form.
        out += static_cast<unsigned char>(c) < ' ' ? ' ' : c;
    }
  }
  return out;
}

}  // namespace sonaro
