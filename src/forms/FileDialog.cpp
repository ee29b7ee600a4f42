#include "forms/FileDialog.h"

#include <commdlg.h>
#include <shellapi.h>

#include <algorithm>
#include <array>

#include "forms/WideText.h"
#include "platform/SystemFunction.h"

namespace sonaro {

namespace {

// The dialog fails when the buffer is too small; paths may be longer than MAX_PATH.
using PathBuffer = std::array<wchar_t, 2048>;

// The dialog wants zero-separated pairs with a further zero at the end.
std::wstring FilterPairs(std::string_view filter) {
  std::wstring pairs = Widen(filter) + L"||";
  std::replace(pairs.begin(), pairs.end(), L'|', L'\0');
  return pairs;
}

// The library brings those of printing along, so it is loaded when somebody asks for a file.
bool RunDialog(const char* function, OPENFILENAMEW& dialog) {
  const auto run = reinterpret_cast<decltype(&GetOpenFileNameW)>(SystemFunction(L"comdlg32.dll", function));
  return run && run(&dialog);
}

// OFN_NOCHANGEDIR: the dialog otherwise leaves the process in the chosen folder, which would hold it fast.
OPENFILENAMEW Dialog(HWND owner, const std::wstring& filter, PathBuffer& path) {
  OPENFILENAMEW dialog{};
  dialog.lStructSize = sizeof dialog;
  dialog.hwndOwner = owner;
  dialog.lpstrFilter = filter.c_str();
  dialog.lpstrFile = path.data();
  dialog.nMaxFile = static_cast<DWORD>(path.size());
  dialog.Flags = OFN_HIDEREADONLY | OFN_NOCHANGEDIR | OFN_EXPLORER;
  return dialog;
}

}  // namespace

std::string AskOpenPath(HWND owner, std::string_view filter) {
  const std::wstring pairs = FilterPairs(filter);
  PathBuffer path{};
  OPENFILENAMEW dialog = Dialog(owner, pairs, path);
  dialog.Flags |= OFN_FILEMUSTEXIST;
  return RunDialog("GetOpenFileNameW", dialog) ? Narrow(path.data()) : "";
}

// The dialog's own default ending goes without the dot.
std::string AskSavePath(HWND owner, std::string_view filter, std::string_view suggested) {
  const std::wstring pairs = FilterPairs(filter);
  PathBuffer path{};
  const std::wstring name = Widen(suggested);
  name.copy(path.data(), path.size() - 1);
  const std::size_t dot = name.rfind(L'.');
  const std::wstring ending = dot == std::wstring::npos ? L"" : name.substr(dot + 1);
  OPENFILENAMEW dialog = Dialog(owner, pairs, path);
  dialog.lpstrDefExt = ending.c_str();
  dialog.Flags |= OFN_OVERWRITEPROMPT | OFN_PATHMUSTEXIST;
  return RunDialog("GetSaveFileNameW", dialog) ? Narrow(path.data()) : "";
}

std::vector<std::string> TakeDroppedPaths(WPARAM drop) {
  const auto files = reinterpret_cast<HDROP>(drop);
  constexpr UINT kCount = 0xFFFFFFFF;
  std::vector<std::string> paths;
  const UINT count = DragQueryFileW(files, kCount, nullptr, 0);
  for (UINT file = 0; file < count; ++file) {
    PathBuffer path{};
    DragQueryFileW(files, file, path.data(), static_cast<UINT>(path.size()));
    paths.push_back(Narrow(path.data()));
  }
  DragFinish(files);
  return paths;
}

}  // namespace sonaro
