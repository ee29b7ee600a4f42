// Fills the one list from each of its sources. What the guide does not know is left out before the list sees
// it, except where rows come straight from a search: those are known.
#include "mainwindow/StationListFiller.h"

#include <utility>

#include "base/Numbers.h"
#include "base/Text.h"
#include "directory/StatList.h"
#include "directory/TypedSearch.h"
#include "resources/texts/mainwindow.h"
#include "settings/Strings.h"
#include "stations/RecentList.h"

namespace sonaro {
namespace {

std::vector<StationKey> KeysOf(const std::vector<std::int32_t>& ids) {
  std::vector<StationKey> keys;
  keys.reserve(ids.size());
  for (const std::int32_t id : ids) keys.push_back(StationKey::OfGuide(id));
  return keys;
}

}  // namespace

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
  std::vector<StationKey> found = KeysOf(stations_.SearchStationIds(text, allWords));
  Show(found, list);
  return found;
}

// Found just now, so they are known.
void StationListFiller::Show(std::vector<StationKey> found, StationRows& list) {
  if (found.empty()) return list.FillNotice(strings_.Load(IDS_LISTING_NO_STATIONS));
  list.Fill(std::move(found));
}

// The guide may have changed since the search: what it lost is left out.
void StationListFiller::FillListFromFound(std::span<const StationKey> found, StationRows& list) {
  Show(source_.KnownOf(found), list);
}

void StationListFiller::FillListFromMatches(std::string_view typed, StationRows& list) {
  Show(KeysOf(stations_.BestMatches(typed)), list);
}

// Of all rows of the fill, not of those shown, so that words taken back bring rows back. The guide's come in
// the order asked for, so one walk merges them with the user's own.
std::vector<StationKey> StationListFiller::Fitting(std::string_view words, const StationRows& list) const {
  std::vector<std::int32_t> ids;
  for (const StationKey& key : list.FilledKeys()) {
    if (key.IsOfGuide()) ids.push_back(key.number);
  }
  const std::vector<std::int32_t> inGuide = stations_.FilterStations(ids, words);
  // The guide's own are looked at all at once; those of the user are few.
  const TypedWords typed(words);
  auto next = inGuide.begin();
  std::vector<StationKey> fitting;
  for (const StationKey& key : list.FilledKeys()) {
    const bool ofGuide = key.IsOfGuide() && next != inGuide.end() && *next == key.number;
    if (ofGuide) ++next;
    if (ofGuide || (key.IsOfUser() && source_.OwnFits(key, typed))) fitting.push_back(key);
  }
  return fitting;
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
  // A guide that cannot be read knows nobody; that says nothing about the members.
  if (!missing.empty() && stations_.StationCount() == 0) missing.clear();
  return missing;
}

void StationListFiller::FillListFromRecent(StationRows& list) { list.Fill(source_.KnownOf(recent_.Keys())); }

}  // namespace sonaro
