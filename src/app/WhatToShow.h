// What a command line asks the program to show.
#pragma once

#include <string_view>

namespace sonaro {

// True for "WinStart=Yes" in any letter case and nothing else: the system started the program with the
// session.
bool IsStartWithWindows(std::string_view commandLine);

// True when the command line asks for a view ("DoWhat=Bring..."): no splash window then.
bool AsksForView(std::string_view commandLine);

// The main window's view for a command line: "Browse" for "DoWhat=BringBrowse", "Search" for
// "DoWhat=BringSearch", "YourSonaro" for "DoWhat=BringEvents". "" for everything else, "DoWhat=BringUp"
// included: the main window then opens as it always does.
std::string_view WhatToShow(std::string_view commandLine);

}  // namespace sonaro
