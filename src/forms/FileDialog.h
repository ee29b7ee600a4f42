// The system's dialogs that ask for the name of a file.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace sonaro {

// `filter` as in the string table: "Programs (*.exe)|*.exe|All Files (*.*)|*.*". "" when cancelled.
std::string AskOpenPath(HWND owner, std::string_view filter);
// Asks before an existing file is replaced. `suggested` is a plain file name; its ending is added to a name
// that has none.
std::string AskSavePath(HWND owner, std::string_view filter, std::string_view suggested);

}  // namespace sonaro
