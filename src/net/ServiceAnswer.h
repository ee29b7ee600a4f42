// What the answers of the service say, as far as every request looks at them.
#pragma once

#include <string>
#include <string_view>

namespace sonaro {

// The address behind "Location: " in the headers of a redirect; "" when there is none. `headers` begin with
// the status line and end their lines with CR LF.
std::string RedirectTarget(std::string_view headers);

// True when the last 100 characters of `body` are the mark of a complete update, letter case ignored.
bool EndsWithSentinel(std::string_view body);

}  // namespace sonaro
