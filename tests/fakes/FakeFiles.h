// A file system in memory that can be full, locked or die at any operation. It tells letter case apart, uses
// "/" and, as Windows does, refuses to replace or remove a file that is open.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "base/Files.h"
#include "fakes/CrashJournal.h"

namespace sonaro {

// What a crash leaves of what was written and not flushed. The last three concern settings (see CrashJournal)
// and come only for scenarios that change some.
enum class AfterCrash {
  KeepsAll,        // the program died, the system lived on
  LosesUnflushed,  // the power went: they are gone; replacements and removals not flushed never happened
  TearsUnflushed,  // the power went: half of them reached the disk, zeros stand for the rest
  LosesLastSetting,
  LosesSettings,
  LosesUnflushedAndSettings
};

class FakeFiles : public Files {
 public:
  // Puts a file in place, flushed, with its folders; not counted as an operation.
  void Put(const std::string& path, std::string_view bytes);
  // The present content; nothing when there is no such file.
  std::optional<std::string> Get(const std::string& path) const;
  std::vector<std::string> AllPaths() const;

  // A locked file exists, and every operation on it fails.
  void Lock(const std::string& path) { locked_.insert(path); }
  void Unlock(const std::string& path) { locked_.erase(path); }
  // From now on so many bytes can be appended before the disk is full; nothing = no limit.
  void SetSpaceLeft(std::optional<std::uint64_t> bytes) { spaceLeft_ = bytes; }

  // The changing operation of this number from now on (1 = the next) fails, an Append after half its bytes,
  // and so does everything after it until Restart. 0 = never.
  void CrashAt(int operation) { journal_.CrashAt(operation); }
  bool Crashed() const { return journal_.Crashed(); }
  // Brings the machine up again after a crash. Handles from before stay dead.
  void Restart(AfterCrash survival);
  // Everything so far has reached the disk, settings included.
  void Settle();
  // For a FakeRegistry that dies with these files.
  CrashJournal& Journal() { return journal_; }

  // The changing operations so far: "create /d/a", "append /d/a 12", "write /d/a 0 4", "commit /d/a flushed",
  // "replace /d/a /d/b flushed", "remove /d/a", "folder /d",
  // and of a registry that joined "set KEY NAME", "unset KEY NAME", "flush KEY".
  const std::vector<std::string>& Log() const { return journal_.Log(); }
  void ClearLog() { journal_.ClearLog(); }
  // What all readers together were given.
  std::uint64_t BytesRead() const { return bytesRead_; }

  std::unique_ptr<InputFile> Open(const std::string& path) override;
  std::unique_ptr<OutputFile> Create(const std::string& path) override;
  bool Replace(const std::string& from, const std::string& to, Durability durability) override;
  bool Remove(const std::string& path) override;
  bool Exists(const std::string& path) override;
  std::vector<std::string> List(const std::string& folder) override;
  bool MakeFolder(const std::string& path) override;

 private:
  class Reader;
  class Writer;
  struct File {
    std::string bytes;
    std::string flushed;  // what a power cut leaves at least
    int openHandles = 0;
    bool gone = false;  // of an earlier life: its handles are dead
  };
  using FilePtr = std::shared_ptr<File>;
  struct Replacement {  // one that a power cut can undo; a removal replaces by nothing
    std::string from;
    std::string to;
    FilePtr newFile;  // null for a removal
    FilePtr oldFile;  // null when there was none
  };
  using Step = CrashJournal::Step;

  Step Begin(const std::string& operation) { return journal_.Begin(operation); }
  FilePtr Find(const std::string& path) const;
  // Missing, or there and neither locked nor open.
  bool IsFree(const std::string& path) const;
  void AddFolders(const std::string& folder);
  std::size_t TakeSpace(std::size_t wanted);
  void UndoReplacements();

  std::map<std::string, FilePtr> files_;
  std::vector<Replacement> unflushedReplacements_;
  std::set<std::string> folders_;
  std::set<std::string> locked_;
  std::optional<std::uint64_t> spaceLeft_;
  CrashJournal journal_;
  std::uint64_t bytesRead_ = 0;
};

struct CrashPoint {
  int operation = 0;  // the operation that the crash hit, 1 = the first of the scenario
  AfterCrash survival = AfterCrash::KeepsAll;
  bool completed = false;  // the scenario had ended: the crash came right after it
};

// Runs `scenario` on freshly prepared files with the crash at its first, second, third ... changing operation
// and every kind of survival, last with the crash right after it, and lets `check` look at the files after
// each restart. Returns the number of the scenario's operations. What `prepare` makes is on the disk.
int ForEachCrashPoint(const std::function<void(FakeFiles&)>& prepare,
                      const std::function<void(FakeFiles&)>& scenario,
                      const std::function<void(FakeFiles&, const CrashPoint&)>& check);

// How many restarts all calls together have looked at; at its end a test program prints how many, and how
// many of them `check` was content with ("crash points: 96 tried, 96 survived").
int CrashPointsTried();

}  // namespace sonaro
