// start_speed [--rounds N] PROGRAM...: from the start of each program until its main window is shown, painted
// and answers, beside a bare window of the same size (bare_window.exe, in this tool's folder). The contenders
// take turns in every round. Prints for each the median of time, processor time, private memory
// and the number of modules, and each as a multiple of (memory: as a difference to) the bare window's.
//
// start_speed --idle SECONDS PROGRAM...: how often each program, started hidden, wakes up in that time.
//
#include <windows.h>

#include <psapi.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "HostProcess.h"
#include "Probe.h"
#include "SonaroProcess.h"

using namespace sonaro::desktop;

namespace {

constexpr char kMainClass[] = "SonaroFrm";
constexpr auto kLimit = std::chrono::seconds(60);

struct Figures {
  double wall = 0;       // milliseconds
  double processor = 0;  // milliseconds
  double memory = 0;     // private, MB
  double modules = 0;
};

struct Contender {
  std::string program, arguments;
  std::vector<Figures> rounds;
};

BOOL CALLBACK CountUnpainted(HWND window, LPARAM count) {
  if (IsWindowVisible(window) && GetUpdateRect(window, nullptr, FALSE)) ++*reinterpret_cast<int*>(count);
  return TRUE;
}

bool IsPainted(HWND window) {
  int unpainted = 0;
  CountUnpainted(window, reinterpret_cast<LPARAM>(&unpainted));
  EnumChildWindows(window, CountUnpainted, reinterpret_cast<LPARAM>(&unpainted));
  return unpainted == 0;
}

bool Answers(HWND window) {
  DWORD_PTR ignored = 0;
  return SendMessageTimeoutA(window, WM_NULL, 0, 0, SMTO_NORMAL, 60000, &ignored) != 0;
}

// The window's handlers run between its showing and its painting; what has answered twice with nothing left
// to paint between is ready.
HWND WaitUntilReady(const SonaroProcess& process) {
  const auto end = std::chrono::steady_clock::now() + kLimit;
  while (std::chrono::steady_clock::now() < end && process.Running()) {
    const HWND window = process.Window(kMainClass);
    if (window && IsWindowVisible(window) && Answers(window) && IsPainted(window) && Answers(window))
      return window;
    Sleep(1);
  }
  return nullptr;
}

double Milliseconds(const FILETIME& time) {
  return static_cast<double>((static_cast<unsigned long long>(time.dwHighDateTime) << 32) |
                             time.dwLowDateTime) /
         1e4;
}

Figures Of(DWORD id, const Contender& contender) {
  Figures figures;
  const HANDLE process = OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, id);
  const HostProcess host(contender.program, contender.arguments);
  if (host.Found()) {
    figures.processor = host.Processor();
    figures.memory = host.PrivateMegabytes();
  } else {
    FILETIME ignored{}, kernel{}, user{};
    GetProcessTimes(process, &ignored, &ignored, &kernel, &user);
    figures.processor = Milliseconds(kernel) + Milliseconds(user);
    PROCESS_MEMORY_COUNTERS_EX memory{};
    GetProcessMemoryInfo(process, reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&memory), sizeof memory);
    figures.memory = static_cast<double>(memory.PrivateUsage) / 1048576;
  }
  HMODULE modules[512];
  DWORD bytes = 0;
  if (EnumProcessModules(process, modules, sizeof modules, &bytes)) {
    figures.modules = static_cast<double>(bytes / sizeof(HMODULE));
  }
  CloseHandle(process);
  return figures;
}

bool Run(Contender& contender) {
  const auto begin = std::chrono::steady_clock::now();
  const SonaroProcess process(contender.program, contender.arguments);
  if (!WaitUntilReady(process)) return false;
  const std::chrono::duration<double, std::milli> wall = std::chrono::steady_clock::now() - begin;
  Figures figures = Of(process.Id(), contender);
  figures.wall = wall.count();
  contender.rounds.push_back(figures);
  return true;
}

double Median(const Contender& contender, double Figures::*which) {
  std::vector<double> all;
  for (const Figures& figures : contender.rounds) all.push_back(figures.*which);
  std::sort(all.begin(), all.end());
  return all[all.size() / 2];
}

int MeasureStart(std::vector<Contender>& contenders, int rounds) {
  // The first round fills the caches and does not count.
  for (int round = 0; round <= rounds; ++round) {
    for (Contender& contender : contenders) {
      if (!Run(contender)) {
        std::fprintf(stderr, "start_speed: %s shows no main window\n", contender.program.c_str());
        return 1;
      }
      if (round == 0) contender.rounds.clear();
    }
  }
  std::printf("median of %d rounds: milliseconds, of processor, MB private, modules\n", rounds);
  const Contender& bare = contenders.front();
  for (const Contender& contender : contenders) {
    const auto of = [&](double Figures::*which) { return Median(contender, which); };
    const auto quotient = [&](double Figures::*which) { return of(which) / Median(bare, which); };
    std::printf("%8.0f %8.1f %8.2f %5.0f   x%.2f x%.2f +%.2f MB   %s\n", of(&Figures::wall),
                of(&Figures::processor), of(&Figures::memory), of(&Figures::modules),
                quotient(&Figures::wall), quotient(&Figures::processor),
                of(&Figures::memory) - Median(bare, &Figures::memory),
                &contender == &bare ? "a bare window" : contender.program.c_str());
  }
  return 0;
}

int MeasureIdle(std::vector<Contender>& contenders, int seconds) {
  for (Contender& contender : contenders) {
    contender.arguments = "WinStart=Yes";
    const SonaroProcess process(contender.program, contender.arguments);
    if (!process.WaitForWindow(kMainClass, "", kLimit)) return 1;
    Sleep(10000);  // what the start put off is done by then
    const HostProcess host(contender.program, contender.arguments);
    const double processor = host.Processor();
    int awake = 0;  // seconds with anything to do; one wake-up is several sleeps
    for (int second = 0; second < seconds; ++second) {
      const double before = host.Wakeups();
      Sleep(1000);
      if (host.Wakeups() > before) ++awake;
    }
    std::printf("%4d wake-ups and %.1f ms of processor in %d s, hidden   %s\n", awake,
                host.Processor() - processor, seconds, contender.program.c_str());
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  std::vector<std::string> words(argv + 1, argv + argc);
  int rounds = 15, idle = 0;
  while (words.size() > 2 && words[0].starts_with("--")) {
    (words[0] == "--idle" ? idle : rounds) = std::atoi(words[1].c_str());
    words.erase(words.begin(), words.begin() + 2);
  }
  if (words.empty() || rounds < 1) {
    std::fputs("usage: start_speed [--rounds N] PROGRAM...\n       start_speed --idle SECONDS PROGRAM...\n",
               stderr);
    return 2;
  }
  std::vector<Contender> contenders;
  for (const std::string& program : words) contenders.push_back({program, "", {}});
  if (idle > 0) return MeasureIdle(contenders, idle);
  char self[MAX_PATH] = "";
  GetModuleFileNameA(nullptr, self, MAX_PATH);
  const std::string folder = std::string(self).substr(0, std::string_view(self).rfind('\\') + 1);
  contenders.insert(contenders.begin(), {folder + "bare_window.exe", "", {}});
  return MeasureStart(contenders, rounds);
}
