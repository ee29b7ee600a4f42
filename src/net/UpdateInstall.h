// Puts a received update in the place of the guide, and back. Every file takes its place in one step, and
// "UpdateHold" names the files while that goes on: a run that dies is finished by the next start. What an
// update replaces is kept until the next one: files, addresses, date. Owned by ApplicationService.
#pragma once

#include <optional>
#include <string>

#include "base/Sliced.h"

namespace sonaro {

class CReg;
class DataFolder;
class HeldNames;
class StatList;
struct PreviousGuide;
struct UpdateContents;

// What the opener of an update wants done with the received files.
enum class InstallMode : int {
  Install = 0,      // without making the station table
  HoldFiles = 100,  // for the next start
  InstallAndRebuild = 101
};

// Of Done and Waits the update counts as taken; all others leave the guide and the settings as they were.
enum class InstallStatus {
  Done,
  Waits,       // a file is in use: its copy waits for the next start, and the date for the station list
  NoStations,  // the new station list holds none
  Older,       // its signature is good, but a later update has been taken
  NotFitting,  // a file would take another's name, or a category's list is neither in it nor there
  NotKept,     // a file that it replaces cannot be read
  NotSaved,
  NotRebuilt  // no table could be made of the new list: the old one is in place again
};

enum class UndoStatus {
  Done,
  Waits,      // something is in use: the next start goes on
  Impossible  // there is nothing to go back to; everything is as it was
};

class UpdateInstall {
 public:
  UpdateInstall(DataFolder& data, CReg& reg, StatList& stations)
      : data_(data), reg_(reg), stations_(stations) {}

  // Takes what ReadUpdateFile gave, as a whole or not at all. The addresses of the update count as soon as it
  // is installed or held; the date of the directory and the version once the station list is in place.
  Sliced<InstallStatus> Install(const UpdateContents& contents, InstallMode mode);
  // Whether the installing that runs can be dropped as if it had never begun; GiveUp, behind it, removes what
  // it has copied. Otherwise it has to be finished.
  bool MayGiveUp() const { return mayGiveUp_; }
  void GiveUp();

  // Brings back everything that the last update changed, and makes the station table.
  [[nodiscard]] UndoStatus UndoLastUpdate();
  bool CanUndo() const;
  // At the start, before files are swapped in: goes on with an undoing that was cut short.
  void FinishUndo();

  // The station list that the last update replaced; nothing when it replaced none.
  std::optional<std::string> ReplacedStationList();

 private:
  InstallStatus Check(const UpdateContents& contents);
  bool NamesAreFree(const UpdateContents& contents);
  bool CategoriesHaveLists(const UpdateContents& contents);
  Sliced<InstallStatus> Unpack(const UpdateContents& contents);
  InstallStatus KeepPrevious(const UpdateContents& contents);
  void StoreValues(const UpdateContents& contents, bool listWaits);
  Sliced<InstallStatus> PutInPlace(const UpdateContents& contents, const HeldNames& earlier, bool rebuild);
  void StoreDates(const UpdateContents& contents, bool listWaits);
  void Wait(const HeldNames& names);
  UndoStatus Restore();
  bool RestoreFiles(const PreviousGuide& previous);
  void RestoreSettings(const PreviousGuide& previous);
  HeldNames Waiting() const;

  DataFolder& data_;
  CReg& reg_;
  StatList& stations_;
  bool mayGiveUp_ = true;
};

}  // namespace sonaro
