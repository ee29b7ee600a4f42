#include "playback/WebAddress.h"

#include <algorithm>

namespace sonaro {

namespace {

// Letter case of ASCII only: a folding that knows more letters would let look-alikes through.
char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool TakeScheme(std::string_view& text, std::string_view scheme) {
  if (text.size() < scheme.size()) return false;
  for (std::size_t i = 0; i < scheme.size(); ++i) {
    if (Lower(text[i]) != scheme[i]) return false;
  }
  text.remove_prefix(scheme.size());
  return true;
}

}  // namespace

bool IsWebAddress(std::string_view text) {
  if (!TakeScheme(text, "http://") && !TakeScheme(text, "https://")) return false;
  if (text.empty() || text.find_first_of("/?#:") == 0) return false;
  return std::none_of(text.begin(), text.end(),
                      [](unsigned char c) { return c <= 0x20 || c == 0x7F || c == '"'; });
}

}  // namespace sonaro
