#include "app/MsgboxFrm.h"

#include "forms/DialogRows.h"
#include "forms/WideText.h"
#include "resources/texts/app.h"
#include "settings/HelpPages.h"

namespace sonaro {

namespace {

// Layout 0 is the design itself; the others follow in the order of kLayouts.
constexpr int kOneButtonLayout = 1;
constexpr int kWideButtonLayout = 2;
constexpr int kTwoButtonLayout = 3;
constexpr int kWideSecondLayout = 4;
constexpr std::size_t kLongWords = 14;  // bytes of what the second button has room for
constexpr const char* kFilesMissing = "Files Missing";

}  // namespace

// As designed there are three buttons, which take the whole foot, and the check box stands above them.
const FormDesign& MsgboxFrm::Design() {
  static constexpr unsigned char kFoot = kLeft | kBottom;
  static constexpr ControlRow kControls[] = {
      {.id = lblTitle, .kind = ControlKind::TitleBar, .at = {40, 4, 156, 26}},
      MessagePicture(),
      MessageText(lblMsg, 98),
      {.kind = ControlKind::Groove, .at = {14, 190, 392, 2}, .anchors = kFoot},
      {.id = chkDontAsk,
       .kind = ControlKind::CheckBox,
       .at = {68, 154, 336, 28},
       .flags = kHidden,
       .anchors = kFoot},
      {.id = butMsg, .kind = ControlKind::PrimaryButton, .at = {78, 202, 116, 28}, .anchors = kFoot},
      {.id = butMsg + 1,
       .kind = ControlKind::PushButton,
       .at = {202, 202, 98, 28},
       .flags = kHidden,
       .anchors = kFoot},
      {.id = butCancelIt,
       .kind = ControlKind::PushButton,
       .at = {308, 202, 98, 28},
       .flags = kHidden,
       .anchors = kFoot},
      HelpButton(348),
      CloseButton(380),
  };
  static constexpr DesignRect kWholeText = {68, 50, 336, 132};
  static constexpr Bounds kTwoButtons[] = {{lblMsg, kWholeText},
                                           {chkDontAsk, {16, 202, 172, 28}},
                                           {butMsg, {196, 202, 104, 28}},
                                           {butMsg + 1, {308, 202, 98, 28}},
                                           {butCancelIt, {}}};
  // A sentence that asks nothing: its one button stands where the window's edge is lowered for it.
  static constexpr Bounds kOneButton[] = {{lblMsg, kWholeText},
                                          {chkDontAsk, {16, 202, 172, 28}},
                                          {butMsg, {302, 202, 104, 28}},
                                          {butMsg + 1, {}},
                                          {butCancelIt, {}}};
  // Without the check box its room is the first button's, whose words can be longer.
  static constexpr Bounds kWideButton[] = {{lblMsg, kWholeText},
                                           {chkDontAsk, {}},
                                           {butMsg, {176, 202, 124, 28}},
                                           {butMsg + 1, {308, 202, 98, 28}},
                                           {butCancelIt, {}}};
  static constexpr Bounds kWideSecond[] = {{lblMsg, kWholeText},
                                           {chkDontAsk, {}},
                                           {butMsg, {118, 202, 140, 28}},
                                           {butMsg + 1, {266, 202, 140, 28}},
                                           {butCancelIt, {}}};
  static constexpr Layout kLayouts[] = {{.places = kOneButton, .others = Layout::Others::AsDesigned},
                                        {.places = kWideButton, .others = Layout::Others::AsDesigned},
                                        {.places = kTwoButtons, .others = Layout::Others::AsDesigned},
                                        {.places = kWideSecond, .others = Layout::Others::AsDesigned}};
  static constexpr FormDesign kDesign = {.name = "MsgboxFrm",
                                         .caption = IDS_APP_TITLE,
                                         .size = {420, 248},
                                         .outline = "fdf01",
                                         .controls = kControls,
                                         .layouts = kLayouts,
                                         .firstFocus = butMsg};
  return kDesign;
}

std::span<const EventRow> MsgboxFrm::Events() const {
  static const EventRow kRows[] = {
      {butMsg, Click, &MsgboxFrm::butMsg_Click, 2},
      {butCloseIt, Click, &MsgboxFrm::butCloseIt_Click},
      {butCancelIt, Click, &MsgboxFrm::butCloseIt_Click},
      {butHelp, Click, &MsgboxFrm::butHelp_Click},
  };
  return kRows;
}

MsgboxFrm::MsgboxFrm(FormContext& context, HelpPages& help, Message message)
    : Form(context, Design()), help_(help), message_(std::move(message)) {}

// "Do not ask again" counts with an answer only: closing the box leaves the question open.
MessageResult MsgboxFrm::Ask(HWND owner) {
  const auto answer = static_cast<MessageAnswer>(ShowModal(owner));
  return {answer, dontAskAgain_ && answer != MessageAnswer::Closed};
}

void MsgboxFrm::OnLoad() {
  SetWindowTextW(Window(), Widen(message_.caption).c_str());
  lblTitle_.SetText(message_.caption);
  if (message_.isTrouble) {
    picStuff_.SetIcon(Icon::Warn);
    picStuff_.SetColor(TextColor::Accent);
  }
  if (message_.secondButton.empty()) {
    UseLayout(kOneButtonLayout);
  } else if (message_.cancelButton.empty()) {
    const bool longWords = message_.secondButton.size() > kLongWords;
    UseLayout(!message_.dontAskText.empty() ? kTwoButtonLayout
              : longWords                   ? kWideSecondLayout
                                            : kWideButtonLayout);
  }
  lblMsg_.SetTextAndGrow(message_.text);
  butMsg_[0].SetText(message_.firstButton);
  butMsg_[1].SetText(message_.secondButton);
  butMsg_[1].Show(!message_.secondButton.empty());
  butCancelIt_.SetText(message_.cancelButton);
  butCancelIt_.Show(!message_.cancelButton.empty());
  chkDontAsk_.SetText(message_.dontAskText);
  chkDontAsk_.Show(!message_.dontAskText.empty());
}

// The last moment at which the check box still exists.
void MsgboxFrm::OnUnload() { dontAskAgain_ = chkDontAsk_.IsChecked(); }

// The result of the window is the answer: 1 or 2, and 0 for every way of closing it.
void MsgboxFrm::butMsg_Click(int index) { Close(index + 1); }

void MsgboxFrm::butHelp_Click() {
  if (message_.caption != kFilesMissing) help_.OpenHelpPage(HelpPageForMessage(message_.key));
}

MessageResult MessageBoxes::Ask(const Message& message) {
  MsgboxFrm box(context_, help_, message);
  // Before the window that the user works in. One that is hidden must not own it: the box would not be seen.
  HWND owner = GetActiveWindow();
  return box.Ask(owner != nullptr && IsWindowVisible(owner) ? owner : nullptr);
}

}  // namespace sonaro
