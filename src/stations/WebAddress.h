// Which addresses may be opened in the browser. Shared by Sonaro and lweb, so it needs nothing else.
#pragma once

#include <string_view>

namespace sonaro {

// True for "http://" or "https://" in any letter case followed by a host, without blanks, control characters
// and double quotes anywhere.
bool IsWebAddress(std::string_view text);

}  // namespace sonaro
