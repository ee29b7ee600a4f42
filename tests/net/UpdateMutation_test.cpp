#include <random>

#include "net/ExchangeRun.h"

namespace sonaro {
namespace {

// One to three changes anywhere: a byte, a piece cut out, a piece doubled, a line end put in.
std::string Mutated(std::string text, std::mt19937& random) {
  const auto below = [&](std::size_t end) {
    return std::uniform_int_distribution<std::size_t>(0, end - 1)(random);
  };
  for (std::size_t changes = 1 + below(3); changes > 0; --changes) {
    const std::size_t at = below(text.size());
    const std::size_t length = 1 + below(60);
    switch (below(4)) {
      case 0:
        text[at] = static_cast<char>(below(256));
        break;
      case 1:
        text.erase(at, length);
        break;
      case 2:
        text.insert(below(text.size()), text.substr(at, length));
        break;
      default:
        text.insert(at, "\r\n\r\n");
    }
  }
  return text;
}

TEST(UpdateMutation, NeverCostsTheUserAnything) {
  std::mt19937 random(20000814);
  for (int round = 0; round < 200; ++round) {
    SCOPED_TRACE("round " + std::to_string(round));
    FakeFiles files;
    PrepareDirectory(files);
    Machine machine(files);
    std::string update = Mutated(kUpdate.substr(0, kUpdate.size() - update::kSentinel.size()), random);
    if (round % 4 != 0) update += update::kSentinel;  // else the sentinel is missing
    machine.http.Answer("?Flush=", FakeAnswer::Body(update));
    machine.http.Answer("/update.asp", Redirect(kFileAt));
    Exchange exchange(machine, CallerCode::UpdateDialog, InstallMode::InstallAndRebuild);
    exchange.Run();
    ASSERT_TRUE(exchange.view.outcome);
    StartAgain(files, machine);
    EXPECT_NE(machine.stations.FindStation(1).StationId + machine.stations.FindStation(3).StationId, 0);
    for (const std::string& path : files.AllPaths()) EXPECT_EQ(path.substr(0, 3), "/d/");
  }
}

}  // namespace
}  // namespace sonaro
