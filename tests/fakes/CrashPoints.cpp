#include <gtest/gtest.h>

#include <cstdio>

#include "fakes/FakeFiles.h"

namespace sonaro {
namespace {

int tried = 0;
int survived = 0;

class CrashPointReport : public testing::Environment {
 public:
  void TearDown() override { std::printf("crash points: %d tried, %d survived\n", tried, survived); }
};

[[maybe_unused]] const testing::Environment* const report =
    testing::AddGlobalTestEnvironment(new CrashPointReport);

int FailuresSoFar() {
  return testing::UnitTest::GetInstance()->current_test_info()->result()->total_part_count();
}

}  // namespace

int CrashPointsTried() { return tried; }

int ForEachCrashPoint(const std::function<void(FakeFiles&)>& prepare,
                      const std::function<void(FakeFiles&)>& scenario,
                      const std::function<void(FakeFiles&, const CrashPoint&)>& check) {
  bool completed = false;
  int operation = 0;
  while (!completed) {
    ++operation;
    bool settingsChanged = true;
    for (const AfterCrash survival :
         {AfterCrash::KeepsAll, AfterCrash::LosesUnflushed, AfterCrash::TearsUnflushed,
          AfterCrash::LosesLastSetting, AfterCrash::LosesSettings, AfterCrash::LosesUnflushedAndSettings}) {
      if (survival >= AfterCrash::LosesLastSetting && !settingsChanged) break;
      FakeFiles files;
      prepare(files);
      files.Settle();
      files.CrashAt(operation);
      scenario(files);
      completed = !files.Crashed();
      settingsChanged = files.Journal().HasUnsettled();
      files.Restart(survival);
      const int before = FailuresSoFar();
      check(files, {operation, survival, completed});
      ++tried;
      if (FailuresSoFar() == before) ++survived;
    }
  }
  return operation - 1;
}

}  // namespace sonaro
