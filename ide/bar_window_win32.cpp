// The bar window's class and creation.
#include "ide/bar_window_win32.h"

#include "project/addon_startup.h"
#include "ide/bar_commands_win32.h"

namespace {

// A switchboard: the commands and private messages go to their owners.
LRESULT CALLBACK barProcedure(HWND bar, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_COMMAND && dispatchBarCommand(bar, LOWORD(wParam), lParam)) return 0;
  if (dispatchBarMessage(bar, message, wParam, lParam)) return 0;
  return DefWindowProcA(bar, message, wParam, lParam);
}

}  // namespace

bool registerBarClass(HINSTANCE instance) {
  WNDCLASSA barClass = {};
  barClass.style = CS_VREDRAW | CS_HREDRAW | CS_DBLCLKS;
  barClass.lpfnWndProc = barProcedure;
  barClass.hInstance = instance;
  barClass.hbrBackground = static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH));
  barClass.lpszClassName = kBarClassName;
  return RegisterClassA(&barClass) != 0;
}

void unregisterBarClass(HINSTANCE instance) { UnregisterClassA(kBarClassName, instance); }

HMENU createStartupMenu() {
  HMENU menu = CreateMenu();
  if (menu) AppendMenuA(menu, MF_STRING, kStartupMenuId, "Kesto Addon for Borland C++ 5.0 initializing...");
  return menu;
}

HWND createBarWindow(HINSTANCE instance, bool newShell, HMENU menu) {
  const DWORD extendedStyle = newShell ? WS_EX_TOPMOST | WS_EX_TOOLWINDOW : WS_EX_TOPMOST;
  const DWORD style = newShell ? WS_POPUP | WS_BORDER : WS_POPUP | WS_CAPTION;
  const BarRect place = startupBarRect(newShell, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYMENU),
                                       GetSystemMetrics(SM_CYCAPTION));
  return CreateWindowExA(extendedStyle, kBarClassName, nullptr, style, place.x, place.y, place.width, place.height,
                         nullptr, menu, instance, nullptr);
}
