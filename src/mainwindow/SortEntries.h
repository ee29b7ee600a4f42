// The commands that sort a station list: header buttons and menu entries, each with its sort key and order.
#pragma once

#include <optional>
#include <span>

#include "mainwindow/StationRows.h"

namespace sonaro {

struct SortEntry {
  int key;           // 0 = name, 1 to 8 = sub-item
  SortOrder order;   // a visible column ascending, a rating descending
  int headerButton;  // the header button that looks active afterwards; 0 = none
  int sortMenu;      // the entry of the sort menu
  int actionMenu;    // the entry of the action menu
  int captionId;     // in the string table
};

// In the order of the menus.
std::span<const SortEntry> SortEntries();
// The entry that a header button or menu command stands for.
std::optional<SortEntry> SortEntryOf(int command);

}  // namespace sonaro
