// The machine that dies: what the tests of crashes stand on.
#include <gtest/gtest.h>

#include <optional>
#include <set>
#include <string>

#include "fakes/FakeFiles.h"
#include "fakes/FakeRegistry.h"

namespace sonaro {
namespace {

// One removal, two settings, in this order; what a restart can find of them.
TEST(CrashModel, SettingsAndRemovalsAreWrittenNotYetWrittenOrLost) {
  const RootKey root = RootKey::CurrentUser;
  std::optional<FakeRegistry> registry;
  std::set<std::string> found;
  std::set<AfterCrash> survivals;
  const int before = CrashPointsTried();
  int checks = 0;
  const int operations = ForEachCrashPoint(
      [&](FakeFiles& files) {
        files.Put("/d/a", "a");
        registry.emplace(files.Journal());
        registry->CreateKey(root, "k");
        registry->WriteValue(root, "k", "gone", ValueType::Text, "old");
      },
      [&](FakeFiles& files) {
        files.Remove("/d/a");
        registry->WriteValue(root, "k", "new", ValueType::Text, "x");
        registry->RemoveValue(root, "k", "gone");
      },
      [&](FakeFiles& files, const CrashPoint& at) {
        ++checks;
        survivals.insert(at.survival);
        std::string state = files.Exists("/d/a") ? "a" : "-";
        state += registry->ReadValue(root, "k", "new") ? "n" : "-";
        state += registry->ReadValue(root, "k", "gone") ? "g" : "-";
        found.insert(state);
        EXPECT_TRUE(at.completed || at.survival != AfterCrash::KeepsAll || state != "-n-") << at.operation;
      });
  EXPECT_EQ(operations, 3);
  // In order: nothing done, then the removal, the value set, the value removed; and what a power cut takes
  // back of the last or of all settings, with the removal or without it.
  EXPECT_EQ(found, (std::set<std::string>{"a-g", "--g", "-ng", "-n-", "ang", "an-"}));
  EXPECT_EQ(survivals.size(), 6u);
  EXPECT_EQ(CrashPointsTried() - before, checks);
}

}  // namespace
}  // namespace sonaro
