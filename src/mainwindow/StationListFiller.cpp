#include "mainwindow/StationListFiller.h"

#include <cstdint>
#include <optional>
#include <utility>

#include "base/Numbers.h"
#include "base/Text.h"
#include "directory/StatList.h"
#include "resources/texts/mainwindow.h"
#include "settings/Strings.h"
#include "stations/PersonalStations.h"
#include "stations/RecentList.h"
#include "stations/StationKey.h"

namespace sonaro {
namespace {

std::optional<StationRow> PersonalRow(const PersonalStations& personal, std::int32_t index) {
  const PersonalStation* station = personal.Find(index);
  if (!station || station->name.empty()) return std::nullopt;
  return RowOfPersonalStation(index, station->name, station->type);
}

}  // namespace

void StationListFiller::FillListFromIds(std::string_view ids, StationRows& list) {
  std::vector<std::int32_t> wanted;
  while (!ids.empty()) {
    std::int32_t id = 0;
    if (ParseStationId(NextField(ids, ' '), id)) wanted.push_back(id);
  }
  list.Fill(RowsOfStations(wanted));
}

std::vector<StationRow> StationListFiller::RowsOfStations(const std::vector<std::int32_t>& ids) {
  std::vector<StationRow> rows;
  rows.reserve(ids.size());
  stations_.VisitStations(ids,
                          [&rows](const StationRecord& record) { rows.push_back(RowOfStation(record)); });
  return rows;
}

std::string StationListFiller::FillListFromSearch(std::string_view text, bool allWords, StationRows& list) {
  const std::vector<std::int32_t> found = stations_.SearchStationIds(text, allWords);
  std::string ids;
  for (const std::int32_t id : found) ids += std::to_string(id) + ' ';
  FillListFromFound(ids, list);
  return ids;
}

void StationListFiller::FillListFromFound(std::string_view ids, StationRows& list) {
  FillListFromIds(ids, list);
  if (list.Count() == 0) list.Fill({RowOfNoStation(strings_.Load(IDS_LISTING_NO_STATIONS))});
}

void StationListFiller::FillListFromPersonal(StationRows& list) {
  std::vector<StationRow> rows;
  for (const PersonalStation& station : personal_.All()) {
    if (auto row = PersonalRow(personal_, station.index)) rows.push_back(std::move(*row));
  }
  list.Fill(std::move(rows));
}

std::vector<std::string> StationListFiller::FillListFromGroup(std::string_view members, StationRows& list) {
  std::vector<std::string> missing;
  list.Fill(RowsOf(SplitWords(members), missing));
  if (!missing.empty() && stations_.StationCount() == 0) missing.clear();
  return missing;
}

void StationListFiller::FillListFromRecent(StationRows& list) {
  const std::string text = recent_.AsText();
  std::vector<std::string> missing;
  list.Fill(RowsOf(SplitWords(text), missing));
}

std::vector<StationRow> StationListFiller::RowsOf(const std::vector<std::string_view>& tokens,
                                                  std::vector<std::string>& missing) {
  std::vector<std::int32_t> ids;
  for (const std::string_view token : tokens) {
    const StationKey key = StationKey::FromToken(token);
    if (key.kind == StationKey::Kind::Directory) ids.push_back(key.number);
  }
  // The rows come in the order of the identifiers, those of unknown stations missing: walk both together.
  std::vector<StationRow> known = RowsOfStations(ids);
  auto next = known.begin();
  std::vector<StationRow> rows;
  rows.reserve(tokens.size());
  for (const std::string_view token : tokens) {
    const StationKey key = StationKey::FromToken(token);
    std::optional<StationRow> row;
    if (token.starts_with('P')) {
      row = PersonalRow(personal_, key.number);
    } else if (key && next != known.end() && next->key == key.RowKey()) {
      row = std::move(*next++);
    }
    if (row) {
      rows.push_back(std::move(*row));
    } else {
      missing.emplace_back(token);
    }
  }
  return rows;
}

}  // namespace sonaro
