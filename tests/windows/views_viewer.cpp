// Shows the list, the tree and the other views until the window is closed, for a look by eye, or measures
// them:
//   views_viewer [Graphite|Porcelain|Contrast] [dpi] [rows]
//   views_viewer --bench
#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "forms/MessageLoop.h"
#include "windows/FormContextForTests.h"
#include "windows/ViewerLook.h"
#include "windows/ViewsForm.h"

namespace sonaro {
namespace {

constexpr const char* kOutline =
    "maf98="
    "00014000000040000000004120001200966000120098000026009800062600966006400058000640005680062800014006280000"
    "0006140000000014\r\n";

double Milliseconds() {
  LARGE_INTEGER now{};
  LARGE_INTEGER frequency{};
  QueryPerformanceCounter(&now);
  QueryPerformanceFrequency(&frequency);
  return 1000.0 * static_cast<double>(now.QuadPart) / static_cast<double>(frequency.QuadPart);
}

template <class Work>
void Measure(const char* what, Work work) {
  std::vector<double> times;
  for (int i = 0; i < 21; ++i) {
    const double start = Milliseconds();
    work(i);
    times.push_back(Milliseconds() - start);
  }
  std::sort(times.begin(), times.end());
  std::printf("%-36s best %7.2f ms   median %7.2f ms   worst %7.2f ms\n", what, times[0], times[10],
              times[20]);
}

void Bench(ViewsForm& form, MadeUpStations& stations) {
  ListView& list = form.List(ViewsForm::kList);
  const HWND window = list.Window();
  for (const int rows : {5000, 40000}) {
    stations.SetCount(rows);
    std::printf("%d rows\n", rows);
    Measure("  fill", [&](int) { list.RowsChanged(); });
    Measure("  fill and paint", [&](int) {
      list.RowsChanged();
      UpdateWindow(window);
    });
    Measure("  page down and paint", [&](int) {
      SendMessageW(window, WM_KEYDOWN, VK_NEXT, 0);
      UpdateWindow(window);
    });
    Measure("  select a far row and paint", [&](int i) {
      list.Select(i % 2 == 0 ? rows - 1 : 0);
      UpdateWindow(window);
    });
    Measure("  scroll by one row and paint", [&](int) {
      SendMessageW(window, WM_VSCROLL, SB_LINEDOWN, 0);
      UpdateWindow(window);
    });
  }
  Measure("tree of 20 nodes: fill and paint", [&](int) {
    form.FillTree();
    UpdateWindow(form.Control(ViewsForm::kTree));
  });
}

}  // namespace
}  // namespace sonaro

int main(int argc, char** argv) {
  using namespace sonaro;
  const std::string first = argc > 1 ? argv[1] : "";
  INITCOMMONCONTROLSEX classes = {sizeof(classes), ICC_WIN95_CLASSES | ICC_DATE_CLASSES};
  InitCommonControlsEx(&classes);
  FormContextForTests context;
  context.files.Put("/d/Depot/sshape.pts", kOutline);
  MadeUpStations stations(argc > 3 ? std::atoi(argv[3]) : 40000);
  ViewsForm form(context.forms, stations);
  if (!form.Create()) return 1;
  DressForm(form, context, first);
  if (argc > 2) {
    const int dpi = std::atoi(argv[2]);
    RECT place = {0, 0, MulDiv(980, dpi, 96), MulDiv(640, dpi, 96)};
    SendMessageW(form.Window(), WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&place));
  }
  form.MoveToPixels(0, 0);
  form.Show();
  form.List(ViewsForm::kList).Select(2);
  SendMessageW(form.Window(), WM_UPDATEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS), 0);
  if (first == "--bench") {
    UpdateWindow(form.Window());
    Bench(form, stations);
    return 0;
  }
  return form.IsOpen() ? RunMessageLoop() : 0;
}
