#include "mainwindow/StationListFiller.h"

#include <utility>

#include "base/Numbers.h"
#include "base/Text.h"
#include "directory/StatList.h"
#include "resources/texts/mainwindow.h"
#include "settings/Strings.h"
#include "stations/RecentList.h"

namespace sonaro {

void StationListFiller::FillListFromIds(std::string_view ids, StationRows& list) {
  std::vector<StationKey> wanted;
  while (!ids.empty()) {
    std::int32_t id = 0;
    if (ParseStationId(NextField(ids, ' '), id)) wanted.push_back(StationKey::OfGuide(id));
  }
  list.Fill(source_.KnownOf(wanted));
}

std::vector<StationKey> StationListFiller::FillListFromSearch(std::string_view text, bool allWords,
                                                              StationRows& list) {
  std::vector<StationKey> found;
  for (const std::int32_t id : stations_.SearchStationIds(text, allWords)) {
    found.push_back(StationKey::OfGuide(id));
  }
  Show(found, list);
  return found;
}

// Found just now, so they are known.
void StationListFiller::Show(std::vector<StationKey> found, StationRows& list) {
  if (found.empty()) return list.FillNotice(strings_.Load(IDS_LISTING_NO_STATIONS));
  list.Fill(std::move(found));
}

void StationListFiller::FillListFromFound(std::span<const StationKey> found, StationRows& list) {
  Show(source_.KnownOf(found), list);
}

void StationListFiller::FillListFromPersonal(StationRows& list) { list.Fill(source_.OwnKeys()); }

std::vector<StationKey> StationListFiller::FillListFromGroup(std::span<const StationKey> members,
                                                             StationRows& list) {
  std::vector<StationKey> known = source_.KnownOf(members);
  // What is known comes in the order of the members: walk both together.
  std::vector<StationKey> missing;
  auto next = known.begin();
  for (const StationKey& member : members) {
    if (next != known.end() && *next == member) {
      ++next;
    } else {
      missing.push_back(member);
    }
  }
  list.Fill(std::move(known));
  if (!missing.empty() && stations_.StationCount() == 0) missing.clear();
  return missing;
}

void StationListFiller::FillListFromRecent(StationRows& list) { list.Fill(source_.KnownOf(recent_.Keys())); }

}  // namespace sonaro
