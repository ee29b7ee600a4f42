#include "settings/FormatCount.h"

namespace sonaro {

std::string FormatCount(std::size_t figure, DecimalMode mode) {
  std::string text = std::to_string(figure);
  for (std::size_t place = text.size(); place > 3;) {
    place -= 3;
    text.insert(place, 1, mode == DecimalMode::Comma ? '.' : ',');
  }
  return text;
}

}  // namespace sonaro
