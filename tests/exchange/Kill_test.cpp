#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <random>
#include <thread>

#include "base/Text.h"
#include "exchange/ExchangeTest.h"

namespace sonaro {
namespace {

// Tells every value that it writes, as the system keeps them when a process is gone: name, TAB, bytes, zero.
class ToldRegistry : public FakeRegistry {
 public:
  explicit ToldRegistry(int pipe) : pipe_(pipe) {}
  bool WriteValue(RootKey root, const std::string& key, const std::string& name, ValueType type,
                  std::string_view bytes) override {
    const std::string record = name + "\t" + std::string(bytes) + '\0';
    if (write(pipe_, record.data(), record.size()) < 0) return false;
    return FakeRegistry::WriteValue(root, key, name, type, bytes);
  }

 private:
  int pipe_;
};

std::string ReadToEnd(int pipe) {
  std::string text;
  std::array<char, 4096> buffer;
  for (ssize_t count; (count = read(pipe, buffer.data(), buffer.size())) > 0;)
    text.append(buffer.data(), static_cast<std::size_t>(count));
  return text;
}

class KillTest : public ExchangeTest {
 protected:
  // Runs an update in a process of its own, which is ended without warning after `life`. Returns what it
  // wrote to the registry.
  std::string UpdateAndKill(std::chrono::microseconds life) {
    std::array<int, 2> ends{};
    EXPECT_EQ(pipe(ends.data()), 0);
    const int process = fork();
    if (process == 0) {
      ToldRegistry registry(ends[1]);
      Installation installation(Folder(), registry);
      installation.http.port80 = port_;
      installation.reg.SetSetting(setting::kLastUpdate.name, kOldDate);
      installation.Update();
      _exit(0);
    }
    close(ends[1]);
    std::this_thread::sleep_for(life);
    kill(process, SIGKILL);
    waitpid(process, nullptr, 0);
    std::string told = ReadToEnd(ends[0]);
    close(ends[0]);
    return told;
  }

  void Reinstall(std::string_view told) {
    installed_.reset();
    registry_ = FakeRegistry();
    Installed();
    while (!told.empty()) {
      std::string_view value = NextField(told, '\0');
      const std::string name(NextField(value, '\t'));
      Installed().reg.SetSetting(name, value);
    }
  }
};

TEST_F(KillTest, LeavesTheOldDirectoryOrTheNewOne) {
  const ServerProcess nginx(NginxCommand(Site()), port_);
  ASSERT_TRUE(nginx.Answers());
  const auto begin = std::chrono::steady_clock::now();
  ASSERT_EQ(Installed().Update().kind, UpdateOutcome::Kind::Updated);
  const auto whole =
      std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - begin);

  std::mt19937 random(20261123);
  int updated = 0;
  for (int round = 0; round < 30; ++round) {
    SCOPED_TRACE("round " + std::to_string(round));
    installed_.reset();
    std::filesystem::remove_all(Folder());
    CopyFolder(Made("old"), Folder());
    const std::int64_t life = std::uniform_int_distribution<std::int64_t>(0, whole.count() * 5 / 4)(random);
    Reinstall(UpdateAndKill(std::chrono::microseconds(life)));

    Installed().StartAgain();
    const bool isNew = Installed().Bytes("Station.snr") == FileBytes(Made("new") + "/Station.snr");
    updated += isNew;
    EXPECT_TRUE(isNew || Installed().Bytes("Station.snr") == FileBytes(Made("old") + "/Station.snr"));
    EXPECT_EQ(Installed().stations.StationCount(), isNew ? 127u : 40u);
    EXPECT_EQ(Installed().Bytes("favs.snr"), kUsersGroups);
    EXPECT_EQ(Installed().reg.Setting(setting::kUpdateHold.name), "");
    EXPECT_TRUE(isNew || Installed().reg.Setting(setting::kLastUpdate.name) != kDate);
    // Whatever was left behind is no hindrance.
    EXPECT_NE(Installed().Update().kind, UpdateOutcome::Kind::Refused);
    ExpectUpdated();
  }
  EXPECT_LT(updated, 30) << "every process came to its end before it was killed";
}

}  // namespace
}  // namespace sonaro
