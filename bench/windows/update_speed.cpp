// update_speed PROGRAM...: each program takes an update of the directory in its folder from a server of this
// tool, by way of the dialog, while its main window is asked for an answer without a pause. Prints the time
// from the press to the last word, the longest answer, what of processor time the program used in the one
// that took most of it (on a busy machine an answer also waits for others), and how many took longer than a
// twentieth of a second.
// In the update one station of a hundred is gone, one new, three changed.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <sstream>
#include <string>
#include <vector>

#include "HostProcess.h"
#include "Probe.h"
#include "SonaroProcess.h"
#include "TestRegistry.h"
#include "forms/ControlIds.h"
#include "loopback/LoopbackServer.h"
#include "net/UpdateFormat.h"

using namespace sonaro;
using namespace sonaro::desktop;

namespace {

using Milliseconds = std::chrono::duration<double, std::milli>;
using Clock = std::chrono::steady_clock;

constexpr const char* kKey = "Software\\zumo\\Sonaro";
constexpr int kRounds = 5;

std::string Section(const std::string& name, const std::string& lines) {
  return "file::" + name + "\r\n" + name + std::string(update::kSectionStart) + "\r\n" + lines + name +
         std::string(update::kSectionEnd) + "\r\n";
}

std::string UpdateOf(const std::string& folder) {
  std::istringstream list(Content(folder + "station.snr"));
  std::string text, line;
  for (int number = 0; std::getline(list, line); ++number) {
    if (line.ends_with('\r')) line.pop_back();
    if (number % 100 == 50) continue;
    if (number % 100 >= 97) line.insert(std::min(line.size(), line.find('\t') + 1), "A ");
    text += line + "\r\n";
    if (number % 100 == 51)
      text += std::to_string(900000000 + number) + line.substr(line.find('\t')) + "\r\n";
  }
  return Section("Station.snr", text) + Section("cat.snr", Content(folder + "cat.snr")) +
         Section("fun.snr", Content(folder + "fun.snr")) + "date::3/4/2026::\r\n" +
         std::string(update::kSentinel);
}

struct Run {
  double whole = 0, longest = 0, busiest = 0;
  int late = 0;
};

bool TakeUpdate(const std::string& program, const LoopbackServer& server, Run& run) {
  const std::pair<const char*, std::string> settings[] = {{"StartPlayer", "No"},
                                                          {"StartProxy", "No"},
                                                          {"StartQuickStart", "No"},
                                                          {"ProxyUse", "Yes"},
                                                          {"ProxyAddress", "127.0.0.1"},
                                                          {"ProxyPort", std::to_string(server.Port())},
                                                          {"UpdateURL", "http://service.test/update.asp"},
                                                          {"LastUpdate", "1/2/2026"},
                                                          {"DoWhat", ""}};
  for (const auto& [name, value] : settings) WriteText(HKEY_LOCAL_MACHINE, kKey, name, value);
  const SonaroProcess process(program, "");
  HWND main = process.WaitForShownWindow("SonaroFrm", "", std::chrono::seconds(60));
  if (!main) return false;
  Sleep(1500);
  const HostProcess host(program, "");
  const auto begin = Clock::now();
  PostMessageA(Control(main, butUpdate), BM_CLICK, 0, 0);
  const auto finished = [&] {
    DWORD_PTR ignored = 0;
    SendMessageTimeoutA(main, WM_NULL, 0, 0, SMTO_NORMAL, 60000, &ignored);
    return TextOf(Control(process.Window("MsgboxFrm", "Update"), lblStuff)).find("Finished") !=
           std::string::npos;
  };
  bool done = false;
  while (!done && process.Running() && Clock::now() - begin < std::chrono::minutes(2)) {
    const auto asked = Clock::now();
    const double before = host.FirstThread();
    done = finished();  // a text is asked of the window's thread
    run.busiest = std::max(run.busiest, host.FirstThread() - before);
    const double answer = Milliseconds(Clock::now() - asked).count();
    run.longest = std::max(run.longest, answer);
    if (answer > 50) ++run.late;
    Sleep(1);
  }
  run.whole = Milliseconds(Clock::now() - begin).count();
  return done;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::fputs("usage: update_speed PROGRAM...\n", stderr);
    return 2;
  }
  LoopbackServer server;
  const std::string first = argv[1];
  const std::string body = UpdateOf(first.substr(0, first.rfind('\\') + 1));
  server.Answer("/update.asp", script::Redirect("http://files.test/u/update7.txt"));
  server.Answer("/u/update7.txt", script::Body(body));
  std::vector<std::vector<Run>> runs(static_cast<std::size_t>(argc - 1));
  for (int round = 0; round < kRounds; ++round) {
    for (int i = 1; i < argc; ++i) {
      if (!TakeUpdate(argv[i], server, runs[static_cast<std::size_t>(i - 1)].emplace_back())) {
        std::fprintf(stderr, "update_speed: %s took no update\n", argv[i]);
        return 1;
      }
    }
  }
  std::printf(
      "update of %zu bytes, median of %d: milliseconds, longest answer, most of processor, answers above 50 "
      "ms\n",
      body.size(), kRounds);
  for (int i = 1; i < argc; ++i) {
    std::vector<Run>& all = runs[static_cast<std::size_t>(i - 1)];
    std::sort(all.begin(), all.end(), [](const Run& a, const Run& b) { return a.busiest < b.busiest; });
    const Run& middle = all[all.size() / 2];
    std::printf("%8.0f %8.1f %8.1f %5d   %s\n", middle.whole, middle.longest, middle.busiest, middle.late,
                argv[i]);
  }
  return 0;
}
