// list_speed PROGRAM [no-typing]: how long acts on the station list take in the main window of a running
// Sonaro, from the key or click to the painted window: what a search finds, a sort by a text and by a figure,
// a branch of the tree, typing in the search form, and the next page of a long list. Each act alternates with
// the same act on a list that is empty, so that what the window costs by itself stands beside it. Prints the
// minimum, the median and the maximum of the rounds in milliseconds.
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

constexpr int kRounds = 15;

class Milliseconds {
 public:
  template <typename Work>
  void Measure(Work work) {
    const auto begin = std::chrono::steady_clock::now();
    work();
    all_.push_back(
        std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count());
  }
  void Print(const char* what, int rows) {
    std::sort(all_.begin(), all_.end());
    std::printf("  %-26s %7d rows %8.2f %8.2f %8.2f\n", what, rows, all_.front(), all_[all_.size() / 2],
                all_.back());
  }

 private:
  std::vector<double> all_;
};

class Window {
 public:
  explicit Window(HWND main) : main_(main), list_(Control(main, lstFavs)) {}

  void Search(const std::string& words) {
    SetText(Control(main_, txtQuickSearch), words);
    Press(butSearchList);
  }
  void Press(int button) {
    SendMessageW(Control(main_, button), BM_CLICK, 0, 0);
    PaintNow();
  }
  void Select(HTREEITEM item) {
    SendMessageW(Control(main_, treeBrowse), TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(item));
    PaintNow();
  }
  // The window's thread paints whatever is out of date before the call returns.
  void PaintNow() { RedrawWindow(main_, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN); }
  void PageDown() {
    SendMessageW(list_, WM_VSCROLL, SB_PAGEDOWN, 0);
    PaintNow();
  }
  // One key more, until the caption says that the list shows it.
  void Type(char key, const std::string& typed) {
    PostMessageW(GetWindow(Control(main_, txtQuickSearch), GW_CHILD), WM_CHAR, static_cast<WPARAM>(key), 0);
    WaitUntil([&] { return TextOf(Control(main_, lblListing)).ends_with(typed); });
    PaintNow();
  }
  int Rows() const { return RowCount(list_); }
  HWND Main() const { return main_; }

 private:
  HWND main_;
  HWND list_;
};

// Searching "a" finds nearly all; the other word is nowhere.
void MeasureFill(Window& window) {
  Milliseconds fill, nothing, page;
  int rows = 0;
  for (int round = 0; round < kRounds; ++round) {
    Command(window.Main(), mnuViewSearch);
    nothing.Measure([&] { window.Search("zqzqzq"); });
    Command(window.Main(), mnuViewSearch);
    fill.Measure([&] { window.Search("a"); });
    rows = window.Rows();
    page.Measure([&] { window.PageDown(); });
  }
  fill.Print("fill", rows);
  nothing.Print("fill of nothing", 0);
  page.Print("next page", rows);
}

// The first sort by a column looks at all stations; it stands by itself.
void MeasureSort(Window& window) {
  Milliseconds first, byName, byPlace, byFigure, byNameOfNone;
  const auto byReliability = [&] {
    SendMessageW(window.Main(), WM_COMMAND, mnuSortByReliable, 0);
    window.PaintNow();
  };
  Command(window.Main(), mnuViewSearch);
  window.Search("a");
  const int rows = window.Rows();
  first.Measure([&] { window.Press(butSplit1); });
  for (int round = 0; round < kRounds; ++round) {
    byPlace.Measure([&] { window.Press(butSplit2); });
    byName.Measure([&] { window.Press(butSplit1); });
    byFigure.Measure(byReliability);
  }
  Command(window.Main(), mnuOwnOrder);
  window.Search("zqzqzq");
  for (int round = 0; round < kRounds; ++round) {
    byNameOfNone.Measure([&] { window.Press(butSplit1); });
    window.Press(butSplit2);
  }
  Command(window.Main(), mnuOwnOrder);
  first.Print("first sort by name", rows);
  byName.Print("sort by name", rows);
  byPlace.Print("sort by location", rows);
  byFigure.Print("sort by reliability", rows);
  byNameOfNone.Print("sort of nothing", 0);
}

void MeasureBranch(Window& window) {
  Command(window.Main(), mnuViewByLocation);
  HWND tree = Control(window.Main(), treeBrowse);
  const HTREEITEM continent = FindTreeItem(tree, {"Europe"});
  const std::string all = "All of Europe";  // a blank in front of it puts it first
  HTREEITEM branch = nullptr;
  HTREEITEM other = nullptr;
  for (const HTREEITEM entry : TreeChildren(tree, continent)) {
    (TreeText(tree, entry).ends_with(all) ? branch : other) = entry;
  }
  Milliseconds full, few, empty;
  int rows = 0;
  int fewRows = 0;
  for (int round = 0; round < kRounds; ++round) {
    few.Measure([&] { window.Select(other); });
    fewRows = window.Rows();
    full.Measure([&] { window.Select(branch); });
    rows = window.Rows();
    empty.Measure([&] { window.Select(continent); });
  }
  full.Print("branch of the tree", rows);
  few.Print("branch of few", fewRows);
  empty.Print("branch with nothing", 0);
}

void MeasureTyping(Window& window) {
  Command(window.Main(), mnuViewSearch);
  const std::string word = "radio";
  std::vector<Milliseconds> keys(word.size());
  Milliseconds nothing;
  for (int round = 0; round < kRounds; ++round) {
    SetText(Control(window.Main(), txtQuickSearch), "");
    for (std::size_t i = 0; i < word.size(); ++i)
      keys[i].Measure([&] { window.Type(word[i], word.substr(0, i + 1)); });
    nothing.Measure([&] { window.Type('\x01', word); });
  }
  for (std::size_t i = 0; i < word.size(); ++i)
    keys[i].Print(("typed \"" + word.substr(0, i + 1) + "\"").c_str(), window.Rows());
  nothing.Print("typed nothing", window.Rows());
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::fputs("usage: list_speed PROGRAM [no-typing]\n", stderr);
    return 2;
  }
  const SonaroProcess program(argv[1], "DoWhat=BringSearch");
  HWND main = program.WaitForShownWindow("SonaroFrm", "", std::chrono::seconds(60));
  if (main == nullptr) {
    std::fputs("list_speed: no main window within a minute\n", stderr);
    return 1;
  }
  Window window(main);
  std::puts("milliseconds from key to paint: least, median, most");
  MeasureFill(window);
  MeasureSort(window);
  MeasureBranch(window);
  if (argc < 3) MeasureTyping(window);  // not every earlier program lists what is typed
  return 0;
}
