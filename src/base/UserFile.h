// One text file of the user's ("\favs.snr", "\Sched.snr" ...) as the store that owns it reads and writes it,
// so that nothing in it is lost without a word:
// - A file that cannot be read is never written over; it is tried again by every Look.
// - The disk is looked at before each change, so what a second session on the folder wrote is adopted first.
// - UTF-8 with a byte order mark and UTF-16 with one are understood. A file that is no text is kept beside,
//   with ".bad" behind its name, before it counts as empty.
// - A file that vanishes while the program runs takes nothing along: what was read last still counts.
// What the user has to be told of it goes to DataFolder::Note.
//
// A store changes its file in four steps: Look (Unreadable: refuse; Changed: read Text() again), make the
// change in memory, Save, and when that fails take the change back: memory holds what the disk holds.
#pragma once

#include <string>
#include <string_view>

namespace sonaro {

class DataFolder;

class UserFile {
 public:
  enum class Seen {
    Same,     // Text() is what it was
    Changed,  // Text() is new: the first look, or another session or program has written
    Unreadable
  };

  // `name` as DataFolder takes it, with its leading backslash.
  UserFile(DataFolder& data, std::string_view name) : data_(data), name_(name) {}

  [[nodiscard]] Seen Look();
  // What the disk holds as far as it is known: UTF-8 (or as the user's programs wrote it) without a byte
  // order mark; "" for a file that is missing or was never readable.
  const std::string& Text() const { return text_; }
  // The last Look could not read the file.
  bool Unread() const { return unread_; }

  // Puts `text` in the place of the file. False, with the file as it was, when that failed or when the last
  // Look could not read it.
  [[nodiscard]] bool Save(std::string_view text);
  // Copies what was read last to the name with ".bad" behind it, for a reader who is about to leave out what
  // it does not understand. An earlier copy stays: the next is ".bad2", the last ".bad9". False when that
  // could not be written.
  [[nodiscard]] bool KeepBeside();

 private:
  bool TakeOver(std::string bytes);

  DataFolder& data_;
  std::string name_;
  std::string bytes_;  // as on disk
  std::string text_;
  bool seen_ = false;
  bool unread_ = false;
};

}  // namespace sonaro
