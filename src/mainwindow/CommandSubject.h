// What a command of the main window is about: the station, the group and the event that an open menu was
// opened for, else those on show. The list may change behind an open menu; its entries act on this.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "mainwindow/StationDetailBuilder.h"
#include "stations/Commands.h"

namespace sonaro {

class FavoriteGroups;
class StationListState;

class CommandSubject {
 public:
  struct Menu {
    StationDetail station = {};
    std::vector<StationKey> stations = {};  // with `station`, when it was opened for several
    std::string group = {};  // whose button's menu it is, or which the station's list shows; "" without one
    EventLine event = {};
  };

  CommandSubject(const StationListState& listing, const FavoriteGroups& groups)
      : listing_(listing), groups_(groups) {}

  // What the right column shows from now on.
  void Show(StationDetail station) { shown_ = std::move(station); }
  const StationDetail& Shown() const { return shown_; }

  const StationDetail& Station() const { return menu_ ? menu_->station : shown_; }
  // What a command for several acts on: all that are selected, that one station, or nothing.
  std::vector<StationKey> Stations() const;
  // Nothing when the group was deleted, or no group is on show.
  std::optional<std::size_t> Group() const;
  std::string GroupName() const;
  // The group that the middle of the window shows, whose button is lit.
  std::optional<std::size_t> GroupOnShow() const;
  // What the open menu was opened for; nullptr without a menu.
  const Menu* OpenMenu() const { return menu_ ? &*menu_ : nullptr; }

  // A menu is opened, perhaps while another one is open; gives what was there before, for Close.
  std::optional<Menu> Open(Menu menu) { return std::exchange(menu_, std::move(menu)); }
  void Close(std::optional<Menu> before) { menu_ = std::move(before); }

 private:
  const StationListState& listing_;
  const FavoriteGroups& groups_;
  StationDetail shown_;
  std::optional<Menu> menu_;
};

}  // namespace sonaro
