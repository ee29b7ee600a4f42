// The data folder: the folder of the executable, which holds every data file of the program. Files are named
// with a leading backslash ("\Station.snr", "\Depot\sshape.pts") that is appended to the folder. On a file
// system that tells letter case apart, names are found ignoring it. Owned by Application; knows no file
// format.
#pragma once

#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/Files.h"

namespace sonaro {

enum class ReadStatus { Ok, Missing, Unreadable };

struct ReadResult {
  ReadStatus status = ReadStatus::Missing;
  std::string bytes;  // the whole file when status is Ok, otherwise empty
};

// Something about one of the user's files that he is told once.
struct FileNote {
  enum class Kind {
    Unreadable,  // it could not be read; it is tried again before anything is written
    KeptBeside   // it was not understood; its bytes are in `beside`
  };
  Kind kind = Kind::Unreadable;
  std::string name;    // "Sched.snr"
  std::string beside;  // "Sched.snr.bad"
};

class DataFolder {
 public:
  // `folder` without a separator at its end; `separator` is '\\' in the program, '/' in native tools and
  // tests.
  DataFolder(Files& files, std::string folder, char separator);

  // The path of a name like "\Sched.snr": an existing file of that name in any letter case, else the name as
  // given. Backslashes inside the name become the separator.
  std::string Path(std::string_view name) const;
  const std::string& Folder() const { return folder_; }
  Files& FileSystem() const { return files_; }

  bool Exists(std::string_view name) const;
  // Reads a whole file. A file that exists but could not be read is remembered; see Save.
  ReadResult Read(std::string_view name);
  // Replaces the file as a whole, as SaveWholeFile does. Refused (false) when the last Read of this name
  // found the file unreadable: what could not be loaded is not overwritten. What the user made is saved
  // through UserFile, which also minds what others have written meanwhile.
  [[nodiscard]] bool Save(std::string_view name, std::string_view bytes);
  bool Remove(std::string_view name);
  // Puts file `from` in the place of `to` in one step (Files::Replace).
  [[nodiscard]] bool Replace(std::string_view from, std::string_view to);

  // What the user has to be told of his files; taken by the window that tells it.
  void Note(FileNote note) { notes_.push_back(std::move(note)); }
  std::vector<FileNote> TakeNotes() { return std::exchange(notes_, {}); }

 private:
  Files& files_;
  std::string folder_;
  char separator_;
  std::set<std::string> unreadable_;  // folded names
  std::vector<FileNote> notes_;
};

// Reads a whole file by its path.
ReadResult ReadWholeFile(Files& files, const std::string& path);
// Replaces a file as a whole, by its path: writes a temporary file beside it, flushes it and puts it in place
// in one step, so that a crash or a full disk leaves the old file. False when that could not be done.
[[nodiscard]] bool SaveWholeFile(Files& files, const std::string& path, std::string_view bytes);
// Where a file is written before it is put in place: the same name followed by ".new". The one rule for every
// temporary file of the program but those of an update, which are announced by the service.
std::string TemporaryPath(std::string_view path);

}  // namespace sonaro
