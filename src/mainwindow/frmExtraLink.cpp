// A link of the user's own for a station of the guide. It is kept by the station's identifier, in a file of
// its own, so that an update of the guide does not take it away.
#include "mainwindow/frmExtraLink.h"

#include "forms/DialogRows.h"
#include "resources/texts/app.h"
#include "resources/texts/mainwindow.h"
#include "settings/Message.h"
#include "stations/OwnLink.h"
#include "stations/PersonalStations.h"
#include "stations/PlayLink.h"

namespace sonaro {

const FormDesign& frmExtraLink::Design() {
  static constexpr ControlRow kControls[] = {
      {.id = lblTitle, .kind = ControlKind::TitleBar, .text = IDS_DLG_EXTRA_TITLE, .at = {40, 4, 156, 26}},
      {.id = lblStation,
       .kind = ControlKind::StateLabel,
       .at = {14, 44, 392, 26},
       .flags = kNoPrefix,
       .style = TextStyle::Title},
      Caption(IDS_DLG_EXTRA_LINK, {14, 78, 110, 28}),
      {.id = txtExtraLink, .kind = ControlKind::Edit, .at = {126, 78, 280, 28}},
      Caption(IDS_DLG_EXTRA_NAME, {14, 114, 110, 28}),
      {.id = txtExtraName, .kind = ControlKind::Edit, .at = {126, 114, 280, 28}},
      {.kind = ControlKind::Label,
       .text = IDS_DLG_EXTRA_HELP,
       .at = {126, 148, 280, 24},
       .color = TextColor::Muted},
      {.kind = ControlKind::Groove, .at = {14, 190, 392, 2}},
      OkButton({214, 201, 92, 30}),
      CancelButton({314, 201, 92, 30}),
      CloseButton(380),
  };
  static constexpr FormDesign kDesign = {.name = "frmExtraLink",
                                         .caption = IDS_DLG_EXTRA_TITLE,
                                         .size = {420, 248},
                                         .outline = "fdf01",
                                         .controls = kControls,
                                         .firstFocus = txtExtraLink};
  return kDesign;
}

std::span<const EventRow> frmExtraLink::Events() const {
  static const EventRow kRows[] = {
      {butOKIt, Click, &frmExtraLink::butOKIt_Click},
      {butCancelIt, Click, &frmExtraLink::butCancelIt_Click},
      {butCloseIt, Click, &frmExtraLink::butCancelIt_Click},
  };
  return kRows;
}

// A file made by hand may hold several links of a station. The first is edited, the others are kept.
void frmExtraLink::OnLoad() {
  txtExtraLink_.Limit(PersonalStation::kMaxAddress);
  txtExtraName_.Limit(PersonalStation::kMaxName);
  lblStation_.SetText(station_);
  all_ = links_.Of(stationId_);
  if (all_.empty()) all_.emplace_back();
  txtExtraLink_.SetText(PlayLink::FromText(all_.front().link).address);
  txtExtraName_.SetText(all_.front().name);
}

void frmExtraLink::ShowError(const char* key, int text) {
  messages_.Ask({.key = key,
                 .caption = LoadText(IDS_DLG_EXTRA_TITLE),
                 .text = LoadText(text),
                 .firstButton = LoadText(IDS_APP_OK)});
}

void frmExtraLink::butOKIt_Click() {
  const auto linkText = OwnLinkFromField(txtExtraLink_.Text(), all_.front().link);
  if (!linkText) {
    ShowError("PersonalStationLink", IDS_DLG_OWN_BAD_LINK);
    txtExtraLink_.Focus();
    txtExtraLink_.SelectAll();
    return;
  }
  // An empty field removes the link: Set leaves out what has no address.
  all_.front() = {txtExtraName_.Text(), *linkText};
  const bool saved = links_.Set(stationId_, all_);
  if (!SavedOrSaid(saved, LoadText(IDS_FILE_LINKS), messages_, context_.strings)) return;
  Close(1);
}

}  // namespace sonaro
