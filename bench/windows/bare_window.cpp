// The yardstick of start_speed: a window of the main window's size and nothing else, from the one library of
// the system that has windows.
#include <windows.h>

int WINAPI WinMain(HINSTANCE program, HINSTANCE, LPSTR, int) {
  WNDCLASSA description{};
  description.lpfnWndProc = DefWindowProcA;
  description.hInstance = program;
  description.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
  description.lpszClassName = "SonaroFrm";
  RegisterClassA(&description);
  CreateWindowA("SonaroFrm", "", WS_POPUP | WS_VISIBLE, 0, 0, 980, 640, nullptr, nullptr, program, nullptr);
  MSG message{};
  while (GetMessageA(&message, nullptr, 0, 0) > 0) DispatchMessageA(&message);
  return 0;
}
