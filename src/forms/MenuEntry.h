// A pop-up menu as a value. Portable code decides what a menu holds; forms/Menu shows it.
#pragma once

#include <string>
#include <vector>

namespace sonaro {

struct MenuEntry {
  int command = 0;   // 0 and no children: a separator line
  std::string text;  // with "&" for the access key and "\t" before the shortcut's name
  bool enabled = true;
  bool checked = false;
  std::vector<MenuEntry> children = {};
};

}  // namespace sonaro
