#include "mainwindow/frmPersonalStation.h"

#include "forms/DialogRows.h"
#include "resources/texts/app.h"
#include "resources/texts/mainwindow.h"
#include "settings/HelpPages.h"
#include "settings/Message.h"
#include "stations/PlayLink.h"

namespace sonaro {

// The three links are a control array, txtLink on, in the order in which they are tried.
const FormDesign& frmPersonalStation::Design() {
  static constexpr ControlRow kControls[] = {
      {.id = lblTitle, .kind = ControlKind::TitleBar, .text = IDS_DLG_OWN_TITLE, .at = {40, 4, 196, 26}},
      Caption(IDS_DLG_OWN_NAME, {14, 48, 100, 28}),
      {.id = txtStationName, .kind = ControlKind::Edit, .at = {120, 48, 426, 28}},
      Caption(IDS_DLG_OWN_LINK_ONE, {14, 84, 100, 28}),
      {.id = txtLink, .kind = ControlKind::Edit, .at = {120, 84, 426, 28}},
      Caption(IDS_DLG_OWN_LINK_TWO, {14, 120, 100, 28}),
      {.id = txtLink + 1, .kind = ControlKind::Edit, .at = {120, 120, 426, 28}},
      Caption(IDS_DLG_OWN_LINK_THREE, {14, 156, 100, 28}),
      {.id = txtLink + 2, .kind = ControlKind::Edit, .at = {120, 156, 426, 28}},
      Caption(IDS_DLG_OWN_WEB, {14, 192, 100, 28}),
      {.id = txtWebSite, .kind = ControlKind::Edit, .at = {120, 192, 426, 28}},
      Caption(IDS_DLG_OWN_TYPE, {14, 228, 100, 28}),
      {.id = txtType, .kind = ControlKind::Edit, .at = {120, 228, 180, 28}},
      Caption(IDS_DLG_OWN_NOTE, {14, 264, 100, 28}),
      {.id = txtStationNote, .kind = ControlKind::Edit, .at = {120, 264, 426, 28}},
      {.kind = ControlKind::Groove, .at = {14, 368, 532, 2}},
      OkButton({346, 382, 96, 30}),
      CancelButton({450, 382, 96, 30}),
      HelpButton(488),
      CloseButton(520),
  };
  static constexpr FormDesign kDesign = {.name = "frmPersonalStation",
                                         .caption = IDS_DLG_OWN_TITLE,
                                         .size = {560, 430},
                                         .outline = "ddf44",
                                         .controls = kControls,
                                         .firstFocus = txtStationName};
  return kDesign;
}

std::span<const EventRow> frmPersonalStation::Events() const {
  static const EventRow kRows[] = {
      {butOKIt, Click, &frmPersonalStation::butOKIt_Click},
      {butCancelIt, Click, &frmPersonalStation::butCancelIt_Click},
      {butCloseIt, Click, &frmPersonalStation::butCancelIt_Click},
      {butHelp, Click, &frmPersonalStation::butHelp_Click},
  };
  return kRows;
}

// Limits are those of the file: what fits into a field here is not cut when it is saved.
void frmPersonalStation::OnLoad() {
  txtStationName_.Limit(PersonalStation::kMaxName);
  txtType_.Limit(PersonalStation::kMaxName);
  for (int link = 0; link < 3; ++link) txtLink_[link].Limit(PersonalStation::kMaxAddress);
  txtWebSite_.Limit(PersonalStation::kMaxLink);
  txtStationNote_.Limit(PersonalStation::kMaxNote);
  txtStationName_.SetText(station_.name);
  for (int link = 0; link < 3; ++link) {
    // The user sees plain addresses; how they are played stands in the stored text.
    txtLink_[link].SetText(PlayLink::FromText(station_.links[static_cast<std::size_t>(link)]).address);
  }
  txtWebSite_.SetText(station_.webSite);
  txtType_.SetText(station_.type);
  txtStationNote_.SetText(station_.note);
}

void frmPersonalStation::ShowError(const char* key, int text) {
  messages_.Ask({.key = key,
                 .caption = LoadText(IDS_DLG_OWN_TITLE),
                 .text = LoadText(text),
                 .firstButton = LoadText(IDS_APP_OK)});
}

// The dialog stays open with the focus on the field that is at fault, or when the file cannot be saved.
void frmPersonalStation::butOKIt_Click() {
  PersonalStation typed;
  typed.name = txtStationName_.Text();
  for (int link = 0; link < 3; ++link) typed.links[static_cast<std::size_t>(link)] = txtLink_[link].Text();
  typed.webSite = txtWebSite_.Text();
  typed.type = txtType_.Text();
  typed.note = txtStationNote_.Text();
  const StationEntry entry = ReadEntry(station_, std::move(typed));
  switch (entry.fault) {
    case EntryFault::BadLink:
      ShowError("PersonalStationLink", IDS_DLG_OWN_BAD_LINK);
      return txtLink_[static_cast<int>(entry.link)].Focus();
    case EntryFault::NoName:
    case EntryFault::NoLink:
      ShowError("ToAddMorePersonalStationYouNeedMoreInfo", IDS_DLG_OWN_NEED_MORE);
      return (entry.fault == EntryFault::NoName ? txtStationName_ : txtLink_[0]).Focus();
    case EntryFault::None:
      break;
  }
  const bool saved =
      SavedOrSaid(Save(entry.station), LoadText(IDS_FILE_STATIONS), messages_, context_.strings);
  if (saved) Close(1);
}

// Index 0 is a new station.
bool frmPersonalStation::Save(const PersonalStation& station) {
  return station.index == 0 ? stations_.Add(station) != 0 : stations_.Change(station);
}

void frmPersonalStation::butHelp_Click() { help_.OpenHelpPage("9031.html"); }

}  // namespace sonaro
