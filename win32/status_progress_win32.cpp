// Drawing the copy progress bar into the IDE's status window.
#include "win32/status_progress_win32.h"

#include <windows.h>

#include "win32/gdi_win32.h"

namespace {

// The IDE's status window: the frame's status bar child.
HWND statusWindow() {
  HWND frame = FindWindowA("CPPFRAME", nullptr);
  return frame ? FindWindowExA(frame, nullptr, "msctls_statusbar32", nullptr) : nullptr;
}

}  // namespace

void drawStatusProgress(uint64_t done, uint64_t total, const std::string& item) {
  HWND window = statusWindow();
  if (!window) return;
  RECT area;
  GetClientRect(window, &area);
  area.right -= 90;
  if (area.right <= area.left) return;
  WindowDc dc(window, GetDC(window));
  GdiObject<HBRUSH> blue(CreateSolidBrush(0xFF0000));
  if (!dc.get() || !blue.get()) return;
  const LONG width = area.right - area.left;
  RECT filled = area;
  filled.right = area.left + (total == 0 || done >= total ? width : static_cast<LONG>(done * width / total));
  RECT rest = area;
  rest.left = filled.right;
  FillRect(dc.get(), &filled, blue.get());
  FillRect(dc.get(), &rest, GetSysColorBrush(COLOR_BTNFACE));
  SetBkMode(dc.get(), TRANSPARENT);
  DrawTextA(dc.get(), item.c_str(), static_cast<int>(item.size()), &area, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
}

void endStatusProgress() {
  if (HWND window = statusWindow()) {
    InvalidateRect(window, nullptr, TRUE);
    UpdateWindow(window);
  }
}
