// All that is the user's in one file, and its way back: his groups, stations, schedule and the settings that
// he chose. Not what belongs to the installation or the guide, and not the program that plays: a backup from
// elsewhere must not decide what is started here. Decides for frmOptions; owned by Application.
//
// Restoring waits for the next start, when nothing has been read yet: the backup is kept as "\restore.snr",
// and the start keeps what is there as "\before-restore.sonaro" before it replaces the first file. A start
// that dies meanwhile is finished by the next one.
#pragma once

#include <string>
#include <string_view>

#include "base/Dates.h"

namespace sonaro {

class CReg;
class Clock;
class DataFolder;

enum class BackupSaved { Yes, OwnFileUnreadable, NotWritten };
enum class BackupFault { None, Unreadable, Foreign, LaterVersion, Damaged };

struct BackupFile {
  BackupFault fault = BackupFault::None;
  Date made;          // of a backup without fault
  std::string bytes;  // as read
};

enum class RestoreOutcome {
  NothingToDo,
  Done,
  NotKept,  // nothing was changed, since the present could not be kept first, or the backup is not whole
  InPart    // some file was not replaced
};

struct Restored {
  RestoreOutcome outcome = RestoreOutcome::NothingToDo;
  Date made;  // the backup
};

class Backup {
 public:
  Backup(DataFolder& data, CReg& reg, Clock& clock) : data_(data), reg_(reg), clock_(clock) {}

  // What a backup of today is called: "Sonaro backup 2000-08-14.sonaro".
  std::string FileName() const;
  // Writes the file as a whole; another one of that name is replaced.
  [[nodiscard]] BackupSaved Save(const std::string& path) const;

  // Reads and checks; changes nothing.
  BackupFile Read(const std::string& path) const;
  // Keeps a backup without fault for the next start. False, with nothing changed, when that fails.
  [[nodiscard]] bool RestoreAtStart(const BackupFile& backup);

  // Restores what waits. At the start, when settings can be written and before anything of the user is read.
  void FinishRestore();
  // What it did; told once.
  Restored TakeRestored();

 private:
  RestoreOutcome Begin();
  RestoreOutcome Apply(std::string_view bytes);

  DataFolder& data_;
  CReg& reg_;
  Clock& clock_;
  Restored restored_;
};

}  // namespace sonaro
