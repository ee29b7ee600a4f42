// Dragging with the mouse: rows of the station list and buttons of the group bar, to buttons, rows and the
// scan's window. Follows the mouse and does what a drop means. Part of SonaroFrm.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "mainwindow/MainPane.h"

namespace sonaro {

class GroupsPane;
class ListPane;

class DragPane final : public EventTarget {
 public:
  DragPane(const MainContext& context, ListPane& list, GroupsPane& groups)
      : context_(context), form_(context.form), list_(list), groups_(groups) {}

  // A message to the form; true when a drag ended with it.
  bool Handle(UINT message);

 private:
  std::span<const EventRow> Events() const override;
  enum class Thing { Nothing, Row, Group, Scan };
  struct Drop {
    Thing onto = Thing::Nothing;
    int to = 0;
    POINT at = {};  // on the screen
  };

  void butFavs_BeginDrag(int slot);
  void lstFavs_BeginDrag(int row);
  void Begin(Thing what, std::vector<StationKey> stations, std::string group);
  void End();
  void Take(const Drop& drop, Thing what, const std::vector<StationKey>& stations, const std::string& group);
  Drop DropAt(POINT screen) const;
  int SlotAt(POINT screen) const;
  void Follow();

  const MainContext& context_;
  Form& form_;
  ListPane& list_;
  GroupsPane& groups_;
  ControlArray<GroupButton> butFavs_{form_, butFavs, 10};
  ListHandle lstFavs_{form_, lstFavs};
  Thing what_ = Thing::Nothing;  // what is dragged
  // The rows' stations or the group's name, asked when the drag begins: rows and groups may change while the
  // button is down.
  std::vector<StationKey> stations_;
  std::string group_;
  int overSlot_ = -1;
};

}  // namespace sonaro
