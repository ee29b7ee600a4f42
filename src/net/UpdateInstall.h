// Puts a received update in the place of the directory, and back. Every file takes its place in one step, and
// "UpdateHold" names the files while that goes on: a run that dies is finished by the next start. The station
// list that an update replaces stays as "\previous.snr" until the next one. Owned by Application.
#pragma once

#include <string>

namespace sonaro {

class CReg;
class DataFolder;
class StatList;
struct UpdateContents;

// What the opener of an update wants done with the received files; every other code installs them without
// making the station table.
inline constexpr int kHoldFiles = 100;  // for the next start
inline constexpr int kInstallAndRebuild = 101;

enum class InstallStatus {
  Done,
  NoStations,  // the new station list holds none: nothing was installed
  NotSaved,    // the old list could not be kept: nothing was installed
  NotRebuilt   // no table could be made of the new list: the old one is in place again
};

class UpdateInstall {
 public:
  UpdateInstall(DataFolder& data, CReg& reg, StatList& stations)
      : data_(data), reg_(reg), stations_(stations) {}

  // Takes what ReadUpdateFile gave. The settings of the update count as soon as it is installed or held; the
  // date of the directory and the version only once it is installed.
  InstallStatus Install(const UpdateContents& contents, int code);

  // Puts the station list of before the last update back and makes its table. False, with everything as it
  // was, when there is none or it could not be done.
  bool UndoLastUpdate();
  bool CanUndo() const;

 private:
  InstallStatus KeepPrevious(const std::string& received);
  bool PutInPlace(const std::string& received, bool rebuild);
  void StoreValues(const UpdateContents& contents);

  DataFolder& data_;
  CReg& reg_;
  StatList& stations_;
};

}  // namespace sonaro
