#include "stations/FieldText.h"

#include <algorithm>

#include "base/Text.h"

namespace sonaro {

std::string CleanField(std::string_view text, std::size_t maxBytes) {
  std::string clean(text);
  std::replace_if(
      clean.begin(), clean.end(), [](unsigned char c) { return c < 0x20 || c == 0x7F; }, ' ');
  return std::string(TrimBlanks(TruncateUtf8(TrimBlanks(clean), maxBytes)));
}

}  // namespace sonaro
