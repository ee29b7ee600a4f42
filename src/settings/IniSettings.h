// The settings of a portable folder: named texts under key names, kept in one INI file. The file is the
// user's: it may be read and changed with an editor, and is saved as a whole, so that a crash leaves the old
// one or the new one. Owned by SettingsRegistry; knows neither registry nor setting names.
//
//   [Sonaro]
//   ScanTime=30
//   [Sonaro\\ads]
//
// A name or text may hold any byte: a backslash, tab or line end is written with a backslash (\\ \t \r \n),
// other control characters and blanks at the ends as \x20 in hexadecimal. A backslash before anything else
// stands for itself. The name "@" is the key's default value. Lines that begin with ";" are for the reader.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Files.h"

namespace sonaro {

class SystemInfo;

class IniSettings {
 public:
  enum class Condition {
    Whole,       // also a file without a value, and one that is not there
    Damaged,     // something in it could not be understood; it was kept beside as FILE.bad
    Unreadable,  // there, and not to be read now; it is tried again before the first save
    NotSaved     // the last change is not on disk; the next one tries again
  };

  // Reads `path`. A file that holds no text, as one that was just unpacked, takes over the values of
  // FILE.old, and so does a damaged one for what it lacks.
  IniSettings(Files& files, std::string path);
  // Leaves a copy as FILE.old.
  ~IniSettings();
  IniSettings(const IniSettings&) = delete;
  IniSettings& operator=(const IniSettings&) = delete;

  Condition State() const { return condition_; }

  // Key and value names ignore letter case.
  bool HasKey(std::string_view key) const { return Find(key) != nullptr; }
  bool AddKey(std::string_view key);
  std::vector<std::string> Names(std::string_view key) const;  // of the key's values
  std::optional<std::string> Read(std::string_view key, std::string_view name) const;
  // False when the key is missing or the file could not be saved. Nothing is saved when nothing changes.
  bool Write(std::string_view key, std::string_view name, std::string_view bytes);
  bool Remove(std::string_view key, std::string_view name);

  // Between the two, which may be nested, changes are kept in memory; the outer End saves once.
  void Begin() { ++holds_; }
  void End();

 private:
  struct Value {
    std::string name;
    std::string bytes;
  };
  struct Key {
    std::string name;
    std::map<std::string, Value> values;  // by folded name
  };
  using Keys = std::map<std::string, Key>;  // by folded name

  struct Parsed {
    Keys keys;
    bool damaged = false;
  };

  static Parsed Parse(std::string_view text);
  static bool ParseLine(std::string_view line, Keys& keys, Key*& current);
  static std::string TextOf(const Keys& keys);
  static void Merge(Keys& keys, const Keys& over);
  static Key& Make(Keys& keys, std::string_view name);
  static bool HoldsText(const Keys& keys);
  const Key* Find(std::string_view key) const;
  bool Load();
  bool Changed();
  bool Save();
  void KeepOld();

  Files& files_;
  const std::string path_;
  Keys keys_;
  Condition condition_ = Condition::Whole;
  bool loaded_ = false;
  bool changed_ = false;
  int holds_ = 0;
};

// Of the INI file of another program, read by the system: the entry `key` of `section`, `defaultText` when it
// is missing. Entries longer than 254 bytes are cut. A fileName without a folder means the system's own
// folder for such files.
std::string ReadIniValue(SystemInfo& system, const std::string& section, const std::string& key,
                         const std::string& defaultText, const std::string& fileName);

}  // namespace sonaro
