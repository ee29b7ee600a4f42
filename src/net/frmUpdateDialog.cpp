#include "net/frmUpdateDialog.h"

#include "forms/ControlIds.h"
#include "forms/ProgressScale.h"
#include "net/UpdateText.h"
#include "net/frmInetUpdate.h"
#include "resources/ids.h"

namespace sonaro {

namespace {

constexpr int kSteps = 1000;  // of the progress scale

}  // namespace

const FormDesign& frmUpdateDialog::Design() {
  static constexpr ControlRow kControls[] = {
      {.id = lblTitle, .kind = Kind::TitleBar, .text = IDS_NET_UPDATE_TITLE, .at = {40, 4, 156, 26}},
      {.kind = Kind::Label, .at = {20, 52, 36, 36}, .icon = Icon::Info, .ink = Ink::Signal},
      {.id = lblStuff,
       .kind = Kind::StateLabel,
       .at = {68, 50, 336, 104},
       .flags = kWrap | kNoPrefix,
       .type = Type::Message},
      {.id = prgUpdate, .kind = Kind::Progress, .at = {68, 160, 336, 20}},
      {.kind = Kind::Groove, .at = {14, 190, 392, 2}},
      {.id = butMsg, .kind = Kind::PushKey, .at = {172, 202, 128, 28}, .flags = kHidden},
      {.id = butMsg + 1, .kind = Kind::PrimaryKey, .text = IDS_NET_CANCEL, .at = {308, 202, 98, 28}},
      {.id = butHelp,
       .kind = Kind::StripKey,
       .text = IDS_APP_HELP,
       .at = {348, 12, 28, 22},
       .icon = Icon::Help},
      {.id = butCloseIt,
       .kind = Kind::StripKey,
       .text = IDS_APP_CLOSE,
       .at = {380, 12, 28, 22},
       .icon = Icon::Close},
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

frmUpdateDialog::frmUpdateDialog(FormContext& context, UpdateDialogCalls calls)
    : Form(context, Design()), strings_(context.strings), calls_(std::move(calls)) {}

frmUpdateDialog::~frmUpdateDialog() = default;

// Closing the dialog ends the update that runs.
void frmUpdateDialog::OnUnload() {
  unloading_ = true;
  if (update_) update_->Cancel();
}

void frmUpdateDialog::Begin() {
  unloading_ = false;
  SetOffer(Offer::Nothing);
  SetText(butMsg + 1, LoadText(IDS_NET_CANCEL));
  SetText(lblStuff, LoadText(IDS_NET_CONNECTING));
  Progress(prgUpdate).SetProgress(0, kSteps);
  UpdateOpener opener;
  opener.progress = [this](const std::string& text) { SetText(lblStuff, text); };
  opener.bytes = [this](std::uint64_t bytes, std::uint64_t expected) { ShowBytes(bytes, expected); };
  opener.finished = [this](const UpdateOutcome& outcome) { Ended(outcome); };
  update_ = calls_.begin(std::move(opener));
  update_->Load();
}

void frmUpdateDialog::ShowBytes(std::uint64_t bytes, std::uint64_t expected) {
  SetText(lblStuff, BytesText(bytes, expected, strings_));
  if (expected != 0) {
    Progress(prgUpdate).SetProgress(static_cast<int>(bytes * kSteps / expected), kSteps);
  }
}

void frmUpdateDialog::Ended(const UpdateOutcome& outcome) {
  if (unloading_) return;
  const bool updated = outcome.kind == UpdateOutcome::Kind::Updated;
  SetText(lblStuff, OutcomeText(outcome, updated ? calls_.installed() : std::string(), strings_));
  Progress(prgUpdate).SetProgress(updated ? kSteps : 0, kSteps);
  SetText(butMsg + 1, LoadText(IDS_NET_CLOSE));
  SetOffer(MayRetry(outcome) ? Offer::Retry : calls_.canUndo() ? Offer::Undo : Offer::Nothing);
}

void frmUpdateDialog::SetOffer(Offer offer) {
  offer_ = offer;
  if (offer != Offer::Nothing) {
    SetText(butMsg, LoadText(offer == Offer::Retry ? IDS_NET_RETRY : IDS_NET_UNDO));
  }
  ShowControl(butMsg, offer != Offer::Nothing);
}

void frmUpdateDialog::butMsg_Click() {
  if (offer_ == Offer::Retry) {
    Begin();
  } else if (offer_ == Offer::Undo) {
    SetText(lblStuff, LoadText(calls_.undo() ? IDS_NET_UNDONE : IDS_NET_NOT_UNDONE));
    SetOffer(Offer::Nothing);
    Focus(butMsg + 1);
  }
}

}  // namespace sonaro
