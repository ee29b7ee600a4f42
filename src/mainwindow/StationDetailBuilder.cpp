#include "mainwindow/StationDetailBuilder.h"

#include <utility>

#include "base/Numbers.h"
#include "base/Text.h"
#include "resources/texts/mainwindow.h"
#include "settings/Strings.h"
#include "stations/ExtraLinks.h"
#include "stations/PersonalStations.h"
#include "stations/PlayLink.h"

namespace sonaro {
namespace {

struct RatingField {
  StationField field;
  int nameId;
};

constexpr std::array<RatingField, StationDetailBuilder::kRatings> kRatingFields{{
    {StationField::OverallRating, IDS_RATING_OVERALL},
    {StationField::SoundRating, IDS_RATING_SOUND},
    {StationField::SpeedRating, IDS_RATING_SPEED},
    {StationField::WebSiteRating, IDS_RATING_WEB_SITE},
}};

constexpr std::array<StationField, StationDetailBuilder::kPlayButtons> kLinkFields{
    StationField::LinkOne, StationField::LinkTwo, StationField::LinkThree};

bool IsBlank(std::string_view text) { return TrimBlanks(text).empty(); }

}  // namespace

StationDetailBuilder StationDetails::Of(const StationKey& key) const {
  StationDetailBuilder detail;
  if (key.kind == StationKey::Kind::None) return detail;
  detail.station = key;
  for (std::size_t i = 0; i < StationDetailBuilder::kRatings; ++i) {
    detail.ratings[i] = Rating({}, kRatingFields[i].nameId);
  }
  if (key.kind == StationKey::Kind::Directory) {
    AddDirectoryStation(detail);
    if (detail.station) AddExtraLinks(detail);
  } else {
    AddPersonalStation(detail);
  }
  return detail;
}

RatingFigure StationDetails::Rating(const std::string& digit, int nameId) const {
  RatingFigure rating;
  if (digit.size() == 1 && digit[0] >= '1' && digit[0] <= '9') rating.halves = digit[0] - '0';
  const std::string name = strings_.Load(nameId);
  if (rating.halves == 0) {
    rating.figure = "\xE2\x80\x93";  // an en dash
    rating.spoken = FormatText(strings_.Load(IDS_RATING_NONE_SPOKEN), {name});
    return rating;
  }
  const char point = state_.decimalMode == DecimalMode::Comma ? ',' : '.';
  rating.figure = std::to_string(rating.halves / 2) + point + (rating.halves % 2 ? '5' : '0');
  rating.spoken = FormatText(strings_.Load(IDS_RATING_SPOKEN), {name, rating.figure});
  return rating;
}

PlayButton StationDetails::ButtonFor(const std::string& link, const std::string& media,
                                     const std::string& bitRate) const {
  PlayButton key;
  key.shown = !IsBlank(link);
  if (PlayLink::FromText(TrimBlanks(link)).way == PlayWay::WebPage) {
    key.caption = strings_.Load(IDS_PLAY_IN_BROWSER);
  } else {
    key.caption = TrimBlanks(FormatText(strings_.Load(IDS_PLAY_MEDIA), {media}));
  }
  if (NumberValue(bitRate) > 0) {
    key.bitRate = FormatText(strings_.Load(IDS_PLAY_BIT_RATE), {std::to_string(NumberValue(bitRate))});
  }
  return key;
}

void StationDetails::AddDirectoryStation(StationDetailBuilder& detail) const {
  const StationRecord record = source_.Record(detail.station.number);
  if (record.Empty()) return void(detail = {});
  detail.name = record[StationField::Name];
  detail.location = record[StationField::Location];
  detail.description = record[StationField::Description];
  for (std::size_t i = 0; i < StationDetailBuilder::kRatings; ++i) {
    detail.ratings[i] = Rating(record[kRatingFields[i].field], kRatingFields[i].nameId);
  }
  // A station without a first link plays its alternate one when the first is asked for.
  std::string firstLink = record[StationField::LinkOne];
  if (IsBlank(firstLink)) firstLink = record[StationField::AlternateLink];
  for (std::size_t i = 0; i < StationDetailBuilder::kPlayButtons; ++i) {
    const std::string& link = i == 0 ? firstLink : record[kLinkFields[i]];
    detail.playButtons[i] = ButtonFor(link, record[StationField::MediaType], record[StationField::BitRate]);
    detail.playButtons[i].request = {detail.station.Token(), static_cast<PlayMode>(i + 1)};
    if (detail.firstLink.empty() && !IsBlank(link)) {
      detail.firstLink = PlayLink::FromText(TrimBlanks(link)).address;
    }
  }
  detail.hasWebSite = !IsBlank(record[StationField::WebSite]);
}

void StationDetails::AddPersonalStation(StationDetailBuilder& detail) const {
  const PersonalStation* station = personal_.Find(detail.station.number);
  if (!station) return void(detail = {});
  detail.name = station->name;
  detail.location = strings_.Load(IDS_DETAIL_YOUR_STATION);
  detail.description = station->note;
  for (std::size_t i = 0; i < StationDetailBuilder::kPlayButtons; ++i) {
    const std::string& link = station->links[i];
    detail.playButtons[i] = ButtonFor(link, station->type, {});
    // Only the first link has a request of its own; the others are handed over as they are.
    if (i == 0) {
      detail.playButtons[i].request = {std::to_string(station->index), PlayMode::Personal};
    } else {
      detail.playButtons[i].request = {link, PlayMode::KeyItself};
    }
    if (detail.firstLink.empty() && !IsBlank(link)) {
      detail.firstLink = PlayLink::FromText(TrimBlanks(link)).address;
    }
  }
  detail.hasWebSite = !IsBlank(station->webSite);
}

void StationDetails::AddExtraLinks(StationDetailBuilder& detail) const {
  for (const ExtraLink& extra : extra_.Of(detail.station.number)) {
    PlayButton key;
    key.shown = true;
    key.caption = extra.name.empty() ? strings_.Load(IDS_PLAY_EXTRA) : extra.name;
    key.request = {extra.link, PlayMode::KeyItself};
    detail.extraButtons.push_back(std::move(key));
  }
}

}  // namespace sonaro
