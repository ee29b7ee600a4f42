// One update of the directory: asks the service whether anything is newer, fetches the update file that it
// points to, and has it installed. Owned by the window frmInetUpdate, which gives it its timer; one exchange
// for one update. Everything happens in the window's timer and in the events of the transfer.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "base/Files.h"
#include "platform/HttpControl.h"

namespace sonaro {

class CReg;
class DataFolder;
class Strings;
class UpdateInstall;
enum class InstallStatus;

// Who opened the update, and, when it is over, what came of it.
namespace caller {
inline constexpr int kUpdateDialog = 1000;
inline constexpr int kFaceplateDialog = 1001;  // becomes kUpdateDialog once its dialog is known
inline constexpr int kBackground = 1;          // nobody watches
inline constexpr int kFinished = 2000;
inline constexpr int kFailed = 3000;    // the dialog's update
inline constexpr int kNoUpdate = 4000;  // another caller's update
}  // namespace caller

struct UpdateOutcome {
  enum class Kind {
    Updated,
    UpToDate,
    CantConnect,  // nothing was received
    NotComplete,  // the update file did not come through whole
    Refused,      // it came, and was not installed
    Cancelled
  };
  Kind kind = Kind::CantConnect;
  int callerCode = 0;
  std::string reason;  // one sentence about what went wrong or is still to come, or ""
};

// What the exchange needs of its window.
class UpdateView {
 public:
  virtual ~UpdateView() = default;
  virtual void StartTimer(int milliseconds) = 0;  // a timer that runs already starts anew
  virtual void StopTimer() = 0;
  virtual void ShowProgress(const std::string& text) = 0;  // in the opener's label
  virtual void ShowBytes(std::uint64_t bytes, std::uint64_t expected) = 0;
  // The last call; the exchange may be destroyed within it.
  virtual void Finished(const UpdateOutcome& outcome) = 0;
};

struct UpdateDependencies {
  CReg& reg;
  DataFolder& data;
  const Strings& strings;
  UpdateInstall& install;
  HttpControlFactory& http;
  std::function<void(std::string_view reason)> runToDo;  // continues with the list of pending work
};

class UpdateExchange final : private HttpEvents {
 public:
  static constexpr int kSoon = 100;        // milliseconds
  static constexpr int kTryLater = 10000;  // between two tries that nobody watches
  static constexpr int kTriesUnwatched = 3;

  UpdateExchange(const UpdateDependencies& needs, UpdateView& view, int callerCode, int installCode);

  // The window was loaded.
  void Load();
  // The window's timer fired.
  void tmrInetStuff_Timer();
  // Ends the exchange at once, without installing anything.
  void Cancel();

 private:
  void HTTPDataReceived(std::string_view body) override;
  void HTTPDataTransferred(std::uint64_t bytes, std::uint64_t expected) override;
  void HTTPError(const std::string& statusCode, const std::string& headers) override;
  void HTTPObjectError(HttpFault fault) override;
  void HTTPReady() override { Complete(); }

  void AskForUpdate();
  void FetchUpdate();
  void Complete();
  void FollowRedirect();
  void Received();
  void Installed(InstallStatus status);
  void ReportInstalled();
  void NothingNew();
  void Failed();
  void Fail(int reasonText);
  void Refused(int reasonText);
  void ToDoIsDone();
  bool ForDialog() const { return callerCode_ == caller::kUpdateDialog; }
  void Finish(UpdateOutcome::Kind kind);

  UpdateDependencies needs_;
  UpdateView& view_;
  std::unique_ptr<HttpControl> http_;
  int openedBy_;
  int callerCode_;
  int installCode_;
  std::string mode_;
  std::string redirect_;
  std::string reason_;
  bool failed_ = false;
  bool dataStarted_ = false;
  bool bodyReceived_ = false;
  int tries_ = 0;
  std::unique_ptr<OutputFile> file_;
};

}  // namespace sonaro
