// The entries are drawn by the program, in the colours of the faceplate, but are the system's all the same:
// it moves through them, and their texts stand in them for whoever reads menus from outside.
#include "forms/PopupMenu.h"

#include <commctrl.h>
#include <oleacc.h>

#include <algorithm>
#include <deque>

#include "forms/Guard.h"
#include "forms/WideText.h"
#include "forms/paint/Painter.h"

namespace sonaro {
namespace {

// 96-dpi pixels.
constexpr int kRowHeight = 24;
constexpr int kSeparatorHeight = 7;
constexpr int kGutter = 26;  // check mark, and the bar of the chosen entry
constexpr int kShortcutGap = 24;
constexpr int kRightInset = 22;  // the arrow of a submenu

constexpr UINT_PTR kMenuSubclassId = 2;  // a form may itself be subclassed under the kit's number

// What the system hands back for an entry that is to be drawn. Screen readers look for the first member
// there.
struct DrawnEntry {
  MSAAMENUINFO accessible;
  std::wstring text;      // with its access key
  std::wstring shortcut;  // as shown at the right edge
  std::wstring spoken;
  bool separator = false;
  bool opens = false;  // a further menu
};

// One menu on show: hangs on its owner's window while it is open.
class OpenMenu {
 public:
  OpenMenu(HWND owner, std::span<const MenuEntry> entries, const FaceplateColors& colors, int dpi)
      : owner_(owner),
        // Its own: the form renews its painter when the colours of the system change, menu or not.
        painter_(colors, dpi),
        ground_(CreateSolidBrush(ToColorRef(colors.glass))),
        menu_(Build(entries)) {
    SetWindowSubclass(owner_, &OpenMenu::Procedure, kMenuSubclassId, reinterpret_cast<DWORD_PTR>(this));
  }
  ~OpenMenu() {
    RemoveWindowSubclass(owner_, &OpenMenu::Procedure, kMenuSubclassId);
    DestroyMenu(menu_);
    DeleteObject(ground_);
  }
  OpenMenu(const OpenMenu&) = delete;
  OpenMenu& operator=(const OpenMenu&) = delete;

  int Track(POINT at) {
    return TrackPopupMenuEx(menu_, TPM_RETURNCMD | TPM_LEFTALIGN | TPM_TOPALIGN | TPM_RIGHTBUTTON, at.x, at.y,
                            owner_, nullptr);
  }

 private:
  HMENU Build(std::span<const MenuEntry> entries);
  void Add(HMENU menu, UINT place, const MenuEntry& entry);
  void Measure(MEASUREITEMSTRUCT& measure) const;
  void Draw(const DRAWITEMSTRUCT& draw) const;
  void DrawCheck(HDC dc, const RECT& row, Color color) const;
  void DrawArrow(HDC dc, const RECT& row, Color color) const;
  LRESULT FindAccessKey(HMENU menu, wchar_t typed) const;
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                    DWORD_PTR self) noexcept;
  // False when the message is not about the menu.
  bool Handle(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) const;

