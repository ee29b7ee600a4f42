// The user's options: reads them from the settings, checks them, and stores what was changed. Decides for
// frmOptions; owned by Application. Nothing is stored before Store, the faceplate that is tried included.
#pragma once

#include <optional>
#include <string>

#include "faceplate/FaceplateColors.h"
#include "settings/SettingNames.h"
#include "tray/ProxyChoice.h"

namespace sonaro {

class CReg;
class Faceplate;

struct Options {
  bool startWithWindows = false;
  AfterClose afterClose = AfterClose::Ask;
  bool soundWithNotice = true;
  bool clickWithButtons = true;
  bool useProxy = false;
  ProxyServer proxy;
  // What the next start does.
  bool lookForPlayer = true;
  bool lookForProxy = true;
  bool offerTutorial = true;
  std::optional<BuiltInFaceplate> faceplate;  // none: a faceplate that is not built in
  friend bool operator==(const Options&, const Options&) = default;
};

enum class StoreOutcome {
  Stored,
  BadProxy,  // see CheckProxy; nothing was stored
  Refused    // the system kept some value from being written
};

class OptionsModel {
 public:
  // `program`: full path of the executable, which Windows is to start.
  // `portable`: the program writes nothing outside its folder, and so cannot be started by Windows.
  OptionsModel(CReg& reg, Faceplate& faceplate, std::string program, bool portable = false)
      : reg_(reg), faceplate_(faceplate), program_(std::move(program)), portable_(portable) {}

  bool CanStartWithWindows() const { return !portable_; }

  // As they are now. A port that was never set reads as the usual one.
  Options Read() const;
  // Writes the settings in which `wanted` differs from Read, and no other.
  StoreOutcome Store(Options wanted);

  // Draws with a faceplate that is not chosen yet; windows that are open must be refreshed.
  void TryFaceplate(BuiltInFaceplate faceplate);
  // Back to the one that is stored. True when one had been tried.
  bool EndTrying();

 private:
  bool StartsWithWindows() const;
  void StoreStart(bool withWindows);

  CReg& reg_;
  Faceplate& faceplate_;
  const std::string program_;
  const bool portable_;
  bool trying_ = false;
};

}  // namespace sonaro
