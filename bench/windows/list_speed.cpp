// list_speed PROGRAM [WORD...]: how long the main window of a running Sonaro takes to fill its list with what
// a search finds, to paint it for the first time, and to paint it again after each page that it scrolls.
// Prints a line for each word with the minimum, the median and the maximum of eleven rounds.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

#include "Probe.h"
#include "SonaroProcess.h"
#include "forms/ControlIds.h"

using namespace sonaro;
using namespace sonaro::desktop;

namespace {

constexpr int kRounds = 11;
constexpr int kPages = 20;

class Milliseconds {
 public:
  template <typename Work>
  void Measure(Work work) {
    const auto begin = std::chrono::steady_clock::now();
    work();
    all_.push_back(
        std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count());
  }
  void Print(const char* what) {
    std::sort(all_.begin(), all_.end());
    std::printf("  %-12s %8.2f %8.2f %8.2f\n", what, all_.front(), all_[all_.size() / 2], all_.back());
  }

 private:
  std::vector<double> all_;
};

// The window's thread paints before the call returns.
void PaintNow(HWND window) { RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW); }

void MeasureWord(HWND main, const std::string& word) {
  HWND list = Control(main, lstFavs);
  Milliseconds fill, paint, scroll;
  for (int round = 0; round < kRounds; ++round) {
    Command(main, mnuActionMostPoular);
    SetText(Control(main, txtQuickSearch), word);
    fill.Measure([&] { SendMessageW(Control(main, butSearchList), BM_CLICK, 0, 0); });
    paint.Measure([&] { PaintNow(list); });
    for (int page = 0; page < kPages; ++page) {
      scroll.Measure([&] {
        SendMessageW(list, WM_VSCROLL, SB_PAGEDOWN, 0);
        PaintNow(list);
      });
    }
  }
  std::printf("\"%s\": %d stations; milliseconds: least, median, most\n", word.c_str(), RowCount(list));
  fill.Print("fill");
  paint.Print("first paint");
  scroll.Print("next page");
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::fputs("usage: list_speed PROGRAM [WORD...]\n", stderr);
    return 2;
  }
  const SonaroProcess program(argv[1], "DoWhat=BringSearch");
  HWND main = program.WaitForShownWindow("SonaroFrm", "", std::chrono::seconds(60));
  if (main == nullptr) {
    std::fputs("list_speed: no main window within a minute\n", stderr);
    return 1;
  }
  std::vector<std::string> words(argv + 2, argv + argc);
  if (words.empty()) words = {"a", "radio", "jazz"};
  for (const std::string& word : words) MeasureWord(main, word);
  return 0;
}
