#include "base/Numbers.h"

#include <charconv>
#include <limits>

#include "base/Text.h"

namespace sonaro {
namespace {

bool IsSign(char c) { return c == '+' || c == '-'; }

std::string_view TakeDigits(std::string_view& text) {
  std::size_t count = 0;
  while (count < text.size() && IsDigit(text[count])) ++count;
  const std::string_view digits = text.substr(0, count);
  text.remove_prefix(count);
  return digits;
}

}  // namespace

// Lenient on purpose: a wrong number in a file must not keep the rest of its line from being read.
std::int64_t NumberValue(std::string_view text) {
  text = TrimBlanks(text);
  const bool negative = text.starts_with('-');
  if (text.starts_with('+')) {
    text.remove_prefix(1);
    // from_chars takes a minus of its own, so "+-5" would otherwise be a number.
    if (text.starts_with('-')) return 0;
  }
  std::int64_t value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  using Limits = std::numeric_limits<std::int64_t>;
  if (error == std::errc::result_out_of_range) return negative ? Limits::min() : Limits::max();
  return value;
}

bool IsNumeric(std::string_view text) {
  text = TrimBlanks(text);
  if (!text.empty() && IsSign(text.front())) text.remove_prefix(1);
  if (TakeDigits(text).empty()) return false;
  if (!text.starts_with('.')) return text.empty();
  text.remove_prefix(1);
  return !TakeDigits(text).empty() && text.empty();
}

// Strict, unlike NumberValue: an identifier with anything behind it is another one or none.
bool ParseStationId(std::string_view text, std::int32_t& id) {
  text = TrimBlanks(text);
  if (text.starts_with('+')) {
    text.remove_prefix(1);
    if (text.starts_with('-')) return false;
  }
  const char* const textEnd = text.data() + text.size();
  std::int32_t value = 0;
  const auto [end, error] = std::from_chars(text.data(), textEnd, value);
  if (error != std::errc() || end != textEnd) return false;
  id = value;
  return true;
}

}  // namespace sonaro
