#include "net/ServiceAnswer.h"

#include "base/Text.h"
#include "net/UpdateFormat.h"

namespace sonaro {

// The headers come from HttpResponse, which spells this name and ends each line in one way only.
std::string RedirectTarget(std::string_view headers) {
  constexpr std::string_view kMark = "\nLocation: ";
  const std::size_t at = headers.find(kMark);
  if (at == std::string_view::npos) return {};
  const std::string_view rest = headers.substr(at + kMark.size());
  const std::size_t end = rest.find('\n');
  if (end == std::string_view::npos || end == 0) return {};
  return std::string(rest.substr(0, end - 1));  // without the carriage return
}

bool EndsWithSentinel(std::string_view body) {
  return body.size() >= update::kSentinel.size() &&
         EqualIgnoringCase(body.substr(body.size() - update::kSentinel.size()), update::kSentinel);
}

}  // namespace sonaro
