#include "windows/FormCheck.h"

#include <map>
#include <set>

#include "forms/FormWindow.h"
#include "forms/Screen.h"
#include "forms/WideText.h"
#include "forms/paint/Painter.h"

namespace sonaro {
namespace {

class Check {
 public:
  Check(Form& form, FormWindow& window) : form_(form), window_(window) {}

  std::vector<std::string> Run() {
    CheckControls();
    const int layouts = static_cast<int>(window_.Design().layouts.size());
    for (int layout = 0; layout <= layouts; ++layout) {
      form_.UseLayout(layout);
      CheckTabOrder();
      CheckAccessKeys();
      for (const int dpi : {96, 120, 144, 192}) {
        UseDpi(dpi);
        CheckPlaces();
        CheckTexts();
      }
      UseDpi(96);
      CheckLarger();
    }
    form_.UseLayout(0);
    return problems_;
  }

 private:
  void Add(const ControlInstance& item, const std::string& problem) {
    problems_.push_back(where_ + "control " + std::to_string(item.Id()) + " \"" +
                        (item.Window() ? Narrow(TextOfWindow(item.Window())) : std::string()) + "\" " +
                        problem);
  }

  // Past the work area of the test's screen as well: a form would otherwise fall back to a smaller dpi.
  void UseDpi(int dpi) {
    where_ = "layout " + std::to_string(form_.CurrentLayout()) + " at " + std::to_string(dpi) + ": ";
    window_.UseDpi(dpi, FormWindow::Fit::No);
  }

  // Made larger by its user, a form keeps its controls apart and within it, and gives each its room.
  void CheckLarger() {
    if ((GetWindowLongPtrW(window_.Window(), GWL_STYLE) & WS_THICKFRAME) == 0) return;
    RECT before{};
    GetWindowRect(window_.Window(), &before);
    const auto resize = [&](LONG width, LONG height) {
      SetWindowPos(window_.Window(), nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER);
    };
    where_ = "layout " + std::to_string(form_.CurrentLayout()) + " made larger: ";
    resize(before.right - before.left + 301, before.bottom - before.top + 203);
    CheckPlaces();
    CheckTexts();
    resize(before.right - before.left, before.bottom - before.top);
  }

  void CheckControls() {
    std::set<int> numbers;
    for (const ControlInstance& item : window_.Controls().All()) {
      if (item.Id() != 0 && !numbers.insert(item.Id()).second)
        Add(item, "has a number that is already taken");
      if (IsDecoration(item.KindOf())) continue;
      if (!item.Window()) {
        Add(item, "has no window");
        continue;
      }
      if (item.Id() != 0 && GetDlgItem(window_.Window(), item.Id()) != item.Window())
        Add(item, "is not found by number");
      if (IsEdit(item.KindOf()) && item.row->text.id != 0)
        Add(item, "holds its name, as if the user had typed it");
      if (!IsButton(item.KindOf()) && !IsCheck(item.KindOf())) continue;
      wchar_t name[32] = {};
      GetClassNameW(item.Window(), name, 32);
      if (std::wstring(name) != L"Button") Add(item, "is not a button");
      if (item.shown && GetWindowTextLengthW(item.Window()) == 0) Add(item, "has no text");
      const bool heading =
          item.KindOf() == ControlKind::HeaderButton && item.Has(kNoTabStop);  // of a list without sorting
      if (IsButton(item.KindOf()) && !heading && !window_.IsBound(item.Id(), FormEvent::Kind::Click))
        Add(item, "does nothing");
    }
  }

  void CheckTabOrder() {
    window_.Keys().UpdateTabStops();
    const HWND first = GetNextDlgTabItem(window_.Window(), nullptr, FALSE);
    HWND at = first;
    std::ptrdiff_t before = -1;
    for (int steps = 0; at && steps < 500; ++steps) {
      const ControlInstance* item = window_.Controls().Find(at);
      const std::ptrdiff_t row = item ? item - window_.Controls().All().data() : -1;
      if (item && row <= before) Add(*item, "is reached by Tab before a row above it");
      before = row;
      at = GetNextDlgTabItem(window_.Window(), at, FALSE);
      if (at == first) break;
    }
  }

