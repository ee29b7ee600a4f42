#include "app/WhatToShow.h"

#include "base/Text.h"

namespace sonaro {

bool IsStartWithWindows(std::string_view commandLine) {
  return EqualIgnoringCase(commandLine, "WinStart=Yes");
}

bool AsksForView(std::string_view commandLine) { return StartsWithIgnoringCase(commandLine, "DoWhat=Bring"); }

std::string_view WhatToShow(std::string_view commandLine) {
  if (EqualIgnoringCase(commandLine, "DoWhat=BringEvents")) return "YourSonaro";
  if (EqualIgnoringCase(commandLine, "DoWhat=BringBrowse")) return "Browse";
  if (EqualIgnoringCase(commandLine, "DoWhat=BringSearch")) return "Search";
  return "";
}

}  // namespace sonaro
