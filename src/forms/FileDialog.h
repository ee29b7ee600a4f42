// The system's dialogs that ask for the name of a file.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>
#include <vector>

namespace sonaro {

// `filter` as in the string table: "Programs (*.exe)|*.exe|All Files (*.*)|*.*". "" when cancelled.
std::string AskOpenPath(HWND owner, std::string_view filter);
// Asks before an existing file is replaced. `suggested` is a plain file name; its ending is added to a name
// that has none.
std::string AskSavePath(HWND owner, std::string_view filter, std::string_view suggested);

// The files of a WM_DROPFILES, whose `drop` (its first parameter) is freed. A window takes them with the
// style WS_EX_ACCEPTFILES.
std::vector<std::string> TakeDroppedPaths(WPARAM drop);

}  // namespace sonaro
