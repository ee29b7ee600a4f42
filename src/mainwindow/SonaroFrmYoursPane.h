// The page of the user's own things: the groups and the next notice in the left column, the coming events in
// the middle. Part of SonaroFrm.
#pragma once

#include <optional>
#include <vector>

#include "forms/controls/ListView.h"
#include "mainwindow/MainPane.h"

namespace sonaro {

class YoursPane final : public EventTarget {
 public:
  explicit YoursPane(const MainContext& context);

  void LoadGroups();
  void LoadEvents();
  // Everything of the page, of which the schedule and the lists may have changed.
  void Show();
  void ShowGroups();
  void ShowCaption();
  // The station of the selected event; none without one.
  StationKey SelectedStation() const;

 private:
  std::span<const EventRow> Events() const override;
  void ShowEvents();
  void ShowNextNotice();
  // What can be done with the event in this row; no event: both buttons disabled.
  void ShowEventButtons(int row);

  // What a row of the left column stands for: the coming events, the recent list, then the groups.
  std::optional<std::size_t> GroupAt(int row) const;
  bool IsRecent(int row) const;
  const EventLine* EventAt(int row) const;
  const EventLine* SelectedEvent() const;
  int RowOf(const EventKey& event) const;  // -1 when it is not there any more
  // That of the open menu, else the selected one; nothing without either.
  std::optional<EventKey> EventMeant() const;

  void lstGroups_ItemSelected(int row);
  void lstGroups_ItemActivate(int row);
  void lstGroups_ContextMenu(int row, POINT at);
  void lstEvents_ItemSelected(int row);
  void lstEvents_ItemActivate(int row);
  void lstEvents_ContextMenu(int row, POINT at);
  void butNotifyMe_Click();
  void butPersonalShow_Click();

  class GroupRows final : public ListModel {
   public:
    explicit GroupRows(const YoursPane& pane) : pane_(pane) {}
    int RowCount() const override;
    std::string Cell(int row, int column) const override;

   private:
    const YoursPane& pane_;
  };
  class EventRows final : public ListModel {
   public:
    explicit EventRows(const YoursPane& pane) : pane_(pane) {}
    int RowCount() const override;
    std::string Cell(int row, int column) const override;

   private:
    const YoursPane& pane_;
  };

  int GroupCount() const;
  int SelectedGroupRow() const;

  const MainContext& context_;
  Form& form_;
  const FavoriteGroups& groups_;
  StationListState& listing_;
  std::vector<EventLine> events_;
  GroupRows groupRows_{*this};
  EventRows eventRows_{*this};
  ListHandle lstGroups_{form_, lstGroups};
  ListHandle lstEvents_{form_, lstEvents};
  ListHandle lstFavs_{form_, lstFavs};
  Label lblListing_{form_, lblListing};
  Label lblCount_{form_, lblCount};
  Label lblNextNotice_{form_, lblNextNotice};
  Label lblNextStation_{form_, lblNextStation};
  Label lblNextOften_{form_, lblNextOften};
  Button butNotifyMe_{form_, butNotifyMe};
  Button butPersonalShow_{form_, butPersonalShow};
};

}  // namespace sonaro
