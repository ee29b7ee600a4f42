#include "settings/Strings.h"

namespace sonaro {

std::string FormatText(std::string_view text, std::initializer_list<std::string_view> values) {
  std::string filled;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const bool mark = text[at] == '{' && at + 2 < text.size() && text[at + 2] == '}' && text[at + 1] >= '0' &&
                      text[at + 1] <= '9';
    const auto number = mark ? static_cast<std::size_t>(text[at + 1] - '0') : values.size();
    if (number < values.size()) {
      filled += values.begin()[number];
      at += 2;
    } else {
      filled += text[at];
    }
  }
  return filled;
}

std::string FormatCount(std::size_t figure, DecimalMode mode) {
  std::string text = std::to_string(figure);
  for (std::size_t place = text.size(); place > 3;) {
    place -= 3;
    text.insert(place, 1, mode == DecimalMode::Comma ? '.' : ',');
  }
  return text;
}

}  // namespace sonaro
