#include "mainwindow/StationRow.h"

#include <algorithm>
#include <utility>

#include "base/Numbers.h"

namespace sonaro {
namespace {

constexpr const char* kPersonalLocation = "Your Station";

int IconFor(const std::string& reliability) {
  const std::int64_t value = std::clamp<std::int64_t>(NumberValue(reliability), -1000, 1000);
  return static_cast<int>(value) + StationRow::kFirstReliabilityIcon;
}

}  // namespace

std::string StationRow::Token() const {
  if (IsStation()) return key.substr(1);
  return IsPersonal() ? key : std::string();
}

StationRow RowOfStation(const StationRecord& record) {
  StationRow row;
  row.key = "S" + std::to_string(record.StationId);
  row.text = record[StationField::Name];
  row[SubItem::Location] = record[StationField::Location];
  row[SubItem::MediaType] = record[StationField::MediaType];
  row[SubItem::Format] = record[StationField::Format];
  row[SubItem::Overall] = record[StationField::OverallRating];
  row[SubItem::Sound] = record[StationField::SoundRating];
  row[SubItem::Speed] = record[StationField::SpeedRating];
  row[SubItem::WebSite] = record[StationField::WebSiteRating];
  row[SubItem::Reliability] = record[StationField::Reliability];
  row.icon = IconFor(row[SubItem::Reliability]);
  return row;
}

StationRow RowOfPersonalStation(std::int32_t index, std::string name, std::string media) {
  StationRow row;
  row.key = "P" + std::to_string(index);
  row.text = std::move(name);
  row[SubItem::Location] = kPersonalLocation;
  row[SubItem::MediaType] = std::move(media);
  for (const SubItem rating :
       {SubItem::Overall, SubItem::Sound, SubItem::Speed, SubItem::WebSite, SubItem::Reliability}) {
    row[rating] = "0";
  }
  return row;
}

StationRow RowOfNoStation(std::string text) {
  StationRow row;
  row.key = "X";
  row.text = std::move(text);
  return row;
}

}  // namespace sonaro
