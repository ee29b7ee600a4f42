#include "mainwindow/frmPickGroup.h"

#include <algorithm>

#include "base/Text.h"
#include "forms/DialogRows.h"
#include "resources/texts/mainwindow.h"
#include "stations/FavoriteGroups.h"

namespace sonaro {

namespace {

// The field for a new group's name, shown with the last entry only.
constexpr unsigned char kNamePane = 1;

}  // namespace

const FormDesign& frmPickGroup::Design() {
  static constexpr ControlRow kControls[] = {
      {.id = lblTitle, .kind = ControlKind::TitleBar, .text = IDS_DLG_PICK_TITLE, .at = {40, 4, 300, 26}},
      Caption(IDS_DLG_PICK_STATION, {14, 48, 90, 28}),
      {.id = lblStation,
       .kind = ControlKind::StateLabel,
       .at = {110, 48, 296, 28},
       .flags = kNoPrefix,
       .style = TextStyle::Title},
      Caption(IDS_DLG_PICK_GROUP, {14, 84, 90, 28}),
      {.id = cmbGroup, .kind = ControlKind::Combo, .text = IDS_DLG_PICK_GROUP, .at = {110, 84, 296, 28}},
      Caption(IDS_DLG_PICK_NAME, {14, 120, 90, 28}, kNamePane),
      {.id = txtGroupName, .kind = ControlKind::Edit, .at = {110, 120, 296, 28}, .pane = kNamePane},
      {.kind = ControlKind::Groove, .at = {14, 190, 392, 2}},
      OkButton({214, 201, 92, 30}),
      CancelButton({314, 201, 92, 30}),
      CloseButton(380),
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
      {cmbGroup, SelChange, &frmPickGroup::cmbGroup_SelChange},
      {txtGroupName, Change, &frmPickGroup::txtGroupName_Change},
      {butOKIt, Click, &frmPickGroup::butOKIt_Click},
      {butCancelIt, Click, &frmPickGroup::butCancelIt_Click},
      {butCloseIt, Click, &frmPickGroup::butCancelIt_Click},
  };
  return kRows;
}

std::string frmPickGroup::AskGroup(HWND owner) { return ShowModal(owner) == 1 ? chosen_ : ""; }

void frmPickGroup::OnLoad() {
  lblStation_.SetText(station_);
  txtGroupName_.Limit(FavoriteGroups::kMaxNameBytes);
  for (const std::string& group : groups_) cmbGroup_.AddItem(group);
  // Eleven groups cannot be shown, so a full row of buttons offers no new one.
  if (groups_.size() < FavoriteGroups::kSlots) cmbGroup_.AddItem(LoadText(IDS_DLG_PICK_NEW));
  const auto usual = std::find(groups_.begin(), groups_.end(), usual_);
  cmbGroup_.SelectItem(usual != groups_.end() ? static_cast<int>(usual - groups_.begin()) : 0);
  cmbGroup_SelChange();
  if (groups_.empty()) txtGroupName_.Focus();
}

// The entry behind all groups. With ten groups there is none, and the number is never selected.
bool frmPickGroup::IsNewChosen() const {
  return cmbGroup_.SelectedItem() == static_cast<int>(groups_.size());
}

void frmPickGroup::cmbGroup_SelChange() {
  ShowPane(kNamePane, IsNewChosen());
  txtGroupName_Change();
}

// A new group needs a name before OK can be pressed.
void frmPickGroup::txtGroupName_Change() {
  butOKIt_.Enable(!IsNewChosen() || !TrimBlanks(txtGroupName_.Text()).empty());
}

void frmPickGroup::butOKIt_Click() {
  const int row = cmbGroup_.SelectedItem();
  if (IsNewChosen()) {
    chosen_ = txtGroupName_.Text();
  } else if (row >= 0) {
    chosen_ = groups_[static_cast<std::size_t>(row)];
  }
  Close(1);
}

}  // namespace sonaro
