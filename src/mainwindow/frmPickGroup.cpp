#include "mainwindow/frmPickGroup.h"

#include "forms/ControlIds.h"
#include "forms/DialogRows.h"
#include "resources/texts/mainwindow.h"

namespace sonaro {

const FormDesign& frmPickGroup::Design() {
  static constexpr ControlRow kControls[] = {
      {.id = lblTitle, .kind = Kind::TitleBar, .text = IDS_DLG_PICK_TITLE, .at = {40, 4, 300, 26}},
      Caption(IDS_DLG_PICK_STATION, {14, 48, 90, 28}),
      {.id = lblStation,
       .kind = Kind::StateLabel,
       .at = {110, 48, 296, 28},
       .flags = kNoPrefix,
       .type = Type::Title},
      Caption(IDS_DLG_PICK_GROUP, {14, 84, 90, 28}),
      {.id = cmbGroup, .kind = Kind::Combo, .text = IDS_DLG_PICK_GROUP, .at = {110, 84, 296, 28}},
      {.kind = Kind::Groove, .at = {14, 190, 392, 2}},
      OkKey({214, 201, 92, 30}),
      CancelKey({314, 201, 92, 30}),
      CloseKey(380),
  };
  static constexpr FormDesign kDesign = {.name = "frmPickGroup",
                                         .caption = IDS_DLG_PICK_TITLE,
                                         .size = {420, 248},
                                         .outline = "fdf01",
                                         .controls = kControls,
                                         .firstFocus = cmbGroup};
  return kDesign;
}

std::span<const EventRow> frmPickGroup::Events() const {
  static const EventRow kRows[] = {
      {butOKIt, Click, &frmPickGroup::butOKIt_Click},
      {butCancelIt, Click, &frmPickGroup::butCancelIt_Click},
      {butCloseIt, Click, &frmPickGroup::butCancelIt_Click},
  };
  return kRows;
}

std::string frmPickGroup::AskGroup(HWND owner) { return ShowModal(owner) == 1 ? chosen_ : ""; }

void frmPickGroup::OnLoad() {
  SetText(lblStation, station_);
  for (const std::string& group : groups_) AddItem(cmbGroup, group);
  SelectItem(cmbGroup, 0);
}

void frmPickGroup::butOKIt_Click() {
  const int row = SelectedItem(cmbGroup);
  if (row >= 0) chosen_ = groups_[static_cast<std::size_t>(row)];
  Close(1);
}

}  // namespace sonaro
