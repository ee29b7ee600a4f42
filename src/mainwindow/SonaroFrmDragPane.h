// Dragging with the mouse: rows of the station list and keys of the group bar, to keys, rows and the scan's
// window. Follows the mouse and says what was dropped where; the main window does it. Part of SonaroFrm.
#pragma once

#include <windows.h>

#include <functional>
#include <optional>
#include <string>

namespace sonaro {

class Form;

class DragPane {
 public:
  enum class Thing { Nothing, Row, Group, Scan };
  struct Drop {
    Thing what = Thing::Nothing;
    std::string name;  // the key of the row or the name of the group that the drag began with
    Thing onto = Thing::Nothing;
    int to = 0;
    POINT at = {};  // on the screen
  };

  // What it asks while it follows the mouse.
  struct Asks {
    // What the drag begins with; "" can not be dragged. It is asked then, because rows and groups may change
    // while the button is down.
    std::function<std::string(int row)> rowKey;
    std::function<std::string(int slot)> groupName;
    std::function<void(int slot)> over;          // another key of the group bar is below the mouse; -1: none
    std::function<bool(int x, int y)> scanIsAt;  // whether the scan's window lies there; may be empty
  };

  explicit DragPane(Form& form) : form_(form) {}

  // Lets rows of the list and keys of the group bar be dragged.
  void Load(Asks asks);

  // A message to the form. Something came to its end: what was dropped where.
  std::optional<Drop> Handle(UINT message);

 private:
  static LRESULT CALLBACK GroupButtonProcedure(HWND key, UINT message, WPARAM wParam, LPARAM lParam,
                                               UINT_PTR slot, DWORD_PTR self) noexcept;
  void WatchGroupButton(UINT message, WPARAM wParam, LPARAM lParam, int slot);
  void Begin(Thing what, std::string name);
  void End();
  Drop DropAt(POINT screen) const;
  int SlotAt(POINT screen) const;
  void Follow();

  Form& form_;
  Asks asks_;
  Thing what_ = Thing::Nothing;
  std::string name_;
  int overSlot_ = -1;
  POINT pressedAt_ = {};
  int pressedSlot_ = -1;
};

}  // namespace sonaro