  void CheckAccessKeys() {
    std::map<wchar_t, const ControlInstance*> taken;
    for (const ControlInstance& item : window_.Controls().All()) {
      const bool labels =
          item.KindOf() == ControlKind::Label || IsButton(item.KindOf()) || IsCheck(item.KindOf());
      if (!labels || !item.shown || item.Has(kNoPrefix)) continue;
      wchar_t text[256] = {};
      GetWindowTextW(item.Window(), text, 256);
      for (const wchar_t* c = text; *c; ++c) {
        if (*c != L'&') continue;
        ++c;
        if (*c == L'&' || !*c) break;
        const auto [same, added] = taken.try_emplace(static_cast<wchar_t>(towupper(*c)), &item);
        if (!added) Add(item, "shares its access key with control " + std::to_string(same->second->Id()));
        break;
      }
    }
  }

  void CheckPlaces() {
    RECT client{};
    GetClientRect(window_.Window(), &client);
    for (const ControlInstance& item : window_.Controls().All()) {
      if (!item.shown) continue;
      const RECT box = ToRect(item.place);
      if (box.left < 0 || box.top < 0 || box.right > client.right || box.bottom > client.bottom) {
        Add(item, "leaves the form");
      }
      if (IsDecoration(item.KindOf()) || IsText(item.KindOf())) continue;
      for (const ControlInstance& other : window_.Controls().All()) {
        if (&other == &item) break;
        if (!other.shown || IsDecoration(other.KindOf()) || IsText(other.KindOf())) continue;
        const RECT otherBox = ToRect(other.place);
        RECT common{};
        if (IntersectRect(&common, &box, &otherBox))
          Add(item, "overlaps control " + std::to_string(other.Id()));
      }
    }
  }

  void CheckTexts() {
    for (const ControlInstance& item : window_.Controls().All()) {
      if (!item.shown) continue;
      RECT box{};
      if (item.Window()) GetClientRect(item.Window(), &box);
      if (IsButton(item.KindOf()) || IsCheck(item.KindOf())) {
        const ButtonTextRoom room = MeasureButton(box, window_.Paint().PictureOf(item), window_.Theme());
        if (room.needed > room.available) Add(item, Lacks(room.needed, room.available));
      } else if (IsText(item.KindOf())) {
        CheckLabel(item, box);
      }
    }
  }

  void CheckLabel(const ControlInstance& item, const RECT& box) {
    wchar_t text[1024] = {};
    GetWindowTextW(item.Window(), text, 1024);
    const TextStyle style = TextStyleOf(*item.row);
    const int width = static_cast<int>(box.right);
    if (item.Has(kWrap)) {
      const int needed = window_.Theme().WrappedHeight(text, style, width);
      if (needed > box.bottom) Add(item, Lacks(needed, static_cast<int>(box.bottom)));
    } else {
      const UINT prefix = item.KindOf() == ControlKind::Label && !item.Has(kNoPrefix) ? 0 : DT_NOPREFIX;
      const int needed = static_cast<int>(window_.Theme().Measure(text, style, prefix).cx);
      if (needed > width) Add(item, Lacks(needed, width));
    }
  }

  static std::string Lacks(int needed, int available) {
    return "has room for " + std::to_string(available) + " of its " + std::to_string(needed) + " pixels";
  }

  Form& form_;
  FormWindow& window_;
  std::string where_;
  std::vector<std::string> problems_;
};

}  // namespace

std::vector<std::string> ProblemsOf(Form& form) {
  FormWindow* window = FormWindow::Of(form.Window());
  if (!window) return {"the form is not open"};
  return Check(form, *window).Run();
}

}  // namespace sonaro
