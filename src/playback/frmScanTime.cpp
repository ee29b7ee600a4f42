#include "playback/frmScanTime.h"

#include <string>

#include "forms/DialogRows.h"
#include "playback/StationScan.h"
#include "resources/texts/playback.h"

namespace sonaro {

// The shape of a message box, with one choice in it.
const FormDesign& frmScanTime::Design() {
  static constexpr ControlRow kControls[] = {
      {.id = lblTitle, .kind = ControlKind::TitleBar, .text = IDS_SCAN_W_TIME_TITLE, .at = {40, 4, 156, 26}},
      Caption(IDS_SCAN_W_TIME_LABEL, {14, 60, 200, 28}),
      {.id = cmbScanTime,
       .kind = ControlKind::Combo,
       .text = IDS_SCAN_W_TIME_LABEL,
       .at = {220, 60, 100, 28}},
      {.kind = ControlKind::Groove, .at = {14, 190, 392, 2}},
      OkButton({214, 201, 92, 30}),
      CancelButton({314, 201, 92, 30}),
      CloseButton(380),
  };
  static constexpr FormDesign kDesign = {.name = "frmScanTime",
                                         .caption = IDS_SCAN_W_TIME_TITLE,
                                         .size = {420, 248},
                                         .outline = "fdf01",
                                         .controls = kControls,
                                         .firstFocus = cmbScanTime};
  return kDesign;
}

std::span<const EventRow> frmScanTime::Events() const {
  static const EventRow kRows[] = {
      {butOKIt, Click, &frmScanTime::butOKIt_Click},
      {butCancelIt, Click, &frmScanTime::butCancelIt_Click},
      {butCloseIt, Click, &frmScanTime::butCancelIt_Click},
  };
  return kRows;
}

// A time out of the settings that is not offered here selects the first one; it is stored only with OK.
void frmScanTime::OnLoad() {
  for (int seconds : StationScan::kScanTimes) cmbScanTime_.AddItem(std::to_string(seconds), seconds);
  if (!cmbScanTime_.SelectItemData(seconds_)) cmbScanTime_.SelectItem(0);
}

void frmScanTime::butOKIt_Click() {
  seconds_ = cmbScanTime_.ItemData(cmbScanTime_.SelectedItem());
  Close(1);
}

}  // namespace sonaro
