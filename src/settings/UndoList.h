// What the user has done to his own in this session and can take back, the last act first. Whoever removes
// something of the user's, or puts it somewhere with one click, adds the act that undoes it; Ctrl+Z and the
// button in the status line call Undo. Owned by Application; every window shares it.
//
// An act holds values only (keys, names, lines): between the removal and its undoing the files, the lists and
// the windows may change.
#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <string>

namespace sonaro {

// What became of an act that gives something back.
enum class UndoResult {
  Done,
  Kept,  // it could not be saved, or there is no room, and the user has been told: it can be tried again
  Gone   // there is no place for it any more
};

class UndoListener {
 public:
  virtual ~UndoListener() = default;
  virtual void Removed(const std::string& sentence) = 0;  // just now, and it can be undone
  virtual void Undone(const std::string& sentence) = 0;   // the sentence of the removal
  virtual void NotUndone() = 0;                           // there was nothing to undo, or no place for it
};

class UndoList {
 public:
  static constexpr std::size_t kDepth = 20;
  // A function, since only the place of the removal knows what gives it back.
  using GiveBack = std::function<UndoResult()>;

  explicit UndoList(UndoListener& listener) : listener_(listener) {}

  // `sentence` says what was removed: "Removed Jazz FM from Morning." The oldest of too many is forgotten.
  void Add(std::string sentence, GiveBack giveBack);
  // Undoes the last removal. The user is told in every case.
  void Undo();

 private:
  struct Entry {
    std::string sentence;
    GiveBack giveBack;
  };

  UndoListener& listener_;
  std::deque<Entry> entries_;
};

}  // namespace sonaro
