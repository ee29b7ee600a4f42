#include "forms/portable/MenuText.h"

namespace sonaro {

std::string MenuText(std::string_view text) {
  std::string out;
  for (const char c : text) {
    if (c == '&') out += '&';
    out += c == '\t' ? ' ' : c;
  }
  return out;
}

const MenuEntry* FindEntry(const MenuEntries& entries, int command) {
  for (const MenuEntry& entry : entries) {
    if (entry.command == command && command != 0) return &entry;
    if (const MenuEntry* found = FindEntry(entry.children, command)) return found;
  }
  return nullptr;
}

}  // namespace sonaro
