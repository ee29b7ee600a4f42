// Texts on their way between the program and the system. The program speaks std::string in the process's ANSI
// code page (UTF-8 by the manifest); windows are Unicode inside, so that typed and shown text of any script
// survives.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

#include "settings/Strings.h"

namespace sonaro {

// Bytes that are not valid in the code page become U+FFFD or "?".
std::wstring Widen(std::string_view text);
std::string Narrow(std::wstring_view text);

// A window's caption or a control's text.
std::wstring TextOfWindow(HWND window);

// The words of a caption whose "&" marks an access key; "&&" is one "&".
std::wstring WithoutAccessKey(std::wstring_view caption);

// The texts of the program's own string table.
class StringTable : public Strings {
 public:
  std::string Load(int id) const override;
};

// Puts a text on the system's clipboard. False when another program holds it.
bool CopyToClipboard(HWND owner, std::string_view text);

}  // namespace sonaro
