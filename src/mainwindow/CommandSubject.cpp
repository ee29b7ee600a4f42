#include "mainwindow/CommandSubject.h"

#include "mainwindow/StationListState.h"
#include "stations/FavoriteGroups.h"

namespace sonaro {

std::optional<std::size_t> CommandSubject::GroupOnShow() const {
  const ListingState& state = listing_.State();
  if (state.holds != Holds::Group || state.middle != Middle::StationList) return std::nullopt;
  return groups_.Find(state.group);
}

// By name, since the groups may be moved while a menu is open.
std::optional<std::size_t> CommandSubject::Group() const {
  return menu_ ? groups_.Find(menu_->group) : GroupOnShow();
}

// The page of the events shows a station without a list.
std::vector<StationKey> CommandSubject::Stations() const {
  const bool listed = menu_ || listing_.State().middle == Middle::StationList;
  const std::vector<StationKey> several = menu_    ? menu_->stations
                                          : listed ? listing_.Rows().SelectedKeys()
                                                   : std::vector<StationKey>();
  if (several.size() > 1) return several;
  const StationKey one = Station().station;
  return one ? std::vector<StationKey>{one} : std::vector<StationKey>();
}

std::string CommandSubject::GroupName() const {
  const auto group = Group();
  return group ? std::string(groups_.Name(*group)) : std::string();
}

}  // namespace sonaro
