// The players that are installed on the machine: finding them and handing them a link. Owned by Application.
#pragma once

#include <string>
#include <string_view>

namespace sonaro {

class CReg;
class DataFolder;
class Shell;

class Players {
 public:
  Players(CReg& reg, DataFolder& data, Shell& shell) : reg_(reg), data_(data), shell_(shell) {}

  // Full path of the RealPlayer-compatible player, or "". The player registered with the system, or, when
  // none is or `force` is set, the program that is associated with .ram files.
  std::string FindRealPlayer(bool force) const;
  // The player as its own installation registered it; "" when that names no existing file.
  std::string RegisteredRealPlayer() const;
  // The program that is associated with .asx files, or "".
  std::string FindAsxProgram() const;
  // The program that is associated with files of this ending (".mp3"), in lower case and cut after the first
  // ".exe", or "". Leaves no file behind.
  std::string AssociatedProgram(const std::string& ending) const;
  // Whether the path of a program is that of a RealPlayer-compatible player: its file name begins with "r".
  static bool IsRealPlayer(std::string_view path);

  // The program that the user has chosen for every stream link, or "" when the kind of the link decides.
  std::string Chosen() const;

  // Opens `program` with `link` as its only parameter, exactly as it stands. The caller has checked the link.
  bool Play(const std::string& program, const std::string& link) const;

 private:
  std::string RegisteredVersion() const;
  std::string RegisteredPath(const std::string& version) const;
  // The program for an empty file of this name, which is made anew in the program folder and stays: the
  // platform looks at a real file. In lower case, cut after the first ".exe".
  std::string ProgramOfMarker(std::string_view name) const;

  CReg& reg_;
  DataFolder& data_;
  Shell& shell_;
};

}  // namespace sonaro
