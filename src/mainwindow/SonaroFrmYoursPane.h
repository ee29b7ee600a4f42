// The page of the user's own things: the groups and the next notice in the left column, the coming events in
// the middle. Part of SonaroFrm.
#pragma once

#include <optional>
#include <vector>

#include "forms/controls/ListView.h"
#include "mainwindow/MainWindowCalls.h"
#include "settings/AppState.h"

namespace sonaro {

class FavoriteGroups;
class Form;
class RecentList;
class StationListState;

class YoursPane {
 public:
  YoursPane(Form& form, const FavoriteGroups& groups, const RecentList& recent,
            const StationListState& listing, const MainWindowCalls& calls);

  void Load();
  void ShowGroups();
  void ShowEvents();
  void ShowNextNotice();
  // What can be done with the event in this row; a row that is none has nothing.
  void ShowEventButtons(int row);

  // What a row of the left column stands for: the coming events, the recent list, then the groups.
  std::optional<std::size_t> GroupAt(int row) const;
  bool IsRecent(int row) const;
  const EventLine* EventAt(int row) const;
  const EventLine* SelectedEvent() const;
  int RowOf(const EventLine& event) const;  // -1 when it is not there any more

 private:
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

  Form& form_;
  const FavoriteGroups& groups_;
  const RecentList& recent_;
  const StationListState& listing_;
  const MainWindowCalls& calls_;
  std::vector<EventLine> events_;
  GroupRows groupRows_{*this};
  EventRows eventRows_{*this};
};

}  // namespace sonaro
