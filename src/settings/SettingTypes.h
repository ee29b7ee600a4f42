// How the text of a setting is read and written. A setting is a constant of one of these types, see
// SettingNames.h; a text that cannot be read as its type gives a value all the same, so no reader has to know
// which texts there are.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "base/Numbers.h"
#include "base/Text.h"

namespace sonaro::setting {

// Any text, as it stands; "" when it was never set.
struct Text {
  using Value = std::string;
  using Given = std::string_view;

  const char* name;

  static Value Parse(std::string stored) { return stored; }
  static std::string_view Format(Given value) { return value; }
};

// A whole number; 0 when it was never set or is none.
struct Number {
  using Value = std::int64_t;
  using Given = std::int64_t;

  const char* name;

  static Value Parse(std::string_view stored) { return NumberValue(stored); }
  static std::string Format(Given value) { return std::to_string(value); }
};

// One of two texts, read ignoring letter case and the blanks around it.
struct Switch {
  using Value = bool;
  using Given = bool;

  const char* name;
  const char* yes;
  const char* no;
  bool whenMissing;
  bool whenOther;  // some text that is neither

  Value Parse(std::string_view stored) const {
    if (stored.empty()) return whenMissing;
    const std::string_view text = TrimBlanks(stored);
    if (EqualIgnoringCase(text, whenOther ? no : yes)) return !whenOther;
    return whenOther;
  }
  std::string_view Format(Given value) const { return value ? yes : no; }
};

// One text for each value of an enum that counts from 0, read as those of a switch.
template <class Enum, std::size_t Count>
struct Choice {
  using Value = Enum;
  using Given = Enum;

  const char* name;
  std::array<std::string_view, Count> texts;
  Enum whenOther;

  Value Parse(std::string_view stored) const {
    const std::string_view text = stored.empty() ? stored : TrimBlanks(stored);
    for (std::size_t i = 0; i < Count; ++i) {
      if (texts[i].empty() ? stored.empty() : EqualIgnoringCase(text, texts[i])) return static_cast<Enum>(i);
    }
    return whenOther;
  }
  std::string_view Format(Given value) const { return texts[static_cast<std::size_t>(value)]; }
};

}  // namespace sonaro::setting
