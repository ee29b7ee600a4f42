#include "tray/frmOptions.h"

#include "base/Dates.h"
#include "base/Text.h"
#include "forms/FileDialog.h"
#include "forms/MessageLoop.h"
#include "playback/PlayerReport.h"
#include "playback/PlayerSetup.h"
#include "resources/texts/app.h"
#include "resources/texts/tray.h"
#include "settings/Message.h"
#include "settings/Strings.h"
#include "tray/Backup.h"

namespace sonaro {

namespace {

constexpr int kMaxAddressBytes = 253;  // of a host name
constexpr int kMaxPortDigits = 5;
constexpr int kFaceplates = 2;
constexpr const char* kRestoreKey = "RestoreBackup";

int SentenceOf(BackupFault fault) {
  switch (fault) {
    case BackupFault::Unreadable:
      return IDS_RESTORE_UNREADABLE;
    case BackupFault::LaterVersion:
      return IDS_RESTORE_LATER;
    case BackupFault::Damaged:
      return IDS_RESTORE_DAMAGED;
    case BackupFault::None:
    case BackupFault::Foreign:
      break;
  }
  return IDS_RESTORE_FOREIGN;
}

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
      {butBackupIt, Click, &frmOptions::butBackupIt_Click},
      {butRestoreIt, Click, &frmOptions::butRestoreIt_Click},
      {butOKIt, Click, &frmOptions::butOKIt_Click},
      {butCancelIt, Click, &frmOptions::butCancelIt_Click},
      {butCloseIt, Click, &frmOptions::butCancelIt_Click},
      {butHelp, Click, &frmOptions::butHelp_Click},
  };
  return kRows;
}

void frmOptions::OnLoad() {
  txtProxy_.Limit(kMaxAddressBytes);
  txtPort_.Limit(kMaxPortDigits);
  for (const auto& [text, choice] : {std::pair(IDS_OPTIONS_CLOSE_ASK, AfterClose::Ask),
                                     std::pair(IDS_OPTIONS_CLOSE_TRAY, AfterClose::KeepInTray),
                                     std::pair(IDS_OPTIONS_CLOSE_EXIT, AfterClose::Exit)})
    cmbAfterClose_.AddItem(LoadText(text), static_cast<int>(choice));
  // In a portable folder nothing is written to the registry, and the start with Windows stands there.
  if (!model_.CanStartWithWindows()) {
    chkStartWindows_.Enable(false);
    chkStartWindows_.SetText(LoadText(IDS_OPTIONS_NO_START));
  }
  options_ = model_.Read();
  Fill(options_);
  StartTimer(tmrPlaying, 1);  // counting the links goes through the whole guide: once the window is there
}

std::span<const TimerRow> frmOptions::Timers() const {
  static const TimerRow kRows[] = {{tmrPlaying, &frmOptions::tmrPlaying_Timer}};
  return kRows;
}

void frmOptions::tmrPlaying_Timer() {
  StopTimer(tmrPlaying);
  const PlayerReport report = use_.players.Report(use_.players.CountLinks(), use_.playWith.Chosen());
  std::string text;
  for (const PlayerReport::Line& line : report.lines) text += (text.empty() ? "" : "\n") + line.text;
  lblPlaying_.SetColor(report.plays == PlayerReport::Plays::Nothing ? TextColor::Alert : TextColor::Text);
  lblPlaying_.SetText(text);
}

void frmOptions::butPlayerIt_Click() {
  use_.program.ChoosePlayer(*this);
  tmrPlaying_Timer();
}

// Also when the window is closed: a faceplate that was only tried gives way to the stored one.
void frmOptions::OnUnload() {
  if (model_.EndTrying()) RefreshAllForms();
}

// No faceplate is marked when the stored one is none of the built-in ones; it stays until the user chooses.
void frmOptions::Fill(const Options& options) {
  chkStartWindows_.Check(options.startWithWindows);
  cmbAfterClose_.SelectItemData(static_cast<int>(options.afterClose));
  chkSoundNotice_.Check(options.soundWithNotice);
  chkSoundKeys_.Check(options.clickWithButtons);
  optProxy_[options.useProxy ? 1 : 0].Check();
  txtProxy_.SetText(options.proxy.address);
  txtPort_.SetText(options.proxy.port);
  chkLookForPlayer_.Check(options.lookForPlayer);
  chkLookForProxy_.Check(options.lookForProxy);
  chkOfferTutorial_.Check(options.offerTutorial);
  optFaceplate_.SetOnly(options.faceplate ? static_cast<int>(*options.faceplate) : -1);
  ShowProxyControls();
}

