// The start in its order. Whatever shows something runs a message loop, in which the user may choose Exit in
// the tray: GoesOn is asked after each, and a start that does not go on decides nothing and stores nothing
// more. The numbers given to GoesOn are how far the start is, from 0 to 1.
#include "app/Startup.h"

#include "base/DataFolder.h"
#include "base/OwnFiles.h"
#include "base/Text.h"
#include "directory/CheckDataFiles.h"
#include "directory/DeferredSwap.h"
#include "directory/StatList.h"
#include "net/ServiceRequest.h"
#include "platform/MessagePost.h"
#include "playback/Players.h"
#include "resources/texts/app.h"
#include "settings/AppState.h"
#include "settings/CReg.h"
#include "settings/HelpPages.h"
#include "settings/Message.h"
#include "settings/SettingNames.h"
#include "settings/Strings.h"
#include "tray/Backup.h"

namespace sonaro {

bool Startup::Main() {
  if (AnotherInstanceRuns()) return false;
  state_.startedWithWindows = IsStartWithWindows(state_.commandLine);
  PrepareSettings();
  ReadClockStyle(use_.reg, state_);
  ReadShortDatePattern(use_.reg, use_.systemInfo, state_);
  if (!ShowSplashAndFaceplate() || !PrepareDirectory()) return false;
  if (!state_.startedWithWindows && !FirstRunChecks()) return false;
  if (!view_.LoadMainWindow()) return false;
  if (state_.startedWithWindows) return true;
  view_.ShowMainWindow();
  view_.ShowSplash(false);
  return OfferQuickStart();
}

// The tray window is there from early on, but not from the first moment: the platform's own report covers a
// second start while the first one is still starting.
bool Startup::AnotherInstanceRuns() {
  if (use_.messages.WindowExists(kTrayWindowCaption)) {
    use_.messages.PostTo(kTrayWindowCaption, kSecondStartMessage, 0, 0);
    return true;
  }
  return use_.messages.EarlierInstanceRuns();
}

// Before anything reads a setting or a file of the user's, so what a backup restores is there for all. The
// addresses are written when they are missing, so an update can change them.
void Startup::PrepareSettings() {
  use_.reg.CheckKeyIsThere(kSettingsKey);
  use_.backup.FinishRestore();
  EnsureInstallId(use_.reg);
  use_.exchange.StoreAddresses();
}

bool Startup::ShowSplashAndFaceplate() {
  if (!state_.startedWithWindows && !AsksForView(state_.commandLine)) view_.ShowSplash(true);
  return view_.LoadFaceplate() && view_.GoesOn(0.2);
}

bool Startup::PrepareDirectory() {
  SwapInDownloads();
  if (!view_.GoesOn(0.5)) return false;
  ReadDecimalMode(use_.systemInfo, state_);
  bool end = false;
  CheckDataFiles(true, end);
  return !end && view_.GoesOn(0.7);
}

// The table's bytes are looked at once the window is painted (Application::Loaded).
void Startup::SwapInDownloads() {
  RemoveUnfinishedSaves(use_.data);
  use_.exchange.FinishUndo();
  RunDeferredSwap(use_.data, use_.reg, [this] { return use_.stations.RebuildStationTable(); });
  (void)CareForStationTable(use_.stations, TableCheck::Lengths, use_.strings, use_.messageBox);
}

bool CareForStationTable(StatList& stations, TableCheck check, const Strings& strings,
                         MessageBoxView& messageBox) {
  const TableCare care = stations.EnsureStationTable(check);
  if (care != TableCare::NotMade) return care == TableCare::Made;
  Message message;
  message.key = "StationTableNotMade";
  message.caption = strings.Load(IDS_APP_TITLE);
  message.text = strings.Load(IDS_TABLE_NOT_MADE);
  message.firstButton = strings.Load(IDS_APP_OK);
  message.isTrouble = true;
  messageBox.Ask(message);
  return false;
}

// The splash would lie over the question, so it is taken away and shown again.
bool Startup::CheckDataFiles(bool askUser, bool& end) {
  const bool missing = DataFilesMissing(use_.data);
  if (!missing || !askUser) return missing;
  view_.ShowSplash(false);
  end = !AskToGetMissingFiles(use_.reg, use_.strings, use_.messageBox);
  if (!view_.GoesOn(0.6)) {
    end = true;
  } else if (end) {
    use_.help.OpenHelpPage(HelpPageForMessage(kMissingFilesKey));
  } else if (!state_.startedWithWindows) {
    view_.ShowSplash(true);
  }
  return true;
}

// A check that has nothing to say is settled here. One that shows a page leaves the setting to the page,
// where the user decides whether to be asked again.
bool Startup::FirstRunChecks() {
  if (use_.reg.Get(setting::kStartPlayer)) {
    if (use_.players.RegisteredRealPlayer().empty() && use_.players.Chosen().empty()) {
      view_.ShowStartUpInfo(StartUpInfoPage::Player);
      if (!view_.GoesOn(0.8)) return false;
    } else {
      use_.reg.Set(setting::kStartPlayer, false);
    }
  }
  if (use_.reg.Get(setting::kStartProxy)) {
    if (use_.exchange.ProxyFound()) {
      view_.ShowStartUpInfo(StartUpInfoPage::Proxy);
    } else {
      use_.reg.Set(setting::kStartProxy, false);
    }
  }
  return view_.GoesOn(0.9);
}

// Offered once, whatever the answer; only Exit leaves it for the next start.
bool Startup::OfferQuickStart() {
  if (!use_.reg.Get(setting::kStartQuickStart)) return true;
  Message message;
  message.key = "QuickStart";
  message.caption = use_.strings.Load(IDS_QUICK_START_CAPTION);
  message.text = use_.strings.Load(IDS_QUICK_START_TEXT);
  message.firstButton = use_.strings.Load(IDS_QUICK_START_VIEW);
  message.secondButton = use_.strings.Load(IDS_QUICK_START_SKIP);
  const MessageAnswer answer = use_.messageBox.Ask(message).answer;
  if (!view_.GoesOn(1)) return false;
  if (answer == MessageAnswer::First) use_.help.OpenHelpPage(HelpPageForMessage(message.key));
  use_.reg.Set(setting::kStartQuickStart, false);
  return true;
}

bool IsStartWithWindows(std::string_view commandLine) {
  return EqualIgnoringCase(commandLine, "WinStart=Yes");
}

bool AsksForView(std::string_view commandLine) { return StartsWithIgnoringCase(commandLine, "DoWhat=Bring"); }

std::string_view WhatToShow(std::string_view commandLine) {
  if (EqualIgnoringCase(commandLine, "DoWhat=BringEvents")) return "YourSonaro";
  if (EqualIgnoringCase(commandLine, "DoWhat=BringBrowse")) return "Browse";
  if (EqualIgnoringCase(commandLine, "DoWhat=BringSearch")) return "Search";
  return "";
}

}  // namespace sonaro
