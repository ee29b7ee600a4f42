#include "schedule/StationPicker.h"

#include <map>

#include "base/Numbers.h"
#include "base/Text.h"
#include "directory/StatList.h"
#include "resources/texts/playback.h"
#include "resources/texts/schedule.h"
#include "settings/CReg.h"
#include "settings/SettingNames.h"
#include "settings/Strings.h"
#include "stations/PersonalStations.h"
#include "stations/RecentList.h"
#include "stations/StationKey.h"

namespace sonaro {

namespace {

PickRow RowOf(const StationRecord& record) {
  return {"S" + std::to_string(record.StationId), record[StationField::Name], record[StationField::Location],
          record[StationField::MediaType], static_cast<int>(NumberValue(record[StationField::Reliability]))};
}

}  // namespace

PickRow StationPicker::RowOfOwn(const PersonalStation& station) const {
  return {"P" + std::to_string(station.index), station.name, strings_.Load(IDS_SCAN_YOUR_STATION),
          station.type};
}

std::vector<std::string> StationPicker::Sources() const {
  std::vector<std::string> names;
  for (PickGroup& group : Groups()) names.push_back(std::move(group.name));
  names.push_back(strings_.Load(IDS_SCHED_PICK_YOURS));
  names.push_back(strings_.Load(IDS_SCHED_PICK_RECENT));
  return names;
}

std::vector<PickRow> StationPicker::RowsOf(std::size_t source) {
  const std::vector<PickGroup> groups = Groups();
  if (source < groups.size()) return RowsOfTokens(groups[source].tokens);
  return source == groups.size() ? PersonalRows() : RowsOfTokens(recent_.AsText());
}

std::vector<PickRow> StationPicker::Find(std::string_view text) {
  std::vector<PickRow> rows;
  for (const StationRecord& record : stations_.SearchStations(text, true)) rows.push_back(RowOf(record));
  return rows;
}

std::vector<std::string> StationPicker::SearchHistory() const {
  const std::string history = reg_.Get(setting::kSearchList);
  std::vector<std::string> newestFirst;
  for (std::string_view entry : Split(history, '\t')) {
    if (!entry.empty()) newestFirst.emplace(newestFirst.begin(), entry);
  }
  return newestFirst;
}

std::vector<PickRow> StationPicker::RowsOfTokens(std::string_view tokens) {
  std::vector<StationKey> keys;
  std::vector<std::int32_t> ids;
  for (std::string_view token : Split(tokens, ' ')) {
    const StationKey key = StationKey::FromToken(token);
    if (key) keys.push_back(key);
    if (key.kind == StationKey::Kind::Directory) ids.push_back(key.number);
  }
  std::map<std::int32_t, PickRow> known;
  for (const StationRecord& record : stations_.GetStations(ids))
    known.emplace(record.StationId, RowOf(record));
  std::vector<PickRow> rows;
  for (const StationKey& key : keys) {
    if (key.kind == StationKey::Kind::Personal) {
      if (const PersonalStation* own = personal_.Find(key.number)) rows.push_back(RowOfOwn(*own));
    } else if (const auto found = known.find(key.number); found != known.end()) {
      rows.push_back(found->second);
    }
  }
  return rows;
}

std::vector<PickRow> StationPicker::PersonalRows() const {
  std::vector<PickRow> rows;
  for (const PersonalStation& station : personal_.All()) rows.push_back(RowOfOwn(station));
  return rows;
}

}  // namespace sonaro