// Begins with what was read, so that what the window does not show stays as it is.
Options frmOptions::Wanted() const {
  Options wanted = options_;
  wanted.startWithWindows = chkStartWindows_.IsChecked();
  wanted.afterClose = static_cast<AfterClose>(cmbAfterClose_.ItemData(cmbAfterClose_.SelectedItem()));
  wanted.soundWithNotice = chkSoundNotice_.IsChecked();
  wanted.clickWithButtons = chkSoundKeys_.IsChecked();
  wanted.useProxy = optProxy_[1].IsChecked();
  wanted.proxy = TypedProxy();
  wanted.lookForPlayer = chkLookForPlayer_.IsChecked();
  wanted.lookForProxy = chkLookForProxy_.IsChecked();
  wanted.offerTutorial = chkOfferTutorial_.IsChecked();
  return wanted;
}

ProxyServer frmOptions::TypedProxy() const {
  return {std::string(TrimBlanks(txtProxy_.Text())), std::string(TrimBlanks(txtPort_.Text()))};
}

void frmOptions::ShowProxyControls() {
  const bool use = optProxy_[1].IsChecked();
  txtProxy_.Enable(use);
  txtPort_.Enable(use);
  butTestProxyIt_.Enable(use);
}

void frmOptions::Inform(std::string_view sentence, TextColor color) {
  lblOptionsInfo_.SetColor(color);
  lblOptionsInfo_.SetText(sentence);
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
  // Only put into the fields: it is used when the user says OK, like everything here.
  const ProxyServer server = SplitProxy(found);
  optProxy_[1].Check();
  txtProxy_.SetText(server.address);
  txtPort_.SetText(server.port);
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
  const auto refuse = [this](int sentence, const Edit& edit) {
    Inform(LoadText(sentence), TextColor::Alert);
    edit.Focus();
    edit.SelectAll();
    return true;
  };
  switch (CheckProxy(TypedProxy())) {
    case ProxyFault::None:
      break;
    case ProxyFault::NoAddress:
      return refuse(IDS_OPTIONS_NO_ADDRESS, txtProxy_);
    case ProxyFault::BadAddress:
      return refuse(IDS_OPTIONS_BAD_ADDRESS, txtProxy_);
    case ProxyFault::BadPort:
      return refuse(IDS_OPTIONS_BAD_PORT, txtPort_);
  }
  return false;
}

// Shown at once in all windows, stored with OK only.
void frmOptions::optFaceplate_Click(int faceplate) {
  options_.faceplate = static_cast<BuiltInFaceplate>(faceplate);
  optFaceplate_.SetOnly(faceplate);
  model_.TryFaceplate(*options_.faceplate);
  RefreshAllForms();
}

void frmOptions::butBackupIt_Click() {
  const std::string path = AskSavePath(Window(), LoadText(IDS_BACKUP_FILTER), use_.backup.FileName());
  if (path.empty()) return;
  switch (use_.backup.Save(path)) {
    case BackupSaved::Yes:
      Inform(FormatText(LoadText(IDS_BACKUP_SAVED), {path.substr(path.rfind('\\') + 1)}), TextColor::Signal);
      break;
    case BackupSaved::OwnFileUnreadable:
      SayOfBackup(IDS_BACKUP_UNREADABLE);
      break;
    case BackupSaved::NotWritten:
      use_.messages.Ask(NotSavedMessage(path, use_.strings));
      break;
  }
}

// The program ends, since every window shows what is about to be replaced; the next start restores.
void frmOptions::butRestoreIt_Click() {
  const std::string path = AskOpenPath(Window(), LoadText(IDS_BACKUP_FILTER));
  if (path.empty()) return;
  const BackupFile backup = use_.backup.Read(path);
  if (backup.fault != BackupFault::None) return SayOfBackup(SentenceOf(backup.fault));
  const MessageResult result =
      use_.messages.Ask({.key = kRestoreKey,
                         .caption = LoadText(IDS_RESTORE_CAPTION),
                         .text = FormatText(LoadText(IDS_RESTORE_ASK), {FormatLongDate(backup.made)}),
                         .firstButton = LoadText(IDS_RESTORE_YES),
                         .secondButton = LoadText(IDS_APP_CANCEL)});
  if (result.answer != MessageAnswer::First) return;
  if (!SavedOrSaid(use_.backup.RestoreAtStart(backup), LoadText(IDS_RESTORE_WHAT), use_.messages,
                   use_.strings))
    return;
  use_.program.Exit();
}

void frmOptions::SayOfBackup(int sentence) {
  use_.messages.Ask({.key = kRestoreKey,
                     .caption = LoadText(IDS_RESTORE_CAPTION),
                     .text = LoadText(sentence),
                     .firstButton = LoadText(IDS_APP_OK),
                     .isTrouble = true});
}

void frmOptions::butOKIt_Click() {
  switch (model_.Store(Wanted())) {
    case StoreOutcome::Stored:
      Close(1);
      break;
    // The window stays open with the fault marked; nothing was stored.
    case StoreOutcome::BadProxy:
      ShowProxyError();
      break;
    // Some settings may have been taken. OK can be tried again: only what differs is written.
    case StoreOutcome::Refused:
      Inform(LoadText(IDS_OPTIONS_NOT_STORED), TextColor::Alert);
      break;
  }
}

}  // namespace sonaro
