// An update takes two requests. The first tells the service what is there (the date of the last update and
// the version) and is answered with a redirect: to a file named like kNothingNew, or to the update. The
// second fetches that file, which is written to disk, checked and installed. Between the two, and before
// another try, a timer runs instead of a direct call, so that no request is begun from within the events of
// the one before.
#include "net/UpdateExchange.h"

#include "base/DataFolder.h"
#include "base/OwnFiles.h"
#include "base/Text.h"
#include "base/http/HttpRequest.h"
#include "net/NetTexts.h"
#include "net/ServiceRequest.h"
#include "net/ServiceUrlTable.h"
#include "net/UpdateChanges.h"
#include "net/UpdateFile.h"
#include "net/UpdateFormat.h"
#include "net/UpdateInstall.h"
#include "net/WhatIsNew.h"
#include "resources/texts/net.h"
#include "settings/AppState.h"
#include "settings/CReg.h"
#include "settings/SettingNames.h"
#include "settings/Strings.h"

namespace sonaro {

namespace {

constexpr std::string_view kRedirectStatus = "302";
constexpr int kWholeWanted = -1;  // in place of a refusal: the changes that came do not fit

int RefusalOf(UpdateFileStatus status) {
  switch (status) {
    case UpdateFileStatus::Missing:
      return IDS_NET_NOT_SAVED;
    case UpdateFileStatus::TooLarge:
      return IDS_NET_TOO_MUCH;
    case UpdateFileStatus::CannotCheck:
      return IDS_NET_CANNOT_CHECK;
    case UpdateFileStatus::NotSigned:
      return IDS_NET_NOT_SIGNED;
    case UpdateFileStatus::WrongSign:
      return IDS_NET_WRONG_SIGN;
    case UpdateFileStatus::Read:
      break;
  }
  return 0;
}

int RefusalOf(InstallStatus status) {
  switch (status) {
    case InstallStatus::NoStations:
      return IDS_NET_NO_STATIONS;
    case InstallStatus::Older:
      return IDS_NET_OLDER;
    case InstallStatus::NotFitting:
      return IDS_NET_NOT_FITTING;
    case InstallStatus::NotKept:
      return IDS_NET_NOT_KEPT;
    case InstallStatus::NotSaved:
      return IDS_NET_NOT_SAVED;
    case InstallStatus::NotRebuilt:
      return IDS_NET_NOT_REBUILT;
    case InstallStatus::Waits:
    case InstallStatus::Done:
      break;
  }
  return 0;
}

}  // namespace

UpdateExchange::UpdateExchange(const UpdateDependencies& dependencies, UpdateView& view,
                               UpdateListener& listener, CallerCode callerCode, InstallMode installMode)
    : dependencies_(dependencies),
      view_(view),
      listener_(listener),
      http_(dependencies.http.Make()),
      openedBy_(callerCode),
      callerCode_(callerCode),
      installMode_(installMode) {}

void UpdateExchange::Load() {
  phase_ = Phase::FirstRequest;
  if (callerCode_ == CallerCode::FaceplateDialog) callerCode_ = CallerCode::UpdateDialog;
  view_.StartTimer(kSoon);
}

void UpdateExchange::tmrInetStuff_Timer() {
  view_.StopTimer();
  if (phase_ == Phase::ConnectionFailed) {
    Complete();
  } else if (phase_ == Phase::FileRequest) {
    FetchUpdate();
  } else if (phase_ == Phase::Installing) {
    DoSlice();
  } else {
    AskForUpdate();
  }
}

void UpdateExchange::AskForUpdate() {
  ++tries_;
  failed_ = false;
  dataStarted_ = false;
  redirect_.clear();
  reason_.clear();
  file_.reset();
  // An earlier update that was cut off must never be taken for the new one.
  dependencies_.data.Remove(work_file::kUpdate);
  file_ = dependencies_.data.FileSystem().Create(dependencies_.data.Path(work_file::kUpdate));
  if (!file_) {
    Fail(IDS_NET_NOT_SAVED);
    Complete();
    return;
  }
  const std::string lastUpdate = whole_ ? std::string() : dependencies_.reg.Get(setting::kLastUpdate);
  const std::string query = QueryStart(dependencies_.reg) + "&LastUpdate=" + UrlEncodeQuery(lastUpdate) +
                            "&Version=" + UrlEncodeQuery(kVersionText);
  Send(BuildServiceRequest(dependencies_.reg, ServiceSetting(dependencies_.reg, setting::kUpdateUrl), query),
       *http_, *this);
}

void UpdateExchange::FetchUpdate() {
  failed_ = false;
  bodyReceived_ = false;
  const bool watched = openedBy_ == CallerCode::UpdateDialog || openedBy_ == CallerCode::FaceplateDialog;
  Send(BuildServiceRequest(dependencies_.reg, redirect_, watched ? "?Flush=No" : "?Flush=Yes"), *http_,
       *this);
}

// Between two slices. An installation that has begun to replace files is finished rather than given up, and
// the outcome is told as usual.
void UpdateExchange::Cancel() {
  view_.StopTimer();
  http_->Cancel();
  if (taking_ && !dependencies_.install.MayGiveUp()) return Taken(taking_->Finish());
  if (taking_) {
    taking_.reset();
    dependencies_.install.GiveUp();
  }
  Finish(UpdateOutcome::Kind::Cancelled);
}

void UpdateExchange::HTTPDataReceived(std::string_view body) {
  if (phase_ != Phase::FileRequest) return;
  bodyReceived_ = true;
  if (!file_ || !file_->Append(body)) Fail(IDS_NET_NOT_SAVED);
  // Without a length in its head an answer that was cut off looks complete; the sentinel tells.
  if (!update::EndsWithSentinel(body)) Fail(IDS_NET_CUT_SHORT);
}

void UpdateExchange::HTTPDataTransferred(std::uint64_t bytes, std::uint64_t expected) {
  if (ForDialog() && !dataStarted_) {
    dataStarted_ = true;
    listener_.UpdateProgress(dependencies_.strings.Load(IDS_NET_GETTING_DATA));
  }
  if (phase_ == Phase::FileRequest) listener_.UpdateBytes(bytes, expected);
}

// The update file itself is not looked for behind a second redirect, so no row of redirects can keep the
// program busy.
void UpdateExchange::HTTPError(const std::string& statusCode, const std::string& headers) {
  if (statusCode == kRedirectStatus && phase_ == Phase::FirstRequest) {
    redirect_ = RedirectTarget(headers);
  } else {
    failed_ = true;
    reason_ = FormatText(dependencies_.strings.Load(IDS_NET_WRONG_STATUS), {statusCode});
  }
}

// The timer and not Complete: a request must not be begun from within the events of another.
void UpdateExchange::HTTPObjectError(HttpFault fault) {
  failed_ = true;
  reason_ = HttpFaultText(fault, dependencies_.strings);
  phase_ = Phase::ConnectionFailed;
  view_.StartTimer(kSoon);
}

// By what has arrived, not by the phase alone: a second answer without a body, such as a redirect, is a
// failure.
void UpdateExchange::Complete() {
  if (!failed_ && phase_ == Phase::FirstRequest) {
    FollowRedirect();
  } else if (!failed_ && bodyReceived_) {
    Received();
  } else {
    Failed();
  }
}

// The address comes from outside and is followed only within the service's own hosts.
void UpdateExchange::FollowRedirect() {
  if (redirect_.find(update::kNothingNew) != std::string::npos) {
    NothingNew();
  } else if (redirect_.empty() || !IsServiceAddress(redirect_)) {
    Fail(redirect_.empty() ? IDS_NET_NO_ANSWER : IDS_NET_BAD_REDIRECT);
    Failed();
  } else {
    phase_ = Phase::FileRequest;
    view_.StartTimer(kSoon);
  }
}

void UpdateExchange::NothingNew() {
  file_.reset();
  if (ForDialog()) {
    Finish(UpdateOutcome::Kind::UpToDate);
    return;
  }
  callerCode_ = CallerCode::NoUpdate;
  listener_.UpdateProgress(dependencies_.strings.Load(IDS_NET_CANT_CONNECT));
  ToDoIsDone();
  Finish(UpdateOutcome::Kind::UpToDate);
}

void UpdateExchange::Received() {
  const bool saved = file_ && file_->Commit(Durability::Cached);
  file_.reset();
  if (!saved) {
    Refused(IDS_NET_NOT_SAVED);
    return;
  }
  phase_ = Phase::Installing;
  taking_.emplace(TakeUpdate());
  view_.StartTimer(kNextSlice);
}

// One slice a turn of the window, so that it paints and takes input while an update is taken.
void UpdateExchange::DoSlice() {
  if (taking_->Step()) {
    view_.StartTimer(kNextSlice);
  } else {
    Taken(taking_->Take());
  }
}

// A service that answers with changes again, although it is told of nothing to change, is not asked a third
// time.
void UpdateExchange::AskForWhole() {
  if (whole_) return Refused(IDS_NET_NOT_FITTING);
  whole_ = true;
  phase_ = Phase::FirstRequest;
  view_.StartTimer(kSoon);
}

// Gives the text of the refusal, 0 when there is none, or kWholeWanted.
Sliced<int> UpdateExchange::TakeUpdate() {
  UpdateContents contents = co_await ReadUpdateFile(dependencies_.data);
  if (contents.status != UpdateFileStatus::Read) co_return RefusalOf(contents.status);
  co_await NextSlice();
  if (!co_await ExpandChanges(dependencies_.data, contents)) co_return kWholeWanted;
  co_await NextSlice();
  const InstallStatus status = co_await dependencies_.install.Install(contents, installMode_);
  // Counts as installed: what is in use takes its place at the next start.
  if (status == InstallStatus::Waits) reason_ = dependencies_.strings.Load(IDS_NET_WAITS);
  co_return RefusalOf(status);
}

void UpdateExchange::Taken(int refusal) {
  taking_.reset();
  if (refusal == kWholeWanted) return AskForWhole();
  if (refusal != 0) return Refused(refusal);
  if (ForDialog()) {
    callerCode_ = CallerCode::Finished;
    listener_.UpdateProgress(dependencies_.strings.Load(IDS_NET_FINISHED));
  }
  ToDoIsDone();
  Finish(UpdateOutcome::Kind::Updated);
}

// Without somebody who could press Retry the exchange tries again by itself, but not for ever.
void UpdateExchange::Failed() {
  file_.reset();
  if (!ForDialog() && tries_ < kTriesUnwatched) {
    phase_ = Phase::FirstRequest;
    listener_.UpdateProgress(dependencies_.strings.Load(IDS_NET_CANT_CONNECT));
    view_.StartTimer(kTryLater);
    return;
  }
  callerCode_ = ForDialog() ? CallerCode::Failed : CallerCode::NoUpdate;
  listener_.UpdateProgress(dependencies_.strings.Load(IDS_NET_CANT_CONNECT));
  Finish(redirect_.empty() ? UpdateOutcome::Kind::CantConnect : UpdateOutcome::Kind::NotComplete);
}

void UpdateExchange::Refused(int reasonText) {
  Fail(reasonText);
  callerCode_ = ForDialog() ? CallerCode::Failed : CallerCode::NoUpdate;
  listener_.UpdateProgress(reason_);
  Finish(UpdateOutcome::Kind::Refused);
}

// The first reason stays: what fails after it fails because of it.
void UpdateExchange::Fail(int reasonText) {
  failed_ = true;
  if (reason_.empty()) reason_ = dependencies_.strings.Load(reasonText);
}

void UpdateExchange::ToDoIsDone() {
  StationListIsDone(dependencies_.reg);
  listener_.PendingWorkIsDue();
}

void UpdateExchange::Finish(UpdateOutcome::Kind kind) {
  file_.reset();
  listener_.UpdateFinished({kind, callerCode_, reason_});
  view_.Unload();
}

}  // namespace sonaro
