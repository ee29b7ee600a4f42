// The ground of every test with real windows: a fresh data folder with the programs in it, settings as after
// the first start, a recording player and a recording browser. Each test starts from the same state, so their
// order does not matter. A picture of a failing test's screen is left in build/shots.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "Probe.h"
#include "SonaroProcess.h"
#include "TestRegistry.h"

namespace sonaro::desktop {

// Which directory the data folder is made from: a few hundred stations, or the whole bundled one.
enum class Directory { Small, Whole };

class DesktopTest : public ::testing::Test {
 public:
  explicit DesktopTest(Directory directory = Directory::Small) : directory_(directory) {}

 protected:
  void SetUp() override;
  void TearDown() override;

  // The data folder with a backslash at its end, and a file in it ("\\recent.snr").
  const std::string& Folder() const { return folder_; }
  std::string PathOf(const std::string& name) const { return folder_ + name; }
  std::string ReadFile(const std::string& name) const;  // "" when missing
  void WriteFile(const std::string& name, const std::string& bytes) const;
  bool Exists(const std::string& name) const;
  // A downloaded station list that waits to be put in place, its first ranking, and settings as after the
  // first start, and these.
  void HoldList(const std::string& list, const std::string& ranking, SettingValues more = {}) const;
  // Starts the program in the data folder. The first one started is `Sonaro()`.
  SonaroProcess& Start(const std::string& arguments = "");
  SonaroProcess& Sonaro() { return *processes_.front(); }
  // The one started last.
  SonaroProcess& Running() { return *processes_.back(); }
  // Starts the program and waits until its main window is shown; a failure when it does not come.
  HWND StartAndShowMain(const std::string& arguments = "");
  // Waits for a window of the program that was started last; a failure when it does not come.
  HWND Dialog(const std::string& name, const std::string& caption = "");
  // Presses a key of a dialog or box that ends with it. Until it is gone its owner takes no command.
  void EndWith(HWND owner, HWND dialog, int key);
  // Answers a message; returns what it said.
  std::string AnswerBox(HWND owner, int key);

  // Names the file in the system's dialog for opening or saving one, and accepts it.
  void ChooseFile(const std::string& path);

  // The command lines that the recording programs were started with, after waiting for `count` of them.
  std::vector<std::string> PlayerLines(size_t count = 1) const { return Lines(realPlayer_, count); }
  std::vector<std::string> AsxLines(size_t count = 1) const { return Lines(asxPlayer_, count); }
  std::vector<std::string> BrowserLines(size_t count = 1) const { return Lines(browser_, count); }
  // Their programs' paths, as registered.
  const std::string& RealPlayer() const { return realPlayer_; }
  const std::string& AsxPlayer() const { return asxPlayer_; }
  const std::string& Browser() const { return browser_; }

  // Saves the screen as build/shots/<test>-<name>.png.
  void SaveShot(const std::string& name) const;

 private:
  std::vector<std::string> Lines(const std::string& program, size_t count) const;
  void MakeDataFolder();
  void RegisterRecorders();

  Directory directory_;
  std::string folder_;
  std::string realPlayer_;
  std::string asxPlayer_;
  std::string browser_;
  std::vector<std::unique_ptr<SonaroProcess>> processes_;
};

}  // namespace sonaro::desktop
