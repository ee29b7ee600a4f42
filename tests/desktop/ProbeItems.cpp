// The items of list and tree views: their structures must lie in the memory of the process that owns the
// control.
#include <array>
#include <cstddef>
#include <cstring>

#include "Probe.h"

namespace sonaro::desktop {

namespace {

constexpr size_t kTextUnits = 1024;

// A piece of memory in the process that owns a window: a structure followed by room for a text.
class RemoteMemory {
 public:
  explicit RemoteMemory(HWND window) {
    DWORD processId = 0;
    GetWindowThreadProcessId(window, &processId);
    process_ = OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, processId);
    address_ = static_cast<std::byte*>(VirtualAllocEx(
        process_, nullptr, kStructSize + kTextUnits * sizeof(wchar_t), MEM_COMMIT, PAGE_READWRITE));
  }
  ~RemoteMemory() {
    if (address_ != nullptr) VirtualFreeEx(process_, address_, 0, MEM_RELEASE);
    if (process_ != nullptr) CloseHandle(process_);
  }
  RemoteMemory(const RemoteMemory&) = delete;
  RemoteMemory& operator=(const RemoteMemory&) = delete;

  template <typename T>
  LPARAM Put(const T& value) {
    static_assert(sizeof(T) <= kStructSize);
    WriteProcessMemory(process_, address_, &value, sizeof(T), nullptr);
    return reinterpret_cast<LPARAM>(address_);
  }
  template <typename T>
  T Get() const {
    T value{};
    ReadProcessMemory(process_, address_, &value, sizeof(T), nullptr);
    return value;
  }
  wchar_t* TextPlace() const { return reinterpret_cast<wchar_t*>(address_ + kStructSize); }
  // The text at `place`: a control may answer with a pointer of its own instead of filling TextPlace.
  std::string Text(const wchar_t* place) const {
    std::array<wchar_t, kTextUnits> units{};
    if (place == nullptr || place == LPSTR_TEXTCALLBACKW) return "";
    ReadProcessMemory(process_, place, units.data(), sizeof(units) - sizeof(wchar_t), nullptr);
    std::array<char, kTextUnits * 4> bytes{};
    WideCharToMultiByte(CP_UTF8, 0, units.data(), -1, bytes.data(), static_cast<int>(bytes.size()), nullptr,
                        nullptr);
    return bytes.data();
  }

 private:
  static constexpr size_t kStructSize = 256;
  HANDLE process_ = nullptr;
  std::byte* address_ = nullptr;
};

std::string CellText(HWND list, RemoteMemory& memory, int row, int column) {
  LVITEMW item{};
  item.mask = LVIF_TEXT;
  item.iItem = row;
  item.iSubItem = column;
  item.pszText = memory.TextPlace();
  item.cchTextMax = static_cast<int>(kTextUnits);
  const LPARAM place = memory.Put(item);
  SendMessageA(list, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), place);
  return memory.Text(memory.Get<LVITEMW>().pszText);
}

void SetRowState(HWND list, RemoteMemory& memory, int row, UINT state) {
  LVITEMW item{};
  item.state = state;
  item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
  SendMessageA(list, LVM_SETITEMSTATE, static_cast<WPARAM>(row), memory.Put(item));
}

POINT MiddleOf(HWND control, const RECT& place) {
  POINT point{place.left + 12, (place.top + place.bottom) / 2};
  ClientToScreen(control, &point);
  return point;
}

}  // namespace

int RowCount(HWND list) { return static_cast<int>(SendMessageA(list, LVM_GETITEMCOUNT, 0, 0)); }

std::string CellText(HWND list, int row, int column) {
  RemoteMemory memory(list);
  return CellText(list, memory, row, column);
}

std::vector<std::string> ColumnTexts(HWND list, int column) {
  RemoteMemory memory(list);
  std::vector<std::string> texts;
  const int rows = RowCount(list);
  for (int row = 0; row < rows; ++row) texts.push_back(CellText(list, memory, row, column));
  return texts;
}

std::vector<int> SelectedRows(HWND list) {
  std::vector<int> rows;
  int row = -1;
  while ((row = static_cast<int>(
              SendMessageA(list, LVM_GETNEXTITEM, static_cast<WPARAM>(row), LVNI_SELECTED))) >= 0) {
    rows.push_back(row);
  }
  return rows;
}

void SelectRow(HWND list, int row) {
  RemoteMemory memory(list);
  SetRowState(list, memory, -1, 0);
  SetRowState(list, memory, row, LVIS_SELECTED | LVIS_FOCUSED);
  SendMessageA(list, LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
}

std::vector<HTREEITEM> TreeChildren(HWND tree, HTREEITEM parent) {
  std::vector<HTREEITEM> items;
  const auto next = [tree](WPARAM relation, HTREEITEM item) {
    return reinterpret_cast<HTREEITEM>(
        SendMessageA(tree, TVM_GETNEXTITEM, relation, reinterpret_cast<LPARAM>(item)));
  };
  HTREEITEM item = parent == nullptr ? next(TVGN_ROOT, nullptr) : next(TVGN_CHILD, parent);
  for (; item != nullptr; item = next(TVGN_NEXT, item)) items.push_back(item);
  return items;
}

std::string TreeText(HWND tree, HTREEITEM treeItem) {
  RemoteMemory memory(tree);
  TVITEMW item{};
  item.mask = TVIF_TEXT | TVIF_HANDLE;
  item.hItem = treeItem;
  item.pszText = memory.TextPlace();
  item.cchTextMax = static_cast<int>(kTextUnits);
  if (SendMessageA(tree, TVM_GETITEMW, 0, memory.Put(item)) == 0) return "";
  return memory.Text(memory.Get<TVITEMW>().pszText);
}

HTREEITEM FindTreeItem(HWND tree, const std::vector<std::string>& texts) {
  HTREEITEM found = nullptr;
  for (const std::string& text : texts) {
    if (found != nullptr) SendMessageA(tree, TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(found));
    HTREEITEM step = nullptr;
    for (HTREEITEM item : TreeChildren(tree, found)) {
      if (TreeText(tree, item) == text) {
        step = item;
        break;
      }
    }
    if (step == nullptr) return nullptr;
    found = step;
  }
  return found;
}

void ClickTreeItem(HWND tree, HTREEITEM item) {
  RemoteMemory memory(tree);
  SendMessageA(tree, TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(item));
  // The rectangle's first bytes carry the item's handle on the way in.
  RECT place{};
  std::memcpy(&place, &item, sizeof(item));
  if (SendMessageA(tree, TVM_GETITEMRECT, TRUE, memory.Put(place)) == 0) return;
  const POINT point = MiddleOf(tree, memory.Get<RECT>());
  ClickAt(point.x, point.y);
}

bool ClickCalendarDay(HWND calendar, int day) {
  constexpr int kStep = 6;  // smaller than a day's cell
  RECT face{};
  GetClientRect(calendar, &face);
  RemoteMemory memory(calendar);
  for (POINT at{0, 0}; at.y < face.bottom; at.y += kStep) {
    for (at.x = 0; at.x < face.right; at.x += kStep) {
      MCHITTESTINFO hit{};
      hit.cbSize = sizeof(hit);
      hit.pt = at;
      SendMessageA(calendar, MCM_HITTEST, 0, memory.Put(hit));
      hit = memory.Get<MCHITTESTINFO>();
      if (hit.uHit != MCHT_CALENDARDATE || hit.st.wDay != day) continue;
      ClientToScreen(calendar, &at);
      ClickAt(at.x, at.y);
      return true;
    }
  }
  return false;
}

}  // namespace sonaro::desktop
