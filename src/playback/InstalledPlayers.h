// The media players that are installed on this computer, as far as the system knows them. Owned by
// Application; changes nothing but the marker files that a look-up needs.
#pragma once

#include <span>
#include <string>
#include <vector>

namespace sonaro {

class CReg;
class DataFolder;
class Players;
struct PlayLink;

// A kind of playlist that not every player reads.
inline constexpr const char* kPls = ".pls";

struct PlayerProgram {
  std::string name;  // as the program has registered itself, or its file name
  std::string path;  // full path of an existing file
  bool operator==(const PlayerProgram&) const = default;
};

class InstalledPlayers {
 public:
  InstalledPlayers(CReg& reg, DataFolder& data, const Players& players)
      : reg_(reg), data_(data), players_(players) {}

  // The registered applications that open .m3u, .pls, .mp3 or .asx files, and the programs that such files
  // are associated with or can be opened with; each program once.
  std::vector<PlayerProgram> Find() const;
  // The program that is associated with files of this ending (".pls"), or else the first registered
  // application that opens them; "" when there is none.
  std::string ForKind(const char* kind) const;
  // The program for a stream link, by its kind: one that reads .pls playlists for such a link if there is
  // one, else the program for .asx files or `realPlayer`, which is what Players::FindRealPlayer gave. "" when
  // there is none.
  std::string ForLink(const PlayLink& link, const std::string& realPlayer) const;
  // What the program at this path is called: as it has registered itself, or its file name. Looked up once
  // for each program.
  std::string NameOf(const std::string& path) const;

 private:
  using Programs = std::vector<PlayerProgram>;
  using Kinds = std::span<const char* const>;
  void AddRegistered(Programs& programs, Kinds kinds) const;
  void AddApplication(Programs& programs, Kinds kinds, const std::string& capabilities,
                      const std::string& name) const;
  void AddAssociated(Programs& programs) const;
  void Add(Programs& programs, const std::string& name, const std::string& path) const;
  // The program of a class of file; "" when it names none.
  std::string ProgramOfClass(const std::string& fileClass) const;
  std::string OwnNameOf(const std::string& fileName) const;

  CReg& reg_;
  DataFolder& data_;
  const Players& players_;
  mutable Programs named_;  // what NameOf has found
};

}  // namespace sonaro
