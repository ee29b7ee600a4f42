#include "base/http/UrlEncoding.h"

namespace sonaro {
namespace {

bool StaysAsItIs(char c) {
  constexpr std::string_view kKept = "$-_.+!*'()";
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') ||
         kKept.find(c) != std::string_view::npos;
}

// Codes below 16 get one digit ("%B"), unlike the usual encoding: the service compares what it is sent as
// text.
void AppendHexWithoutPadding(std::string& out, unsigned char code) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  out += '%';
  if (code >= 16) out += kDigits[code / 16];
  out += kDigits[code % 16];
}

}  // namespace

std::string UrlEncodeQuery(std::string_view text) {
  std::string out;
  out.reserve(text.size() + text.size() / 2);
  for (const char c : text) {
    if (c == '\n') continue;
    if (c == ' ' || c == '\t' || c == '\r') {
      out += '+';
    } else if (StaysAsItIs(c)) {
      out += c;
    } else {
      AppendHexWithoutPadding(out, static_cast<unsigned char>(c));
    }
  }
  return out;
}

}  // namespace sonaro
