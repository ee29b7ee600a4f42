// The players that are installed on the machine: finding them and handing them a link. Owned by Application.
#pragma once

#include <string>

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

  // Opens `program` with `link` as its only parameter, exactly as it stands. The caller has checked the link.
  bool Play(const std::string& program, const std::string& link) const;

 private:
  std::string RegisteredVersion() const;
  std::string RegisteredPath(const std::string& version) const;
  // The program for an empty file of this name, which is made anew in the program folder: the platform looks
  // at a real file. In lower case, cut after the first ".exe".
  std::string AssociatedProgram(const std::string& markerFile) const;

  CReg& reg_;
  DataFolder& data_;
  Shell& shell_;
};

}  // namespace sonaro
