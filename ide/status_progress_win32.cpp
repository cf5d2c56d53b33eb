// Drawing the copy progress bar into the IDE's status window.
#include "ide/status_progress_win32.h"

#include <windows.h>

namespace {

// The IDE's status window: the frame's status bar child.
HWND statusWindow() {
  HWND frame = FindWindowA("CPPFRAME", nullptr);
  return frame ? FindWindowExA(frame, nullptr, "msctls_statusbar32", nullptr) : nullptr;
}

class WindowDc {
 public:
  explicit WindowDc(HWND window) : window_(window), dc_(GetDC(window)) {}
  ~WindowDc() {
    if (dc_) ReleaseDC(window_, dc_);
  }
  WindowDc(const WindowDc&) = delete;
  WindowDc& operator=(const WindowDc&) = delete;
  HDC get() const { return dc_; }

 private:
  HWND window_;
  HDC dc_;
};

class Brush {
 public:
  explicit Brush(COLORREF colour) : brush_(CreateSolidBrush(colour)) {}
  ~Brush() {
    if (brush_) DeleteObject(brush_);
  }
  Brush(const Brush&) = delete;
  Brush& operator=(const Brush&) = delete;
  HBRUSH get() const { return brush_; }

 private:
  HBRUSH brush_;
};

}  // namespace

void drawStatusProgress(uint64_t done, uint64_t total, const std::string& item) {
  HWND window = statusWindow();
  if (!window) return;
  RECT area;
  GetClientRect(window, &area);
  area.right -= 90;
  if (area.right <= area.left) return;
  WindowDc dc(window);
  Brush blue(0xFF0000);
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
