#include "mainwindow/CommandSubject.h"

#include "mainwindow/StationListState.h"
#include "stations/FavoriteGroups.h"

namespace sonaro {

std::optional<std::size_t> CommandSubject::GroupOnShow() const {
  const ListingState& state = listing_.State();
  if (state.holds != Holds::Group || state.middle != Middle::StationList) return std::nullopt;
  return groups_.Find(state.group);
}

std::optional<std::size_t> CommandSubject::Group() const {
  return menu_ ? groups_.Find(menu_->group) : GroupOnShow();
}

std::string CommandSubject::GroupName() const {
  const auto group = Group();
  return group ? std::string(groups_.Name(*group)) : std::string();
}

}  // namespace sonaro
