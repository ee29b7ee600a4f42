#include "Probe.h"

#include <array>

namespace sonaro::desktop {

namespace {

constexpr UINT kAnswerLimitMs = 10000;
constexpr size_t kComboUnits = 512;

// A message to another process that may be busy or gone: 0 when no answer came.
LRESULT Send(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
  DWORD_PTR result = 0;
  SendMessageTimeoutA(window, message, wParam, lParam, SMTO_ABORTIFHUNG, kAnswerLimitMs, &result);
  return static_cast<LRESULT>(result);
}

// A message whose work may open a modal window: the second one is answered when the work is done, or by the
// loop of that window.
void Tell(HWND window, UINT message, WPARAM wParam = 0) {
  SendNotifyMessageA(window, message, wParam, 0);
  Send(window, WM_NULL);
}

struct TopWindowSearch {
  DWORD processId;
  const std::string& className;
  const std::string& caption;
  HWND found = nullptr;
};

BOOL CALLBACK CheckTopWindow(HWND window, LPARAM parameter) {
  auto& search = *reinterpret_cast<TopWindowSearch*>(parameter);
  DWORD processId = 0;
  GetWindowThreadProcessId(window, &processId);
  if (processId != search.processId) return TRUE;
  if (!search.className.empty() && lstrcmpiA(ClassOf(window).c_str(), search.className.c_str()) != 0)
    return TRUE;
  if (!search.caption.empty() && TextOf(window) != search.caption) return TRUE;
  search.found = window;
  return FALSE;
}

void SendInputs(std::vector<INPUT> inputs) {
  SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

INPUT KeyInput(WORD virtualKey, DWORD flags) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = virtualKey;
  input.ki.dwFlags = flags;
  return input;
}

// A button's change at this place of the screen, in one with the movement: where the pointer was put by
// itself, a movement that the display reports late can take it away again before the button goes down.
INPUT MouseInput(POINT at, DWORD button) {
  constexpr int kWhole = 65536;  // of the screen's width and height
  const auto share = [](int pixel, int pixels) { return (pixel * kWhole + pixels - 1) / pixels; };
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dx = share(at.x, GetSystemMetrics(SM_CXSCREEN));
  input.mi.dy = share(at.y, GetSystemMetrics(SM_CYSCREEN));
  input.mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE | button;
  return input;
}

void BringToFront(HWND window) {
  HWND top = GetAncestor(window, GA_ROOT);
  if (GetForegroundWindow() == top) return;
  SetForegroundWindow(top);
  WaitUntil([top] { return GetForegroundWindow() == top; }, std::chrono::seconds(2));
}

WORD KeyOf(Modifier modifier) {
  switch (modifier) {
    case Modifier::Control:
      return VK_CONTROL;
    case Modifier::Shift:
      return VK_SHIFT;
    case Modifier::Alt:
      return VK_MENU;
    case Modifier::None:
      break;
  }
  return 0;
}

}  // namespace

bool HasTakenMouse(HWND window) {
  GUITHREADINFO info{};
  info.cbSize = sizeof(info);
  return GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &info) &&
         (info.hwndCapture != nullptr || info.hwndMoveSize != nullptr);
}

