#include "mainwindow/SonaroFrmDetailPane.h"

#include "forms/ControlIds.h"
#include "forms/WideText.h"
#include "forms/controls/RatingPicture.h"
#include "forms/paint/Painter.h"
#include "mainwindow/SonaroFrm_panes.h"
#include "mainwindow/frmExtraLink.h"
#include "playback/PlayerLaunch.h"
#include "playback/StationScan.h"
#include "resources/texts/mainwindow.h"
#include "settings/HelpPages.h"
#include "stations/RecentList.h"

namespace sonaro {
namespace {

// Painters of the small pictures; they get the colours of the faceplate with every paint, as it can change.
void PaintHair(HDC dc, const RECT& box, const Painter& painter) {
  painter.Fill(dc, {box.left, box.top, box.right, box.top + painter.Line()}, painter.Colors().hair);
}

void PaintPin(HDC dc, const RECT& box, const Painter& painter) {
  painter.DrawIcon(dc, Icon::Pin, static_cast<int>(box.left), static_cast<int>(box.top), 14,
                   painter.Colors().signal);
}

void PaintNoStation(HDC dc, const RECT& box, const Painter& painter) {
  painter.DrawIcon(dc, Icon::ProgramMark, static_cast<int>(box.left), static_cast<int>(box.top), 44,
                   painter.Colors().tickOff);
}

}  // namespace

// Buttons and menu entries do the same for the station that is meant, which with a menu is that of its
// opening.
std::span<const EventRow> DetailPane::Events() const {
  static const EventRow kRows[] = {
      {butGoMediaLinkOneIt, Click, &DetailPane::butGoMediaLink_Click, 3},
      {butPlayExtraIt, Click, &DetailPane::butPlayExtraIt_Click},
      {butGoWebPageIt, Click, &DetailPane::butGoWebPageIt_Click},
      {mnuActionPlayOne, Click, &DetailPane::mnuActionPlay_Click, 3},
      {mnuActionPlayExtra, Click, &DetailPane::mnuActionPlayExtra_Click, 20},
      {mnuActionWebSite, Click, &DetailPane::butGoWebPageIt_Click},
      {mnuActionCopyLink, Click, &DetailPane::mnuActionCopyLink_Click},
      {mnuActionAddToScan, Click, &DetailPane::mnuActionAddToScan_Click},
      {mnuActionSchedule, Click, &DetailPane::mnuActionSchedule_Click},
      {mnuActionExtraLink, Click, &DetailPane::mnuActionExtraLink_Click},
  };
  return kRows;
}

void DetailPane::LoadNoStation() { picNoStation_.SetPainter(PaintNoStation); }

void DetailPane::Load() {
  picHairAbove_.SetPainter(PaintHair);
  picHairBelow_.SetPainter(PaintHair);
  picPin_.SetPainter(PaintPin);
  butAddToGroupIt_.SetTip(form_.LoadText(IDS_MAIN_ADD_TIP));
  constexpr int kTips[] = {IDS_RATING_OVERALL_TIP, IDS_RATING_SOUND_TIP, IDS_RATING_SPEED_TIP,
                           IDS_RATING_WEB_SITE_TIP};
  for (std::size_t i = 0; i < ratings_.size(); ++i) ratings_[i].SetTip(form_.LoadText(kTips[i]));
}

// The record is read once here; buttons and menus work on what was read.
void DetailPane::Show(const StationKey& station) {
  subject_.Show(context_.models.details.Of(station));
  const StationDetail& detail = subject_.Shown();
  const bool anything = !detail.name.empty();
  form_.ShowPane(kStationPane, anything);
  form_.ShowPane(kNoStationPane, !anything);
  lblStationName_.SetText(detail.name);
  lblStationName_.SetTip(detail.name);
  lblStationLocation_.SetText(detail.location);
  picPin_.Show(!detail.location.empty());
  txtDescription_.SetText(detail.description);
  txtDescription_.Show(!detail.description.empty());  // else Tab stops where nothing is seen
  ShowRatings(detail);
  ShowPlayButtons(detail);
  butGoWebPageIt_.Enable(detail.hasWebSite);
}

void DetailPane::ShowRatings(const StationDetail& detail) {
  for (std::size_t i = 0; i < StationDetail::kRatings; ++i) {
    const RatingFigure& rating = detail.ratings[i];
    ratings_[i]->SetRating(rating.halves, rating.figure, rating.spoken);
  }
}

// The second line of a button: the bit rate or where the link leads, and behind the tab the key on the
// keyboard.
void DetailPane::ShowPlayButtons(const StationDetail& detail) {
  for (std::size_t i = 0; i < StationDetail::kPlayButtons; ++i) {
    const PlayButton& shown = detail.playButtons[i];
    const TwoLineButton button = butGoMediaLink_[static_cast<int>(i)];
    button.SetText(shown.caption);
    button.SetDetail(shown.detail + "\t" + std::to_string(i + 1));
    button.SetTip(shown.address);
    button.Show(shown.shown);
  }
  const bool extra = !detail.extraButtons.empty();
  butPlayExtraIt_.Show(extra);
  butPlayExtraIt_.SetText(extra ? detail.extraButtons[0].caption : std::string());
  butPlayExtraIt_.SetTip(extra ? detail.extraButtons[0].address : std::string());
}

void DetailPane::butGoMediaLink_Click(int link) {
  const StationDetail& station = subject_.Station();
  // A station may lack a first link and have others: what is asked for is the first that plays.
  std::size_t wanted = static_cast<std::size_t>(link);
  while (link == 0 && wanted + 1 < StationDetail::kPlayButtons && !station.playButtons[wanted].shown)
    ++wanted;
  if (station.playButtons[wanted].shown) {
    Play(station.playButtons[wanted]);
  } else if (link == 0 && station.station) {
    Play(
        station
            .playButtons[0]);  // without a link of its own: its web site, and it was listened to all the same
  }
}

void DetailPane::mnuActionPlay_Click(int link) {
  const StationDetail& station = subject_.Station();
  const auto index = static_cast<std::size_t>(link);
  if (station.playButtons[index].shown) Play(station.playButtons[index]);
}

void DetailPane::mnuActionPlayExtra_Click(int link) {
  const StationDetail& station = subject_.Station();
  const auto index = static_cast<std::size_t>(link);
  if (index < station.extraButtons.size()) Play(station.extraButtons[index]);
}

void DetailPane::Play(const PlayButton& button) {
  const PlayRequest request = button.request;  // what is shown changes with the recent list
  // The launch notes plays of the links that the guide gives; the others are noted here.
  if (request.mode == PlayMode::KeyItself) context_.data.recent.AddRecent(request.station);
  context_.services.player.LaunchStation(request);
}

void DetailPane::butGoWebPageIt_Click() {
  const StationDetail& station = subject_.Station();
  if (!station.station || !station.hasWebSite) return;
  context_.services.pages.OpenWebPage(station.station.Token());
}

void DetailPane::mnuActionCopyLink_Click() {
  std::string links;  // one a line
  for (const StationKey& station : subject_.Stations()) {
    const std::string link = context_.models.details.Of(station).firstLink;
    if (!link.empty()) links += (links.empty() ? "" : "\r\n") + link;
  }
  if (!links.empty()) CopyToClipboard(form_.Window(), links);
}

void DetailPane::mnuActionAddToScan_Click() {
  const std::vector<StationKey> stations = subject_.Stations();
  if (!stations.empty()) context_.services.scan.Add(stations);
}

void DetailPane::mnuActionSchedule_Click() {
  const StationKey station = subject_.Station().station;
  if (station) context_.services.schedule.ScheduleStation(form_, station);
}

// Links are added to stations of the guide only; the user's own are edited in their own dialog.
void DetailPane::mnuActionExtraLink_Click() {
  const StationKey station = subject_.Station().station;
  if (!station.IsOfGuide()) return;
  const GuideData& data = context_.data;
  frmExtraLink dialog(context_.forms, data.extra, context_.services.messages, station.number,
                      data.source.NameOf(station));
  if (dialog.ShowModal(form_.Window()) == 1) context_.view.PersonalStationsChanged();
  context_.view.ShowSelection();
}

}  // namespace sonaro
