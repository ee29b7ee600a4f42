#include "mainwindow/SonaroFrmDetailPane.h"

#include "forms/ControlIds.h"
#include "forms/Form.h"
#include "forms/controls/RatingPicture.h"
#include "forms/paint/Painter.h"
#include "mainwindow/SonaroFrm_panes.h"
#include "mainwindow/StationDetailBuilder.h"

namespace sonaro {
namespace {

constexpr int kRatingPictures[] = {imgOverAll, imgSound, imgSpeed, imgWebSite};
constexpr int kPlayButtonIds[] = {butGoMediaLinkOneIt, butGoMediaLinkTwoIt, butGoMediaLinkThreeIt};

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

void DetailPane::Load() {
  form_.SetPicture(picNoStation, PaintNoStation);
  form_.SetPicture(picHairAbove, PaintHair);
  form_.SetPicture(picHairBelow, PaintHair);
  form_.SetPicture(picPin, PaintPin);
}

void DetailPane::Show(const StationDetailBuilder& detail) {
  const bool anything = !detail.name.empty();
  form_.ShowPane(kStationPane, anything);
  form_.ShowPane(kNoStationPane, !anything);
  form_.SetText(lblStationName, detail.name);
  form_.SetTip(lblStationName, detail.name);
  form_.SetText(lblStationLocation, detail.location);
  form_.ShowControl(picPin, !detail.location.empty());
  form_.SetText(txtDescription, detail.description);
  form_.ShowControl(txtDescription, !detail.description.empty());  // else Tab stops where nothing is seen
  ShowRatings(detail);
  ShowPlayButtons(detail);
  form_.Enable(butGoWebPageIt, detail.hasWebSite);
}

void DetailPane::ShowRatings(const StationDetailBuilder& detail) {
  for (std::size_t i = 0; i < StationDetailBuilder::kRatings; ++i) {
    const RatingFigure& rating = detail.ratings[i];
    form_.Rating(kRatingPictures[i]).SetRating(rating.halves, rating.figure, rating.spoken);
  }
}

void DetailPane::ShowPlayButtons(const StationDetailBuilder& detail) {
  for (std::size_t i = 0; i < StationDetailBuilder::kPlayButtons; ++i) {
    const PlayButton& key = detail.playButtons[i];
    form_.SetText(kPlayButtonIds[i], key.caption);
    form_.SetDetail(kPlayButtonIds[i], key.bitRate + "\t" + std::to_string(i + 1));
    form_.ShowControl(kPlayButtonIds[i], key.shown);
  }
}

}  // namespace sonaro