HWND FindTopWindow(DWORD processId, const std::string& className, const std::string& caption) {
  TopWindowSearch search{processId, className, caption};
  EnumWindows(&CheckTopWindow, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

std::vector<HWND> ShownWindows(DWORD processId, const std::string& className) {
  std::vector<HWND> shown;
  for (HWND window = nullptr;
       (window = FindWindowExA(nullptr, window, className.c_str(), nullptr)) != nullptr;) {
    DWORD owner = 0;
    GetWindowThreadProcessId(window, &owner);
    if (owner == processId && IsShown(window)) shown.push_back(window);
  }
  return shown;
}

std::vector<HWND> Descendants(HWND window) {
  std::vector<HWND> windows;
  EnumChildWindows(
      window,
      [](HWND child, LPARAM parameter) -> BOOL {
        reinterpret_cast<std::vector<HWND>*>(parameter)->push_back(child);
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&windows));
  return windows;
}

HWND Control(HWND window, int id) {
  for (HWND child : Descendants(window)) {
    if (GetDlgCtrlID(child) == id) return child;
  }
  return nullptr;
}

std::string ClassOf(HWND window) {
  std::array<char, 256> name{};
  const int length = GetClassNameA(window, name.data(), static_cast<int>(name.size()));
  return {name.data(), static_cast<size_t>(length)};
}

std::string TextOf(HWND window) {
  const LRESULT length = Send(window, WM_GETTEXTLENGTH, 0, 0);
  if (length <= 0) return "";
  std::string text(static_cast<size_t>(length) + 1, '\0');
  const LRESULT copied = Send(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
  text.resize(static_cast<size_t>(copied));
  return text;
}

void SetText(HWND window, const std::string& text) {
  Send(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

bool IsShown(HWND window) { return IsWindow(window) && IsWindowVisible(window); }

RECT BoundsOf(HWND window) {
  RECT bounds{};
  GetWindowRect(window, &bounds);
  return bounds;
}

void Click(HWND button) { Tell(button, BM_CLICK); }

void Command(HWND window, int id) { Tell(window, WM_COMMAND, static_cast<WPARAM>(id)); }

void CloseWindowOf(HWND window) { Tell(window, WM_CLOSE); }

void RunTimer(HWND window, int id) { Send(window, WM_TIMER, static_cast<WPARAM>(id)); }

bool IsChecked(HWND button) { return Send(button, BM_GETCHECK) == BST_CHECKED; }

std::vector<std::string> ComboTexts(HWND combo) {
  std::vector<std::string> texts;
  const LRESULT count = Send(combo, CB_GETCOUNT);
  for (LRESULT i = 0; i < count; ++i) {
    std::array<wchar_t, kComboUnits> units{};
    DWORD_PTR ignored = 0;
    SendMessageTimeoutW(combo, CB_GETLBTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(units.data()),
                        SMTO_ABORTIFHUNG, kAnswerLimitMs, &ignored);
    std::array<char, kComboUnits * 4> bytes{};
    WideCharToMultiByte(CP_UTF8, 0, units.data(), -1, bytes.data(), static_cast<int>(bytes.size()), nullptr,
                        nullptr);
    texts.emplace_back(bytes.data());
  }
  return texts;
}

std::string ChosenText(HWND combo) {
  const LRESULT chosen = Send(combo, CB_GETCURSEL);
  const std::vector<std::string> texts = ComboTexts(combo);
  return chosen >= 0 && static_cast<size_t>(chosen) < texts.size() ? texts[static_cast<size_t>(chosen)] : "";
}

bool ChooseItem(HWND combo, const std::string& text) {
  const LRESULT found =
      Send(combo, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(text.c_str()));
  if (found < 0) return false;
  Send(combo, CB_SETCURSEL, static_cast<WPARAM>(found));
  Send(GetParent(combo), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(combo), CBN_SELCHANGE),
       reinterpret_cast<LPARAM>(combo));
  return true;
}

void PressKey(HWND window, WORD virtualKey, Modifier modifier) {
  BringToFront(window);
  const WORD held = KeyOf(modifier);
  std::vector<INPUT> inputs;
  if (held != 0) inputs.push_back(KeyInput(held, 0));
  inputs.push_back(KeyInput(virtualKey, 0));
  inputs.push_back(KeyInput(virtualKey, KEYEVENTF_KEYUP));
  if (held != 0) inputs.push_back(KeyInput(held, KEYEVENTF_KEYUP));
  SendInputs(inputs);
}

void TypeText(HWND window, const std::string& text) {
  BringToFront(window);
  const int length = MultiByteToWideChar(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), nullptr, 0);
  std::wstring units(static_cast<size_t>(length), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), units.data(), length);
  for (const wchar_t unit : units) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wScan = static_cast<WORD>(unit);
    input.ki.dwFlags = KEYEVENTF_UNICODE;
    INPUT release = input;
    release.ki.dwFlags |= KEYEVENTF_KEYUP;
    SendInputs({input, release});
  }
}

void ClickAt(int screenX, int screenY, bool rightButton) {
  const POINT at = {screenX, screenY};
  SetCursorPos(at.x, at.y);
  SendInputs({MouseInput(at, rightButton ? MOUSEEVENTF_RIGHTDOWN : MOUSEEVENTF_LEFTDOWN),
              MouseInput(at, rightButton ? MOUSEEVENTF_RIGHTUP : MOUSEEVENTF_LEFTUP)});
}

void DragFromTo(POINT from, POINT to, const std::function<void()>& held) {
  constexpr int kSteps = 8;
  constexpr int kFirstStep = 8;
  SetCursorPos(from.x, from.y);
  SendInputs({MouseInput(from, MOUSEEVENTF_LEFTDOWN)});
  // A window takes the mouse with the first movement; before it has, a place further on may be another
  // window's.
  SetCursorPos(from.x + (to.x > from.x ? kFirstStep : -kFirstStep), from.y);
  WaitUntil([window = WindowFromPoint(from)] { return HasTakenMouse(window); }, std::chrono::seconds(2));
  for (int i = 1; i <= kSteps; ++i) {
    Sleep(20);  // the move loop takes the pointer's places one by one
    SetCursorPos(from.x + (to.x - from.x) * i / kSteps, from.y + (to.y - from.y) * i / kSteps);
  }
  Sleep(20);
  if (held) held();
  SendInputs({MouseInput(to, MOUSEEVENTF_LEFTUP)});
}

HWND FocusOf(HWND window) {
  GUITHREADINFO info{};
  info.cbSize = sizeof(info);
  if (!GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &info)) return nullptr;
  return info.hwndFocus;
}

}  // namespace sonaro::desktop
