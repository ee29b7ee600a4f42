#include "tray/frmOptions.h"

#include "base/Text.h"
#include "forms/ControlIds.h"
#include "forms/MessageLoop.h"
#include "resources/texts/tray.h"
#include "settings/Strings.h"

namespace sonaro {

namespace {

constexpr int kMaxAddressBytes = 253;  // of a host name
constexpr int kMaxPortDigits = 5;
constexpr int kFaceplates = 2;

}  // namespace

std::span<const EventRow> frmOptions::Events() const {
  static const EventRow kRows[] = {
      {butPlaySoundIt, Click, &frmOptions::butPlaySoundIt_Click},
      {optProxy, Click, &frmOptions::optProxy_Click, 2},
      {txtProxy, Change, &frmOptions::txtProxy_Change},
      {txtPort, Change, &frmOptions::txtProxy_Change},
      {butFindProxyIt, Click, &frmOptions::butFindProxyIt_Click},
      {butTestProxyIt, Click, &frmOptions::butTestProxyIt_Click},
      {butPlayerIt, Click, &frmOptions::butPlayerIt_Click},
      {optFaceplate, Click, &frmOptions::optFaceplate_Click, kFaceplates},
      {butAboutTimeIt, Click, &frmOptions::butAboutTimeIt_Click},
      {butOKIt, Click, &frmOptions::butOKIt_Click},
      {butCancelIt, Click, &frmOptions::butCancelIt_Click},
      {butCloseIt, Click, &frmOptions::butCancelIt_Click},
      {butHelp, Click, &frmOptions::butHelp_Click},
  };
  return kRows;
}

void frmOptions::OnLoad() {
  LimitText(txtProxy, kMaxAddressBytes);
  LimitText(txtPort, kMaxPortDigits);
  for (const auto& [text, choice] : {std::pair(IDS_OPTIONS_CLOSE_ASK, AfterClose::Ask),
                                     std::pair(IDS_OPTIONS_CLOSE_TRAY, AfterClose::KeepInTray),
                                     std::pair(IDS_OPTIONS_CLOSE_EXIT, AfterClose::Exit)})
    AddItem(cmbAfterClose, LoadText(text), static_cast<int>(choice));
  if (!model_.CanStartWithWindows()) {
    Enable(chkStartWindows, false);
    SetText(chkStartWindows, LoadText(IDS_OPTIONS_NO_START));
  }
  options_ = model_.Read();
  Fill(options_);
}

void frmOptions::OnUnload() {
  if (model_.EndTrying()) RefreshAllForms();
}

void frmOptions::Fill(const Options& options) {
  Check(chkStartWindows, options.startWithWindows);
  SelectItemData(cmbAfterClose, static_cast<int>(options.afterClose));
  Check(chkSoundNotice, options.soundWithNotice);
  Check(chkSoundKeys, options.clickWithButtons);
  Check(optProxy + (options.useProxy ? 1 : 0));
  SetText(txtProxy, options.proxy.address);
  SetText(txtPort, options.proxy.port);
  Check(chkLookForPlayer, options.lookForPlayer);
  Check(chkLookForProxy, options.lookForProxy);
  Check(chkOfferTutorial, options.offerTutorial);
  SetToggleOnly(optFaceplate, kFaceplates, options.faceplate ? static_cast<int>(*options.faceplate) : -1);
  ShowProxyControls();
}

Options frmOptions::Wanted() const {
  Options wanted = options_;
  wanted.startWithWindows = IsChecked(chkStartWindows);
  wanted.afterClose = static_cast<AfterClose>(ItemData(cmbAfterClose, SelectedItem(cmbAfterClose)));
  wanted.soundWithNotice = IsChecked(chkSoundNotice);
  wanted.clickWithButtons = IsChecked(chkSoundKeys);
  wanted.useProxy = IsChecked(optProxy + 1);
  wanted.proxy = TypedProxy();
  wanted.lookForPlayer = IsChecked(chkLookForPlayer);
  wanted.lookForProxy = IsChecked(chkLookForProxy);
  wanted.offerTutorial = IsChecked(chkOfferTutorial);
  return wanted;
}

ProxyServer frmOptions::TypedProxy() const {
  return {std::string(TrimBlanks(Text(txtProxy))), std::string(TrimBlanks(Text(txtPort)))};
}

void frmOptions::ShowProxyControls() {
  const bool use = IsChecked(optProxy + 1);
  for (const int id : {txtProxy, txtPort, butTestProxyIt}) Enable(id, use);
}

void frmOptions::Inform(std::string_view sentence, TextColor color) {
  SetTextColor(lblOptionsInfo, color);
  SetText(lblOptionsInfo, sentence);
}

void frmOptions::optProxy_Click(int) {
  ShowProxyControls();
  Inform("", TextColor::Text);
}

// What was said about the proxy was said about another text.
void frmOptions::txtProxy_Change() { Inform("", TextColor::Text); }

void frmOptions::butFindProxyIt_Click() {
  const std::string found = use_.update.FindProxy();
  if (found.empty()) {
    Inform(LoadText(IDS_OPTIONS_PROXY_NONE), TextColor::Text);
    return;
  }
  const ProxyServer server = SplitProxy(found);
  Check(optProxy + 1);
  SetText(txtProxy, server.address);
  SetText(txtPort, server.port);
  ShowProxyControls();
  Inform(FormatText(LoadText(IDS_OPTIONS_PROXY_FOUND), {found}), TextColor::Signal);
}

void frmOptions::butTestProxyIt_Click() {
  if (ShowProxyError()) return;
  Inform("", TextColor::Text);
  const ProxyServer server = TypedProxy();
  use_.update.TestProxy(*this, server.address, server.port);
}

// True when the proxy cannot be used as it is typed: the sentence is shown and the edit has the focus.
bool frmOptions::ShowProxyError() {
  const auto complain = [this](int sentence, int edit) {
    Inform(LoadText(sentence), TextColor::Alert);
    Focus(edit);
    SelectAllText(edit);
    return true;
  };
  switch (CheckProxy(TypedProxy())) {
    case ProxyFault::None:
      break;
    case ProxyFault::NoAddress:
      return complain(IDS_OPTIONS_NO_ADDRESS, txtProxy);
    case ProxyFault::BadAddress:
      return complain(IDS_OPTIONS_BAD_ADDRESS, txtProxy);
    case ProxyFault::BadPort:
      return complain(IDS_OPTIONS_BAD_PORT, txtPort);
  }
  return false;
}

void frmOptions::optFaceplate_Click(int faceplate) {
  options_.faceplate = static_cast<BuiltInFaceplate>(faceplate);
  SetToggleOnly(optFaceplate, kFaceplates, faceplate);
  model_.TryFaceplate(*options_.faceplate);
  RefreshAllForms();
}

void frmOptions::butOKIt_Click() {
  switch (model_.Store(Wanted())) {
    case StoreOutcome::Stored:
      Close(1);
      break;
    case StoreOutcome::BadProxy:
      ShowProxyError();
      break;
    case StoreOutcome::Refused:
      Inform(LoadText(IDS_OPTIONS_NOT_STORED), TextColor::Alert);
      break;
  }
}

}  // namespace sonaro
