#include "net/frmUpdateDialog.h"

#include "forms/DialogRows.h"
#include "forms/controls/ProgressScale.h"
#include "net/NetTexts.h"
#include "net/UpdateInstall.h"
#include "net/frmInetUpdate.h"
#include "resources/texts/net.h"

namespace sonaro {

namespace {

constexpr unsigned kReportSoon = 1;  // milliseconds: behind whatever waits in the window
constexpr int kScaleSteps = 1000;
constexpr std::uint64_t kTextSteps = 20;
constexpr std::uint64_t kQuietBytes = 256 * 1024;  // between two texts when the length is not known

int SentenceOf(UndoStatus status) {
  switch (status) {
    case UndoStatus::Done:
      return IDS_NET_UNDONE;
    case UndoStatus::Waits:
      return IDS_NET_UNDO_WAITS;
    case UndoStatus::Impossible:
      break;
  }
  return IDS_NET_NOT_UNDONE;
}

}  // namespace

// It has the name and the shape of the message box, which is what it is to the user.
const FormDesign& frmUpdateDialog::Design() {
  static constexpr unsigned char kFoot = kLeft | kBottom;
  static constexpr ControlRow kControls[] = {
      {.id = lblTitle, .kind = ControlKind::TitleBar, .text = IDS_NET_UPDATE_TITLE, .at = {40, 4, 156, 26}},
      MessagePicture(),
      MessageText(lblStuff, 82),
      // All below the text keeps to the lower edge: the text grows the window.
      {.id = lblBytes,
       .kind = ControlKind::StateLabel,
       .at = {68, 136, 336, 20},
       .anchors = kFoot,
       .color = TextColor::Muted},
      {.id = prgUpdate, .kind = ControlKind::Progress, .at = {68, 160, 336, 20}, .anchors = kFoot},
      {.kind = ControlKind::Groove, .at = {14, 190, 392, 2}, .anchors = kFoot},
      {.id = butMsg,
       .kind = ControlKind::PushButton,
       .at = {172, 202, 128, 28},
       .flags = kHidden,
       .anchors = kFoot},
      // Cancel, and Close once the update is over; always the primary one, so Enter never begins anything.
      {.id = butMsg + 1,
       .kind = ControlKind::PrimaryButton,
       .text = IDS_NET_CANCEL,
       .at = {308, 202, 98, 28},
       .anchors = kFoot},
      HelpButton(348),
      CloseButton(380),
  };
  static constexpr FormDesign kDesign = {.name = "MsgboxFrm",
                                         .caption = IDS_NET_UPDATE_TITLE,
                                         .size = {420, 248},
                                         .outline = "fdf01",
                                         .controls = kControls,
                                         .firstFocus = butMsg + 1};
  return kDesign;
}

std::span<const EventRow> frmUpdateDialog::Events() const {
  static const EventRow kRows[] = {
      {butMsg, Click, &frmUpdateDialog::butMsg_Click},
      {butMsg + 1, Click, &frmUpdateDialog::butCancel_Click},
      {butCloseIt, Click, &frmUpdateDialog::butCancel_Click},
      {butHelp, Click, &frmUpdateDialog::butHelp_Click},
  };
  return kRows;
}

std::span<const TimerRow> frmUpdateDialog::Timers() const {
  static const TimerRow kRows[] = {{tmrReport, &frmUpdateDialog::tmrReport_Timer}};
  return kRows;
}

frmUpdateDialog::frmUpdateDialog(FormContext& context, UpdateDialogCommands& commands, UpdateOpening opening)
    : Form(context, Design()), strings_(context.strings), commands_(commands), opening_(opening) {}

frmUpdateDialog::~frmUpdateDialog() = default;

void frmUpdateDialog::OnLoad() {
  if (opening_ == UpdateOpening::Begin) {
    Begin();
    return;
  }
  lblStuff_.SetTextAndGrow(LoadText(IDS_NET_ASK_UNDO));
  prgUpdate_.Show(false);
  butMsg_[1].SetText(LoadText(IDS_NET_CLOSE));
  SetOffer(Offer::Undo);
}

// Closing the dialog ends the update that runs.
// The exchange may report within Cancel; unloading_ keeps that from touching controls that are going.
void frmUpdateDialog::OnUnload() {
  unloading_ = true;
  if (update_) update_->Cancel();
}

// Also for another try, so all that the last one has left is reset here.
void frmUpdateDialog::Begin() {
  unloading_ = false;
  updating_ = true;
  textStep_.reset();
  ShowFailure(false);
  SetOffer(Offer::Nothing);
  butMsg_[1].SetText(LoadText(IDS_NET_CANCEL));
  lblStuff_.SetTextAndGrow(LoadText(IDS_NET_CONNECTING));
  lblBytes_.SetText("");
  prgUpdate_->SetProgress(0, kScaleSteps);
  update_ = commands_.MakeWatchedUpdate(*this);
  update_->Load();
}

void frmUpdateDialog::UpdateProgress(const std::string& text) { lblStuff_.SetText(text); }

// The text changes in steps: a screen reader says each new one.
void frmUpdateDialog::UpdateBytes(std::uint64_t bytes, std::uint64_t expected) {
  const std::uint64_t step = expected == 0 ? bytes / kQuietBytes : bytes * kTextSteps / expected;
  if (step != textStep_) lblBytes_.SetText(BytesText(bytes, expected, strings_));
  textStep_ = step;
  if (expected != 0) {
    prgUpdate_->SetProgress(static_cast<int>(bytes * kScaleSteps / expected), kScaleSteps);
  }
}

void frmUpdateDialog::UpdateFinished(const UpdateOutcome& outcome) {
  const bool updated = outcome.kind == UpdateOutcome::Kind::Updated;
  if (updated) commands_.Installed();  // also when the dialog closes over an update that had to be finished
  if (unloading_) return;
  updating_ = false;
  outcome_ = outcome;
  lblBytes_.SetText("");
  lblStuff_.SetTextAndGrow(OutcomeText(outcome, "", strings_));
  if (updated) StartTimer(tmrReport, kReportSoon);
  prgUpdate_->SetProgress(updated ? kScaleSteps : 0, kScaleSteps);
  butMsg_[1].SetText(LoadText(IDS_NET_CLOSE));
  ShowFailure(MayRetry(outcome));
  SetOffer(MayRetry(outcome) ? Offer::Retry : commands_.CanUndoUpdate() ? Offer::Undo : Offer::Nothing);
}

// In a turn of its own: the two lists are compared for it, just after the windows have taken the new one.
void frmUpdateDialog::tmrReport_Timer() {
  StopTimer(tmrReport);
  if (!updating_) lblStuff_.SetTextAndGrow(OutcomeText(outcome_, commands_.Report(), strings_));
}

void frmUpdateDialog::ShowFailure(bool failed) {
  picStuff_.SetIcon(failed ? Icon::Warn : Icon::Info);
  picStuff_.SetColor(failed ? TextColor::Accent : TextColor::Signal);
}

// The first button stands for what can be done next, and is hidden when there is nothing.
void frmUpdateDialog::SetOffer(Offer offer) {
  offer_ = offer;
  if (offer != Offer::Nothing) {
    butMsg_[0].SetText(LoadText(offer == Offer::Retry ? IDS_NET_RETRY : IDS_NET_UNDO));
  }
  butMsg_[0].Show(offer != Offer::Nothing);
}

void frmUpdateDialog::butMsg_Click() {
  if (offer_ == Offer::Retry) {
    Begin();
  } else if (offer_ == Offer::Undo) {
    StopTimer(tmrReport);
    lblStuff_.SetTextAndGrow(LoadText(SentenceOf(commands_.UndoUpdate())));
    SetOffer(Offer::Nothing);
    // The button that had the focus is hidden by now.
    butMsg_[1].Focus();
  }
}

}  // namespace sonaro
