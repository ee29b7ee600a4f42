// The system's clipboard, as far as the program uses it.
#pragma once

#include <windows.h>

#include <string_view>

namespace sonaro {

// Puts a text there. False when another program holds the clipboard.
bool CopyToClipboard(HWND owner, std::string_view text);

}  // namespace sonaro
