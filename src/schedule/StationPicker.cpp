// The order of Sources is what RowsOf counts by. A group that another session has deleted while the dialog is
// open moves the others up: the rows are then those of the next one, which the user sees before he chooses.
#include "schedule/StationPicker.h"

#include "base/Text.h"
#include "directory/StatList.h"
#include "resources/texts/schedule.h"
#include "settings/CReg.h"
#include "settings/SettingNames.h"
#include "settings/Strings.h"
#include "stations/FavoriteGroups.h"
#include "stations/RecentList.h"

namespace sonaro {

std::vector<std::string> StationPicker::Sources() const {
  std::vector<std::string> names;
  for (std::size_t group = 0; group < groups_.Count(); ++group) names.push_back(groups_.Name(group));
  names.push_back(strings_.Load(IDS_SCHED_PICK_YOURS));
  names.push_back(strings_.Load(IDS_SCHED_PICK_RECENT));
  names.push_back(strings_.Load(IDS_SCHED_PICK_GUIDE));
  return names;
}

std::size_t StationPicker::WholeGuide() const { return groups_.Count() + 2; }

// The lists behind the groups have no place in them, so they count on from the last one.
std::vector<StationInfo> StationPicker::RowsOf(std::size_t source) {
  if (source == WholeGuide()) return found_;
  if (source < groups_.Count()) return source_.InfosOf(groups_.Keys(source));
  return source == groups_.Count() ? source_.InfosOf(source_.OwnKeys()) : source_.InfosOf(recent_.Keys());
}

// The search of the main window with "all words".
std::vector<StationInfo> StationPicker::Find(std::string_view text) {
  found_.clear();
  for (const StationRecord& record : stations_.SearchStations(text, true)) found_.push_back(InfoOf(record));
  return found_;
}

std::vector<std::string> StationPicker::SearchHistory() const {
  const std::string history = reg_.Get(setting::kSearchList);
  std::vector<std::string> newestFirst;
  for (std::string_view entry : Split(history, '\t')) {
    if (!entry.empty()) newestFirst.emplace(newestFirst.begin(), entry);
  }
  return newestFirst;
}

}  // namespace sonaro
