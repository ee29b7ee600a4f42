#include "mainwindow/StationDetailBuilder.h"

#include <algorithm>
#include <set>
#include <utility>

#include "base/Numbers.h"
#include "base/Text.h"
#include "resources/texts/mainwindow.h"
#include "settings/Strings.h"
#include "stations/PlayLink.h"

namespace sonaro {
namespace {

// The four ratings, in the order in which the window shows them.
struct RatingField {
  std::string StationInfo::*digit;
  int nameId;
};

constexpr std::array<RatingField, StationDetail::kRatings> kRatingFields{{
    {&StationInfo::overall, IDS_RATING_OVERALL},
    {&StationInfo::sound, IDS_RATING_SOUND},
    {&StationInfo::speed, IDS_RATING_SPEED},
    {&StationInfo::webSiteRating, IDS_RATING_WEB_SITE},
}};

// Ratings are digits from 1 to 9, each half a point of 0.5 to 4.5; anything else means that there is none.
int HalvesOf(std::string_view digit) {
  return digit.size() == 1 && digit[0] >= '1' && digit[0] <= '9' ? digit[0] - '0' : 0;
}

// "radio.example" of "https://radio.example:8000/jazz.mp3".
std::string HostOf(std::string_view address) {
  const std::size_t scheme = address.find("://");
  if (scheme != std::string_view::npos) address.remove_prefix(scheme + 3);
  return std::string(address.substr(0, address.find_first_of(":/?#")));
}

// "jazz.mp3" of it.
std::string FileOf(std::string_view address) {
  while (address.ends_with('/')) address.remove_suffix(1);
  return std::string(address.substr(address.rfind('/') + 1));
}

std::string Whole(std::string_view address) { return std::string(address); }

// All links of a station have its one media type and bit rate, so that several would read alike. The figure
// is that of the first; the others are told by the shortest part of their addresses that no two have in
// common.
void TellApart(std::array<PlayButton, StationDetail::kPlayButtons>& buttons) {
  const auto shown =
      std::count_if(buttons.begin(), buttons.end(), [](const PlayButton& b) { return b.shown; });
  if (shown < 2) return;
  for (std::string (*const part)(std::string_view) : {HostOf, FileOf, Whole}) {
    std::set<std::string> parts;
    for (const PlayButton& button : buttons) {
      if (button.shown) parts.insert(part(button.address));
    }
    if (parts.contains("") || static_cast<std::ptrdiff_t>(parts.size()) < shown) continue;
    for (PlayButton& button : buttons) {
      if (&button != buttons.data() || button.detail.empty()) button.detail = part(button.address);
    }
    return;
  }
}

}  // namespace

// Empty for a station that the guide no longer has; the window then shows that none is selected.
StationDetail StationDetailBuilder::Of(const StationKey& key) const {
  StationDetail detail;
  const Station station = source_.Find(key);
  if (!station.key) return detail;
  detail.station = key;
  detail.name = station.name;
  detail.location = station.location;
  detail.description = station.description;
  for (std::size_t i = 0; i < StationDetail::kRatings; ++i) {
    detail.ratings[i] = Rating(station.*kRatingFields[i].digit, kRatingFields[i].nameId);
  }
  AddPlayButtons(station, detail);
  detail.hasWebSite = !TrimBlanks(station.webSite).empty();
  return detail;
}

// The spoken text is for screen readers, to which a dash says nothing.
RatingFigure StationDetailBuilder::Rating(const std::string& digit, int nameId) const {
  RatingFigure rating{HalvesOf(digit), RatingText(digit), {}};
  const int spokenId = rating.halves == 0 ? IDS_RATING_NONE_SPOKEN : IDS_RATING_SPOKEN;
  rating.spoken = FormatText(strings_.Load(spokenId), {strings_.Load(nameId), rating.figure});
  return rating;
}

std::string StationDetailBuilder::RatingText(std::string_view digit) const {
  const int halves = HalvesOf(digit);
  if (halves == 0) return "\xE2\x80\x93";  // an en dash
  const char point = state_.decimalMode == DecimalMode::Comma ? ',' : '.';
  return std::to_string(halves / 2) + point + (halves % 2 ? '5' : '0');
}

void StationDetailBuilder::AddPlayButtons(const Station& station, StationDetail& detail) const {
  // A station without a link of its own is played all the same: its web site opens.
  detail.playButtons[0].request = {station.key,
                                   station.key.IsOfUser() ? PlayMode::Personal : PlayMode::LinkOne};
  for (const PlayableLink& playable : PlayableLinks(station, extra_)) {
    PlayButton button = ButtonFor(playable, station);
    if (playable.number == 0) {
      detail.extraButtons.push_back(std::move(button));
      continue;
    }
    if (detail.firstLink.empty()) detail.firstLink = button.address;
    detail.playButtons[static_cast<std::size_t>(playable.number) - 1] = std::move(button);
  }
  TellApart(detail.playButtons);
}

// Number 0 is a link that the user added; it has a name instead of a media type.
PlayButton StationDetailBuilder::ButtonFor(const PlayableLink& playable, const Station& station) const {
  PlayButton button;
  button.shown = true;
  button.request = playable.request;
  button.address = PlayLink::FromText(TrimBlanks(playable.link)).address;
  if (playable.number == 0) {
    button.caption = playable.name.empty() ? strings_.Load(IDS_PLAY_EXTRA) : playable.name;
    return button;
  }
  if (PlayLink::FromText(TrimBlanks(playable.link)).way == PlayWay::WebPage) {
    button.caption = strings_.Load(IDS_PLAY_IN_BROWSER);
  } else {
    button.caption = TrimBlanks(FormatText(strings_.Load(IDS_PLAY_MEDIA), {station.mediaType}));
  }
  if (const std::int64_t bitRate = NumberValue(station.bitRate); bitRate > 0) {
    button.detail = FormatText(strings_.Load(IDS_PLAY_BIT_RATE), {std::to_string(bitRate)});
  }
  return button;
}

}  // namespace sonaro
