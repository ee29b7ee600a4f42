#include "forms/Menu.h"

#include "base/Text.h"

namespace sonaro {

namespace {

constexpr std::size_t kMaxBytes = 60;  // two names and the words around them stay on the screen

}  // namespace

// A menu takes "&" for the mark of an access key, so a real one is doubled, and what stands behind a tab for
// a shortcut at the right edge.
std::string MenuText(std::string_view text) {
  const std::string_view shown = TruncateUtf8(text, kMaxBytes);
  std::string out;
  for (const char c : shown) {
    if (c == '&') out += '&';
    out += c == '\t' ? ' ' : c;
  }
  if (shown.size() < text.size()) out += "...";
  return out;
}

// Commands are unique in a menu; 0 is every separator's.
const MenuEntry* FindEntry(const MenuEntries& entries, int command) {
  for (const MenuEntry& entry : entries) {
    if (entry.command == command && command != 0) return &entry;
    if (const MenuEntry* found = FindEntry(entry.children, command)) return found;
  }
  return nullptr;
}

}  // namespace sonaro
