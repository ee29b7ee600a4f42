// The media players that are installed on this computer, as far as the system knows them. Owned by
// Application; changes nothing but the marker files that a look-up needs.
#pragma once

#include <string>
#include <vector>

namespace sonaro {

class CReg;
class DataFolder;
class Players;

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

 private:
  using Programs = std::vector<PlayerProgram>;
  void AddRegistered(Programs& programs) const;
  void AddApplication(Programs& programs, const std::string& capabilities, const std::string& name) const;
  void AddAssociated(Programs& programs) const;
  void Add(Programs& programs, const std::string& name, const std::string& path) const;
  // The program of a class of file; "" when it names none.
  std::string ProgramOfClass(const std::string& fileClass) const;

  CReg& reg_;
  DataFolder& data_;
  const Players& players_;
};

}  // namespace sonaro
