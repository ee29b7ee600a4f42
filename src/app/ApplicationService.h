// The exchange with the service as a whole: updates of the directory with and without a dialog, the proxy's
// test, and the options that have to do with them. Owned by Application.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "app/ProgramListener.h"
#include "app/Startup.h"
#include "forms/Form.h"
#include "net/UpdateExchange.h"
#include "net/UpdateInstall.h"
#include "net/frmUpdateDialog.h"
#include "platform/Platform.h"
#include "stations/Commands.h"

namespace sonaro {

class CReg;
class DataFolder;
class FavoriteGroups;
class HelpPages;
class StatList;
class Strings;
class frmInetUpdate;
struct AppState;

class ApplicationService final : public UpdateCommands, public StartupExchange, private UpdateDialogCommands {
 public:
  struct Dependencies {
    const Platform& platform;
    FormContext& context;
    DataFolder& data;
    CReg& reg;
    const Strings& strings;
    const AppState& state;
    StatList& stations;
    const FavoriteGroups& favorites;
    HelpPages& help;
    ProgramListener& listener;
  };

  explicit ApplicationService(const Dependencies& dependencies);
  ~ApplicationService() override;

  // Ends whatever runs; the listener hears nothing from then on. To be called before it is gone.
  void Stop();

  // The update dialog; an update that runs unwatched makes way for it.
  void ShowUpdate(HWND owner);
  bool CanUndoUpdate() override { return install_.CanUndo(); }
  void OfferUndo(Form& owner) override;
  void StoreAddresses() override;
  bool ProxyFound() override { return !DetectProxy().empty(); }
  void FinishUndo() override { install_.FinishUndo(); }
  // When the program has finished loading, and after every update: an update that is on the to-do list,
  // unwatched.
  void RunPendingWork();
  void TestProxy(Form& owner, const std::string& address, const std::string& port) override;

  // "host:port" of the proxy that a browser is set to, or "". Nothing when a proxy is in use already.
  std::string DetectProxy();
  // The same, whether or not a proxy is in use.
  std::string FindProxy() override;

 private:
  // Hears of an update for the main window, and passes it on to the dialog, if there is one.
  class Listener final : public UpdateListener {
   public:
    explicit Listener(ApplicationService& service) : service_(service) {}
    void Watch(UpdateListener* dialog) { dialog_ = dialog; }

    void UpdateProgress(const std::string& text) override;
    void UpdateBytes(std::uint64_t bytes, std::uint64_t expected) override;
    void UpdateFinished(const UpdateOutcome& outcome) override;
    void PendingWorkIsDue() override;

   private:
    ApplicationService& service_;
    UpdateListener* dialog_ = nullptr;
  };

  std::unique_ptr<frmInetUpdate> MakeWatchedUpdate(UpdateListener& dialog) override;
  void Installed() override { TellDirectoryChanged(); }
  std::string Report() override;
  UndoStatus UndoUpdate() override;
  void OpenUpdateHelp() override;

  void OpenDialog(HWND owner, UpdateOpening opening);
  UpdateDependencies MakeUpdateDependencies();
  std::unique_ptr<frmInetUpdate> MakeUpdate(CallerCode callerCode, UpdateListener* dialog);
  void EndProgress();
  void TellDirectoryChanged();
  std::vector<std::int32_t> StationsOfGroups() const;

  Dependencies dependencies_;
  UpdateInstall install_;
  Listener watched_{*this};
  Listener unwatched_{*this};
  bool stopped_ = false;
  std::unique_ptr<frmUpdateDialog> dialog_;
  std::unique_ptr<frmInetUpdate> background_;
  std::unique_ptr<frmInetUpdate> spent_;  // the one before it, which may still be on the stack
  bool toDoDue_ = false;                  // the update that is ending has asked for the to-do list
};

}  // namespace sonaro
