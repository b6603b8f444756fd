// The least that a program with a window and the sound device does to open: what the pack's start
// is compared with.
#include <windows.h>

// Before dsound.h, which needs its types.
#include <mmsystem.h>

#include <dsound.h>

namespace {

LRESULT CALLBACK Handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_DESTROY) PostQuitMessage(0);
  return DefWindowProcA(window, message, wParam, lParam);
}

}  // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int) {
  WNDCLASSA description{};
  description.lpfnWndProc = Handle;
  description.hInstance = instance;
  description.hCursor = LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW));
  description.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
  description.lpszClassName = "BareWindow";
  RegisterClassA(&description);
  const HWND window =
      CreateWindowA(description.lpszClassName, "Bare window", WS_OVERLAPPEDWINDOW, CW_USEDEFAULT,
                    CW_USEDEFAULT, 400, 200, nullptr, nullptr, instance, nullptr);
  IDirectSound8* device = nullptr;
  if (SUCCEEDED(DirectSoundCreate8(nullptr, &device, nullptr))) {
    device->SetCooperativeLevel(window, DSSCL_NORMAL);
  }
  ShowWindow(window, SW_SHOW);
  MSG message;
  while (GetMessageA(&message, nullptr, 0, 0) > 0) {
    TranslateMessage(&message);
    DispatchMessageA(&message);
  }
  if (device) device->Release();
  return 0;
}
