#include "DesktopTest.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <system_error>

#include "Picture.h"
#include "forms/ControlIds.h"

namespace sonaro::desktop {

namespace fs = std::filesystem;

namespace {

// The folder of this program, build/windows/bin, and with it the build folder.
fs::path ProgramFolder() {
  std::array<char, 1024> path{};
  GetModuleFileNameA(nullptr, path.data(), static_cast<DWORD>(path.size()));
  return fs::path(path.data()).parent_path();
}

fs::path BuildFolder() { return ProgramFolder().parent_path().parent_path(); }

std::string TestName() {
  const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
  std::string name = std::string(info->test_suite_name()) + "." + info->name();
  for (char& c : name) {
    if (c == '/') c = '-';
  }
  return name;
}

std::string ReadBytes(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream bytes;
  bytes << file.rdbuf();
  return bytes.str();
}

}  // namespace

void DesktopTest::SetUp() {
  ASSERT_EQ(FindWindowA(nullptr, "frmSysTrayMenu"), nullptr) << "another Sonaro is running in this prefix";
  MakeDataFolder();
  if (HasFatalFailure()) return;
  RegisterRecorders();
  SetDotsPerInch(96);
  ResetToSettled();
}

void DesktopTest::TearDown() {
  if (HasFailure()) SaveShot("failed");
  processes_.clear();
  std::error_code ignored;
  if (!folder_.empty()) fs::remove_all(folder_, ignored);
}

void DesktopTest::MakeDataFolder() {
  const fs::path source = BuildFolder() / "test-data" / (directory_ == Directory::Small ? "small" : "whole");
  ASSERT_TRUE(fs::exists(source / "Station.snr")) << source.string() << " is missing: scripts/make-test-data";
  const fs::path folder = BuildFolder() / "desktop" / TestName();
  std::error_code error;
  fs::remove_all(folder, error);
  fs::create_directories(folder.parent_path(), error);
  fs::copy(source, folder, fs::copy_options::recursive, error);
  ASSERT_FALSE(error) << error.message();
  for (const char* program : {"Sonaro.exe", "lweb.exe"}) {
    fs::copy_file(ProgramFolder() / program, folder / program, error);
    ASSERT_FALSE(error) << program << ": " << error.message();
  }
  folder_ = folder.string() + "\\";
}

void DesktopTest::RegisterRecorders() {
  const fs::path players = fs::path(folder_) / "My Players";  // a blank, as in "Program Files"
  std::error_code error;
  fs::create_directory(players, error);
  const auto install = [&](const char* name) {
    const fs::path program = players / name;
    fs::copy_file(ProgramFolder() / "recording_player.exe", program, error);
    EXPECT_FALSE(error) << name << ": " << error.message();
    return program.string();
  };
  realPlayer_ = install("realish.exe");
  asxPlayer_ = install("mediaplay.exe");
  browser_ = install("browser.exe");
  RegisterRealPlayer(realPlayer_);
  RegisterProgram(".ram", "");
  RegisterProgram(".asx", asxPlayer_);
  RegisterProgram("http", browser_);
  RegisterProgram("https", browser_);
}

std::string DesktopTest::ReadFile(const std::string& name) const { return ReadBytes(PathOf(name)); }

void DesktopTest::WriteFile(const std::string& name, const std::string& bytes) const {
  std::ofstream(PathOf(name), std::ios::binary) << bytes;
}

void DesktopTest::HoldList(const std::string& list, const std::string& ranking, SettingValues more) const {
  WriteFile("tStation.snr", list);
  WriteFile("fun.snr", "Most Pop\t" + ranking + "\r\n");
  more["UpdateHold"] = "Station.snr\t";
  ResetToSettled(std::move(more));
}

bool DesktopTest::Exists(const std::string& name) const {
  std::error_code error;
  return fs::exists(PathOf(name), error);
}

SonaroProcess& DesktopTest::Start(const std::string& arguments) {
  processes_.push_back(std::make_unique<SonaroProcess>(PathOf("Sonaro.exe"), arguments));
  EXPECT_TRUE(processes_.back()->Started());
  return *processes_.back();
}

HWND DesktopTest::StartAndShowMain(const std::string& arguments) {
  HWND window = Start(arguments).WaitForShownWindow("SonaroFrm");
  EXPECT_NE(window, nullptr) << "the main window did not come";
  return window;
}

HWND DesktopTest::Dialog(const std::string& name, const std::string& caption) {
  HWND dialog = Running().WaitForShownWindow(name, caption);
  EXPECT_NE(dialog, nullptr) << name << " " << caption;
  return dialog;
}

void DesktopTest::EndWith(HWND owner, HWND dialog, int key) {
  EXPECT_TRUE(WaitUntil([&] { return IsWindowEnabled(Control(dialog, key)) != FALSE; }));
  Click(Control(dialog, key));
  EXPECT_TRUE(WaitUntil([&] { return !IsShown(dialog) && IsWindowEnabled(owner) != FALSE; }));
}

std::string DesktopTest::AnswerBox(HWND owner, int key) {
  HWND box = Dialog("MsgboxFrm");
  std::string said = TextOf(Control(box, lblMsg));
  EndWith(owner, box, key);
  return said;
}

void DesktopTest::ChooseFile(const std::string& path) {
  constexpr int kFileName = 0x47C;  // the system's number of its combo
  HWND dialog = Dialog("#32770");
  ASSERT_TRUE(WaitUntil([&] { return Control(dialog, kFileName) != nullptr; }));
  SetText(Control(dialog, kFileName), path);
  Command(dialog, IDOK);
  EXPECT_TRUE(WaitUntil([&] { return !IsShown(dialog); }));
}

std::vector<std::string> DesktopTest::Lines(const std::string& program, size_t count) const {
  std::vector<std::string> lines;
  WaitUntil([&] {
    lines.clear();
    std::istringstream record(ReadBytes(program + ".txt"));
    for (std::string line; std::getline(record, line);) lines.push_back(line);
    return lines.size() >= count;
  });
  return lines;
}

void DesktopTest::SaveShot(const std::string& name) const {
  std::error_code ignored;
  const fs::path shots = BuildFolder() / "shots";
  fs::create_directories(shots, ignored);
  SavePicture(WholeScreen(), (shots / (TestName() + "-" + name + ".png")).string());
}

}  // namespace sonaro::desktop
