// Updates and the proxy as the program has them. At most one update runs: the dialog takes the place of one
// in the background, and asking for the dialog while it updates brings it forward. Listeners outlive their
// updates, since an update may tell of its end from within its own call.
#include "app/ApplicationService.h"

#include <utility>

#include "base/DataFolder.h"
#include "base/OwnFiles.h"
#include "base/Text.h"
#include "net/ProxyDetection.h"
#include "net/ServiceUrlTable.h"
#include "net/UpdateReport.h"
#include "net/WhatIsNew.h"
#include "net/frmInetUpdate.h"
#include "net/frmTestProxy.h"
#include "settings/CReg.h"
#include "settings/HelpPages.h"
#include "settings/SettingNames.h"
#include "stations/FavoriteGroups.h"
#include "stations/StationKey.h"

namespace sonaro {

ApplicationService::ApplicationService(const Dependencies& dependencies)
    : dependencies_(dependencies), install_(dependencies.data, dependencies.reg, dependencies.stations) {}

ApplicationService::~ApplicationService() = default;

UpdateDependencies ApplicationService::MakeUpdateDependencies() {
  return {dependencies_.reg, dependencies_.data, dependencies_.strings, install_,
          dependencies_.platform.http};
}

void ApplicationService::StoreAddresses() { WriteServiceDefaults(dependencies_.reg); }

void ApplicationService::ShowUpdate(HWND owner) { OpenDialog(owner, UpdateOpening::Begin); }
void ApplicationService::OfferUndo(Form& owner) { OpenDialog(owner.Window(), UpdateOpening::OfferUndo); }

// A dialog that is open and idle is made anew, so it begins like the first time.
void ApplicationService::OpenDialog(HWND owner, UpdateOpening opening) {
  if (dialog_ && dialog_->IsUpdating()) {
    dialog_->Show(owner);
    return;
  }
  if (background_) background_->Cancel();
  UpdateDialogCommands& commands = *this;
  dialog_ = std::make_unique<frmUpdateDialog>(dependencies_.context, commands, opening);
  dialog_->Show(owner);
}

std::unique_ptr<frmInetUpdate> ApplicationService::MakeWatchedUpdate(UpdateListener& dialog) {
  return MakeUpdate(CallerCode::UpdateDialog, &dialog);
}

void ApplicationService::OpenUpdateHelp() { dependencies_.help.OpenHelpPage("index.html"); }

std::unique_ptr<frmInetUpdate> ApplicationService::MakeUpdate(CallerCode callerCode, UpdateListener* dialog) {
  Listener& listener = dialog ? watched_ : unwatched_;
  listener.Watch(dialog);
  return std::make_unique<frmInetUpdate>(dependencies_.context, MakeUpdateDependencies(), listener,
                                         callerCode, InstallMode::InstallAndRebuild);
}

// Nobody reads the texts of an update that has no dialog; one comes when it has to wait before it tries
// again.
void ApplicationService::Listener::UpdateProgress(const std::string& text) {
  if (dialog_) {
    dialog_->UpdateProgress(text);
  } else {
    service_.EndProgress();
  }
}

void ApplicationService::Listener::UpdateBytes(std::uint64_t bytes, std::uint64_t expected) {
  if (!service_.stopped_)
    service_.dependencies_.listener.UpdateProgress(expected == 0 ? -1
                                                                 : static_cast<int>(bytes * 100 / expected));
  if (dialog_) dialog_->UpdateBytes(bytes, expected);
}

void ApplicationService::Listener::PendingWorkIsDue() { service_.toDoDue_ = true; }

void ApplicationService::Listener::UpdateFinished(const UpdateOutcome& outcome) {
  service_.EndProgress();
  if (dialog_) {
    dialog_->UpdateFinished(outcome);
  } else if (outcome.kind == UpdateOutcome::Kind::Updated) {
    service_.TellDirectoryChanged();
  }
  if (std::exchange(service_.toDoDue_, false)) service_.RunPendingWork();
}

void ApplicationService::EndProgress() {
  if (!stopped_) dependencies_.listener.UpdateProgressEnded();
}

void ApplicationService::TellDirectoryChanged() {
  if (!stopped_) dependencies_.listener.DirectoryChanged();
}

// Nothing is told after this: whoever listens may be gone before the last update has ended.
void ApplicationService::Stop() {
  stopped_ = true;
  dialog_.reset();
  background_.reset();
  spent_.reset();
}

void ApplicationService::RunPendingWork() {
  if (!StationListIsDue(dependencies_.reg)) return;
  spent_ = std::move(background_);  // this may run within its last call
  background_ = MakeUpdate(CallerCode::Background, nullptr);
  background_->Load();
}

// Empty when the last update brought no list, or the same one.
std::string ApplicationService::Report() {
  const std::optional<std::string> before = install_.ReplacedStationList();
  const ReadResult now = dependencies_.data.Read(guide_file::kStations);
  if (!before || now.status != ReadStatus::Ok || *before == now.bytes) return {};
  return DescribeUpdate(CompareStationLists(*before, now.bytes, StationsOfGroups()), dependencies_.strings,
                        dependencies_.state.decimalMode);
}

UndoStatus ApplicationService::UndoUpdate() {
  const UndoStatus status = install_.UndoLastUpdate();
  if (status != UndoStatus::Impossible) TellDirectoryChanged();
  return status;
}

std::vector<std::int32_t> ApplicationService::StationsOfGroups() const {
  std::vector<std::int32_t> ids;
  for (std::size_t group = 0; group < dependencies_.favorites.Count(); ++group) {
    for (const StationKey& key : dependencies_.favorites.Keys(group)) {
      if (key.IsOfGuide()) ids.push_back(key.number);
    }
  }
  return ids;
}

void ApplicationService::TestProxy(Form& owner, const std::string& address, const std::string& port) {
  frmTestProxy(dependencies_.context, dependencies_.reg, dependencies_.platform.http,
               dependencies_.platform.clock, address, port)
      .ShowModal(owner.Window());
}

// For the first start: a proxy that is set already needs no offer.
std::string ApplicationService::DetectProxy() {
  return dependencies_.reg.Get(setting::kProxyUse) ? std::string() : FindProxy();
}

// The system's setting first; the other browser is asked when that has none.
std::string ApplicationService::FindProxy() {
  const std::string proxy = DetectIeProxy(dependencies_.reg);
  return proxy.empty() ? DetectNetscapeProxy(dependencies_.reg, dependencies_.platform.files) : proxy;
}

}  // namespace sonaro
