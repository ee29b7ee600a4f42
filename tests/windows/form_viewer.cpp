// Shows the form of components until it is closed, for a look by eye:
//   form_viewer [Graphite|Porcelain|Contrast] [dpi]
#include <windows.h>

#include <commctrl.h>

#include <cstdlib>
#include <string>

#include "forms/MessageLoop.h"
#include "windows/DemoForm.h"
#include "windows/FormContextForTests.h"
#include "windows/ViewerLook.h"

int main(int argc, char** argv) {
  using namespace sonaro;
  INITCOMMONCONTROLSEX classes = {sizeof(classes), ICC_WIN95_CLASSES | ICC_DATE_CLASSES};
  InitCommonControlsEx(&classes);
  FormContextForTests context;
  DemoForm form(context.forms);
  if (!form.Create()) return 1;
  DressForm(form, context, argc > 1 ? argv[1] : "");
  if (argc > 2) {
    const int dpi = std::atoi(argv[2]);
    RECT place = {0, 0, MulDiv(980, dpi, 96), MulDiv(760, dpi, 96)};
    SendMessageW(form.Window(), WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&place));
  }
  form.MoveToPixels(0, 0);
  form.Show();
  SendMessageW(form.Window(), WM_UPDATEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS), 0);
  for (const int first : {DemoForm::kPush, DemoForm::kPrimary, DemoForm::kRanking, DemoForm::kGroups,
                          DemoForm::kStrip, DemoForm::kPlay, DemoForm::kPlayMore}) {
    SendMessageW(form.Control(first + 2), BM_SETSTATE, TRUE, 0);
  }
  return form.IsOpen() ? RunMessageLoop() : 0;
}
