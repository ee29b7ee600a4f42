// Dragging with the mouse: rows of the station list and keys of the group bar, to keys, rows and the scan's
// window. Follows the mouse and says what was dropped where; the main window does it. Part of SonaroFrm.
#pragma once

#include <windows.h>

#include <functional>
#include <optional>

namespace sonaro {

class Form;

class DragPane {
 public:
  enum class Thing { Nothing, Row, Group, Scan };
  struct Drop {
    Thing what = Thing::Nothing;
    int from = 0;  // row, or slot of the group bar
    Thing onto = Thing::Nothing;
    int to = 0;
    POINT at = {};  // on the screen
  };

  explicit DragPane(Form& form) : form_(form) {}

  // Lets keys of the group bar be dragged. `over` is called when the key that the mouse is over changes, so
  // that the bar can show it (-1: none); `scanIsAt` tells whether the scan's window lies under the mouse.
  void Load(std::function<void(int slot)> over, std::function<bool(int x, int y)> scanIsAt);
  void BeginRow(int row) { Begin(Thing::Row, row); }

  // A message to the form. Something came to its end: what was dropped where.
  std::optional<Drop> Handle(UINT message);

 private:
  static LRESULT CALLBACK GroupKeyProcedure(HWND key, UINT message, WPARAM wParam, LPARAM lParam,
                                            UINT_PTR slot, DWORD_PTR self) noexcept;
  void WatchKey(HWND key, UINT message, WPARAM wParam, LPARAM lParam, int slot);
  void Begin(Thing what, int from);
  void End();
  Drop DropAt(POINT screen) const;
  int SlotAt(POINT screen) const;
  void Follow();

  Form& form_;
  std::function<void(int slot)> over_;
  std::function<bool(int x, int y)> scanIsAt_;
  Thing what_ = Thing::Nothing;
  int from_ = 0;
  int overSlot_ = -1;
  POINT pressedAt_ = {};
  int pressedSlot_ = -1;
};

}  // namespace sonaro
