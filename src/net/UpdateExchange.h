// One update of the directory: asks the service whether anything is newer, fetches the update file that it
// points to, and has it installed. Owned by the window frmInetUpdate, which gives it its timer; one exchange
// for one update. Everything happens in the window's timer and in the events of the transfer.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "base/Files.h"
#include "base/Sliced.h"
#include "platform/HttpControl.h"

namespace sonaro {

class CReg;
class DataFolder;
class Strings;
class UpdateInstall;
enum class InstallMode : int;
enum class InstallStatus;

// Who opened the update, and, when it is over, what came of it.
enum class CallerCode : int {
  Background = 1,  // nobody watches
  UpdateDialog = 1000,
  FaceplateDialog = 1001,  // becomes UpdateDialog once its dialog is known
  Finished = 2000,
  Failed = 3000,   // the dialog's update
  NoUpdate = 4000  // another caller's update
};

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
  CallerCode callerCode{};
  std::string reason;  // one sentence about what went wrong or is still to come, or ""
};

// Who opened an update hears this of it. The exchange and its window may not be destroyed within these calls.
class UpdateListener {
 public:
  virtual ~UpdateListener() = default;
  virtual void UpdateProgress(const std::string& text) = 0;  // a sentence for the user
  // So far, and of how many; 0 when that is not known.
  virtual void UpdateBytes(std::uint64_t bytes, std::uint64_t expected) = 0;
  virtual void UpdateFinished(const UpdateOutcome& outcome) = 0;  // once, the last
  // Before UpdateFinished: the update has taken its mark off the list of pending work, and whoever owns that
  // goes on with it, but only once the update is over, since going on ends this exchange.
  virtual void PendingWorkIsDue() {}
};

// What the exchange needs of its window.
class UpdateView {
 public:
  virtual ~UpdateView() = default;
  virtual void StartTimer(int milliseconds) = 0;  // a timer that runs already starts anew
  virtual void StopTimer() = 0;
  // The update is over and its listener has heard it. The exchange may be destroyed within this call.
  virtual void Unload() = 0;
};

struct UpdateDependencies {
  CReg& reg;
  DataFolder& data;
  const Strings& strings;
  UpdateInstall& install;
  HttpControlFactory& http;
};

class UpdateExchange final : private HttpEvents {
 public:
  static constexpr int kSoon = 100;        // milliseconds
  static constexpr int kNextSlice = 1;     // behind whatever waits in the window
  static constexpr int kTryLater = 10000;  // between two tries that nobody watches
  static constexpr int kTriesUnwatched = 3;

  UpdateExchange(const UpdateDependencies& dependencies, UpdateView& view, UpdateListener& listener,
                 CallerCode callerCode, InstallMode installMode);

  // The window was loaded.
  void Load();
  // The window's timer fired.
  void tmrInetStuff_Timer();
  // Ends the exchange at once, without installing anything; an installing that cannot be given up any more is
  // finished instead.
  void Cancel();

 private:
  // What the next tick of the timer does, or the answer that is waited for belongs to.
  enum class Phase { FirstRequest, FileRequest, ConnectionFailed, Installing };

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
  void AskForWhole();
  void DoSlice();
  void Taken(int refusal);
  Sliced<int> TakeUpdate();
  void NothingNew();
  void Failed();
  void Fail(int reasonText);
  void Refused(int reasonText);
  void ToDoIsDone();
  bool ForDialog() const { return callerCode_ == CallerCode::UpdateDialog; }
  void Finish(UpdateOutcome::Kind kind);

  UpdateDependencies dependencies_;
  UpdateView& view_;
  UpdateListener& listener_;
  std::unique_ptr<HttpControl> http_;
  const CallerCode openedBy_;
  CallerCode callerCode_;
  const InstallMode installMode_;
  Phase phase_ = Phase::FirstRequest;
  std::string redirect_;
  std::string reason_;
  bool failed_ = false;
  bool dataStarted_ = false;
  bool bodyReceived_ = false;
  bool whole_ = false;  // the changes that came do not fit: the guide is asked for as if there were none
  int tries_ = 0;
  std::unique_ptr<OutputFile> file_;
  std::optional<Sliced<int>> taking_;  // what was received, from its reading to its installing
};

}  // namespace sonaro
