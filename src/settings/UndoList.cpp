#include "settings/UndoList.h"

#include <utility>

namespace sonaro {

void UndoList::Add(std::string sentence, GiveBack giveBack) {
  if (entries_.size() == kDepth) entries_.pop_front();
  entries_.push_back({std::move(sentence), std::move(giveBack)});
  listener_.Removed(entries_.back().sentence);
}

// The entry is off the list while its act runs: a message box that the act shows lets Ctrl+Z through to
// another window.
void UndoList::Undo() {
  if (entries_.empty()) return listener_.NotUndone();
  Entry entry = std::move(entries_.back());
  entries_.pop_back();
  switch (entry.giveBack()) {
    case UndoResult::Done:
      return listener_.Undone(entry.sentence);
    case UndoResult::Gone:
      return listener_.NotUndone();
    case UndoResult::Kept:
      entries_.push_back(std::move(entry));
  }
}

}  // namespace sonaro
