#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <thread>

#include "contract/ScratchFolder.h"
#include "fakes/FakeFiles.h"
#include "fakes/FakeShell.h"
#ifdef _WIN32
#include <windows.h>

#include "platform/win/PlatformWin.h"
#endif

namespace sonaro {
namespace {

constexpr const char* kEnding = ".sncontract";

struct ShellRecorded {
  FakeFiles files;
  FakeShell shell;
  std::string folder = "/player";
  std::string recorder = "recorder";

  ShellRecorded() { shell.files = &files; }
  void PutFile(const std::string& name) { files.Put(folder + "/" + name, ""); }
  void Register(const std::string& program) { shell.programs[kEnding] = program; }
  std::string Echo(const std::string& text) const { return text; }
  std::string CommandLine(const std::string& text) const { return text; }
  bool Received(const std::string& text) const {
    return (shell.opened == std::vector<FakeShell::Opened>{{recorder, text, folder}}) ||
           (shell.runMinimised == std::vector<std::string>{text});
  }
};

#ifdef _WIN32
// The recorder is the command interpreter, told to write what it gets into a file of its working folder.
struct ShellOnMachine {
  ScratchFolder scratch;
  ShellWin shell;
  std::string folder = scratch.Path();
  std::string recorder = "C:\\windows\\system32\\cmd.exe";

  ~ShellOnMachine() {
    RegDeleteTreeA(HKEY_LOCAL_MACHINE, "Software\\Classes\\.sncontract");
    RegDeleteTreeA(HKEY_LOCAL_MACHINE, "Software\\Classes\\SonaroContract");
  }
  void PutFile(const std::string& name) { std::ofstream(folder + "\\" + name); }
  void Register(const std::string& program) {
    SetDefault("Software\\Classes\\.sncontract", "SonaroContract");
    SetDefault("Software\\Classes\\SonaroContract\\shell\\open\\command", '"' + program + "\" \"%1\"");
  }
  std::string Echo(const std::string& text) const { return "/c echo " + text + ">received.txt"; }
  std::string CommandLine(const std::string& text) const {
    return recorder + " /c echo " + text + ">\"" + folder + "\\received.txt\"";
  }
  bool Received(const std::string& text) const {
    for (int round = 0; round < 400; ++round) {
      std::ifstream file(folder + "\\received.txt");
      std::string line;
      if (std::getline(file, line)) return line == text;
      std::this_thread::sleep_for(std::chrono::milliseconds(25));
    }
    return false;
  }

 private:
  static void SetDefault(const char* key, const std::string& text) {
    RegSetKeyValueA(HKEY_LOCAL_MACHINE, key, nullptr, REG_SZ, text.c_str(),
                    static_cast<DWORD>(text.size() + 1));
  }
};
using ShellWorlds = testing::Types<ShellRecorded, ShellOnMachine>;
#else
using ShellWorlds = testing::Types<ShellRecorded>;
#endif

template <typename World>
class ShellContract : public testing::Test {};
TYPED_TEST_SUITE(ShellContract, ShellWorlds);

TYPED_TEST(ShellContract, FindsTheProgramOfAnExistingFileOnly) {
  TypeParam world;
  const std::string file = std::string("dummy") + kEnding;
  world.PutFile(file);
  EXPECT_LE(world.shell.FindProgramFor(file, world.folder).code, 32);
  const std::string program = "C:\\Some Where\\Player.exe";
  world.Register(program);
  const FoundProgram found = world.shell.FindProgramFor(file, world.folder);
  EXPECT_GT(found.code, 32);
  EXPECT_EQ(found.path, program);
  const FoundProgram missing = world.shell.FindProgramFor("other" + file, world.folder);
  EXPECT_LE(missing.code, 32);
  EXPECT_EQ(missing.path, "");
}

TYPED_TEST(ShellContract, OpenHandsParametersOverUnchangedInTheFolder) {
  TypeParam world;
  const std::string link = "http://host/a%20b?x=1,%5%E9#+;=(y)";
  EXPECT_TRUE(world.shell.Open(world.recorder, world.Echo(link), world.folder));
  EXPECT_TRUE(world.Received(link));
}

TYPED_TEST(ShellContract, RunMinimisedTakesTheLineAsItStands) {
  TypeParam world;
  EXPECT_TRUE(world.shell.RunMinimised(world.CommandLine("one  two")));
  EXPECT_TRUE(world.Received("one  two"));
}

#ifdef _WIN32
TEST(ShellWin, ProgramsThatAreNotThereDoNotStart) {
  ShellOnMachine machine;
  EXPECT_FALSE(machine.shell.Open("C:\\none\\none.exe", "x", machine.folder));
  EXPECT_FALSE(machine.shell.RunMinimised("C:\\none\\none.exe x"));
}
#endif

}  // namespace
}  // namespace sonaro
