#include "stations/WebAddress.h"

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

// A host name or a bracketed address with an optional port, behind an optional user.
bool IsAuthority(std::string_view text) {
  text.remove_prefix(text.rfind('@') + 1);
  const std::size_t hostEnd =
      text.starts_with('[') ? text.find(']') + 1 : std::min(text.find(':'), text.size());
  if (hostEnd == 0) return false;
  const std::string_view port = text.substr(hostEnd);
  return port.empty() || (port.size() > 1 && port[0] == ':' &&
                          port.find_first_not_of("0123456789", 1) == std::string_view::npos);
}

}  // namespace

bool IsWebAddress(std::string_view text) {
  if (!TakeScheme(text, "http://") && !TakeScheme(text, "https://")) return false;
  return IsAuthority(text.substr(0, text.find_first_of("/?#\\"))) &&
         std::none_of(text.begin(), text.end(),
                      [](unsigned char c) { return c <= 0x20 || c == 0x7F || c == '"'; });
}

}  // namespace sonaro