  const HWND owner_;
  const Painter painter_;
  const HBRUSH ground_;
  std::deque<DrawnEntry> drawn_;  // entries are pointed at
  const HMENU menu_;
};

HMENU OpenMenu::Build(std::span<const MenuEntry> entries) {
  const HMENU menu = CreatePopupMenu();
  MENUINFO info{};
  info.cbSize = sizeof info;
  info.fMask = MIM_BACKGROUND;
  info.hbrBack = ground_;
  SetMenuInfo(menu, &info);
  UINT place = 0;
  for (const MenuEntry& entry : entries) Add(menu, place++, entry);
  return menu;
}

// The text is given to the system too, although it is drawn here: whoever reads menus from outside asks for
// it. It is copied; `drawn` is not, and must stay where it is, hence the deque.
void OpenMenu::Add(HMENU menu, UINT place, const MenuEntry& entry) {
  DrawnEntry& drawn = drawn_.emplace_back();
  std::wstring whole = Widen(entry.text);
  const std::size_t tab = whole.find(L'\t');
  drawn.text = whole.substr(0, tab);
  if (tab != std::wstring::npos) drawn.shortcut = whole.substr(tab + 1);
  drawn.spoken = WithoutAccessKey(drawn.text);
  drawn.separator = entry.command == 0 && entry.children.empty();
  drawn.opens = !entry.children.empty();
  drawn.accessible = {MSAA_MENU_SIG, static_cast<DWORD>(drawn.spoken.size()), drawn.spoken.data()};

  MENUITEMINFOW item{};
  item.cbSize = sizeof item;
  item.fMask = MIIM_FTYPE | MIIM_STATE | MIIM_ID | MIIM_DATA | (drawn.separator ? 0u : UINT{MIIM_STRING});
  item.fType = MFT_OWNERDRAW | (drawn.separator ? MFT_SEPARATOR : 0u);
  item.fState = (entry.enabled ? MFS_ENABLED : MFS_DISABLED) | (entry.checked ? MFS_CHECKED : MFS_UNCHECKED);
  item.wID = static_cast<UINT>(entry.command);
  item.dwItemData = reinterpret_cast<ULONG_PTR>(&drawn);
  item.dwTypeData = whole.data();
  if (drawn.opens) {
    item.fMask |= MIIM_SUBMENU;
    item.hSubMenu = Build(entry.children);
  }
  InsertMenuItemW(menu, place, TRUE, &item);
}

void OpenMenu::Measure(MEASUREITEMSTRUCT& measure) const {
  const auto& entry = *reinterpret_cast<const DrawnEntry*>(measure.itemData);
  measure.itemHeight = static_cast<UINT>(painter_.Px(entry.separator ? kSeparatorHeight : kRowHeight));
  LONG width = painter_.Px(kGutter + kRightInset) + painter_.Measure(entry.text, TextStyle::Body, 0).cx;
  if (!entry.shortcut.empty())
    width += painter_.Px(kShortcutGap) + painter_.Measure(entry.shortcut, TextStyle::Body).cx;
  // The system adds the place of a check mark of its own, how much it does not say: a metric taken off here
  // cut the longest entry on a screen whose dpi are not the form's.
  measure.itemWidth = static_cast<UINT>(width);
}

void OpenMenu::Draw(const DRAWITEMSTRUCT& draw) const {
  const auto& entry = *reinterpret_cast<const DrawnEntry*>(draw.itemData);
  const FaceplateColors& colors = painter_.Colors();
  const RECT row = draw.rcItem;
  {
    const BufferedPaint buffer(draw.hDC, row);
    const HDC dc = buffer.Dc();
    const bool enabled = (draw.itemState & (ODS_DISABLED | ODS_GRAYED)) == 0;
    const bool chosen = (draw.itemState & ODS_SELECTED) != 0 && !entry.separator;
    painter_.Fill(dc, row, chosen ? colors.rowSelected : colors.glass);
    if (chosen)
      painter_.Fill(dc, {row.left, row.top, row.left + painter_.Px(kNeedleBar), row.bottom}, colors.accent);
    const Color color = !enabled ? colors.textOff : chosen ? colors.rowSelectedText : colors.glassText;
    const RECT words = {row.left + painter_.Px(kGutter), row.top, row.right - painter_.Px(kRightInset),
                        row.bottom};
    if (entry.separator) {
      const int middle = (row.top + row.bottom) / 2;
      painter_.Fill(dc, {words.left, middle, row.right - painter_.Px(8), middle + painter_.Line()},
                    colors.hair);
    } else {
      const UINT accessKey = (draw.itemState & ODS_NOACCEL) != 0 ? DT_HIDEPREFIX : 0;
      painter_.Text(dc, words, std::wstring_view(entry.text), TextStyle::Body, color, accessKey);
      painter_.Text(dc, words, std::wstring_view(entry.shortcut), TextStyle::Body,
                    enabled && !chosen ? colors.glassMuted : color, DT_RIGHT | DT_NOPREFIX);
      if ((draw.itemState & ODS_CHECKED) != 0) DrawCheck(dc, row, color);
      if (entry.opens) DrawArrow(dc, row, color);
    }
  }
  // The system draws the arrow of a submenu afterwards, in its own colour.
  ExcludeClipRect(draw.hDC, row.left, row.top, row.right, row.bottom);
}

// Lines of the painter's pixels rather than a font's glyph, which differs between systems.
void OpenMenu::DrawCheck(HDC dc, const RECT& row, Color color) const {
  const int left = row.left + painter_.Px(9), middle = (row.top + row.bottom) / 2;
  const POINT mark[] = {{left, middle},
                        {left + painter_.Px(3), middle + painter_.Px(3)},
                        {left + painter_.Px(9), middle - painter_.Px(4)}};
  const HPEN pen = CreatePen(PS_SOLID, painter_.Px(2), ToColorRef(color));
  const HGDIOBJ before = SelectObject(dc, pen);
  ::Polyline(dc, mark, 3);
  SelectObject(dc, before);
  DeleteObject(pen);
}

void OpenMenu::DrawArrow(HDC dc, const RECT& row, Color color) const {
  const int right = row.right - painter_.Px(8), middle = (row.top + row.bottom) / 2, size = painter_.Px(4);
  const POINT arrow[] = {{right - size, middle - size}, {right, middle}, {right - size, middle + size}};
  const HPEN pen = CreatePen(PS_SOLID, painter_.Line(), ToColorRef(color));
  const HBRUSH brush = CreateSolidBrush(ToColorRef(color));
  const HGDIOBJ penBefore = SelectObject(dc, pen), brushBefore = SelectObject(dc, brush);
  ::Polygon(dc, arrow, 3);
  SelectObject(dc, penBefore);
  SelectObject(dc, brushBefore);
  DeleteObject(pen);
  DeleteObject(brush);
}

// The system looks for access keys only in entries that it draws itself.
LRESULT OpenMenu::FindAccessKey(HMENU menu, wchar_t typed) const {
  int found = -1, matches = 0;
  for (int place = 0; place < GetMenuItemCount(menu); ++place) {
    MENUITEMINFOW item{};
    item.cbSize = sizeof item;
    item.fMask = MIIM_DATA;
    if (!GetMenuItemInfoW(menu, static_cast<UINT>(place), TRUE, &item)) continue;
    const std::wstring& text = reinterpret_cast<const DrawnEntry*>(item.dwItemData)->text;
    for (std::size_t at = text.find(L'&'); at != std::wstring::npos && at + 1 < text.size();
         at = text.find(L'&', at + 2)) {
      if (text[at + 1] == L'&') continue;  // a real one
      if (CompareStringW(LOCALE_USER_DEFAULT, NORM_IGNORECASE, &text[at + 1], 1, &typed, 1) == CSTR_EQUAL) {
        if (matches++ == 0) found = place;
      }
      break;
    }
  }
  if (matches == 0) return MAKELRESULT(0, MNC_IGNORE);
  return MAKELRESULT(found, matches == 1 ? MNC_EXECUTE : MNC_SELECT);
}

bool OpenMenu::Handle(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) const {
  if (message == WM_MEASUREITEM && reinterpret_cast<MEASUREITEMSTRUCT*>(lParam)->CtlType == ODT_MENU) {
    Measure(*reinterpret_cast<MEASUREITEMSTRUCT*>(lParam));
    result = TRUE;
  } else if (message == WM_DRAWITEM && reinterpret_cast<DRAWITEMSTRUCT*>(lParam)->CtlType == ODT_MENU) {
    Draw(*reinterpret_cast<DRAWITEMSTRUCT*>(lParam));
    result = TRUE;
  } else if (message == WM_MENUCHAR) {
    result = FindAccessKey(reinterpret_cast<HMENU>(lParam), static_cast<wchar_t>(LOWORD(wParam)));
  } else {
    return false;
  }
  return true;
}

LRESULT CALLBACK OpenMenu::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                     DWORD_PTR self) noexcept {
  return Guarded(0, [&] {
    LRESULT result = 0;
    const auto& menu = *reinterpret_cast<const OpenMenu*>(self);
    return menu.Handle(message, wParam, lParam, result) ? result
                                                        : DefSubclassProc(window, message, wParam, lParam);
  });
}

}  // namespace

int ShowPopupMenu(HWND owner, std::span<const MenuEntry> entries, POINT at, const FaceplateColors& colors,
                  int dpi) {
  if (entries.empty()) return 0;
  int command = 0;
  {
    OpenMenu menu(owner, entries, colors, dpi);
    // Without these two a menu of a window in the background does not close when the user clicks elsewhere.
    SetForegroundWindow(owner);
    command = menu.Track(at);
    PostMessageW(owner, WM_NULL, 0, 0);
  }
  if (command != 0) SendMessageW(owner, WM_COMMAND, static_cast<WPARAM>(command), 0);
  return command;
}

}  // namespace sonaro
