#include "app/frmSplash.h"

#include "forms/controls/ProgressScale.h"
#include "forms/paint/Painter.h"
#include "resources/texts/app.h"
#include "settings/AppState.h"
#include "settings/Strings.h"

namespace sonaro {

namespace {

constexpr int kMarkSize = 84;

}  // namespace

// Questions of the start come up beside this window, which must not keep the user from answering.
const FormDesign& frmSplash::Design() {
  static constexpr ControlRow kControls[] = {
      {.id = picMark, .kind = ControlKind::Picture, .at = {56, 52, kMarkSize, kMarkSize}},
      {.id = lblTitle,
       .kind = ControlKind::Label,
       .text = IDS_APP_TITLE,
       .at = {158, 56, 280, 62},
       .style = TextStyle::Splash},
      {.kind = ControlKind::Label,
       .text = IDS_SPLASH_SUBTITLE,
       .at = {161, 112, 280, 26},
       .style = TextStyle::Title,
       .color = TextColor::Muted},
      {.kind = ControlKind::Glass, .at = {48, 166, 384, 50}, .cut = 12},
      {.id = picDial, .kind = ControlKind::Progress, .at = {64, 178, 352, 26}},
      {.id = lblLoading,
       .kind = ControlKind::StateLabel,
       .text = IDS_SPLASH_LOADING,
       .at = {48, 222, 240, 24}},
      {.id = lblVersion,
       .kind = ControlKind::Label,
       .at = {292, 222, 140, 24},
       .flags = kRightAligned,
       .color = TextColor::Muted},
      {.id = lblClose,
       .kind = ControlKind::StripButton,
       .text = IDS_APP_CLOSE,
       .at = {416, 16, 28, 22},
       .icon = Icon::Close},
  };
  static constexpr FormDesign kDesign = {.name = "frmSplash",
                                         .caption = IDS_APP_TITLE,
                                         .size = {480, 270},
                                         .outline = "spf48",
                                         .controls = kControls,
                                         .titleGroove = 0,
                                         .besideModal = true};
  return kDesign;
}

std::span<const EventRow> frmSplash::Events() const {
  static const EventRow kRows[] = {{lblClose, Click, &frmSplash::lblClose_Click}};
  return kRows;
}

void frmSplash::OnLoad() {
  lblVersion_.SetText(FormatText(LoadText(IDS_SPLASH_VERSION), {kVersionText}));
  picMark_.SetPainter([](HDC dc, const RECT& box, const Painter& painter) {
    painter.DrawIcon(dc, Icon::ProgramMark, box.left, box.top, kMarkSize, painter.Colors().text);
  });
  CentreOn(nullptr);
}

// Painted at once: the start does not come back to the message loop before the work that the window stands
// for.
void frmSplash::ShowNow() {
  Show();
  if (IsOpen()) RedrawWindow(Window(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

// The user may have closed it, which only means that it is not to be looked at.
void frmSplash::ShowProgress(double done) {
  if (!IsOpen()) return;
  picDial_->SetProgress(static_cast<int>(done * 100), 100);
}

}  // namespace sonaro
