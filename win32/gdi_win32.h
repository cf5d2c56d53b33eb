// Owners of the GDI resources that painting borrows: each gives back what it
// took when it goes out of scope.
#pragma once

#include <windows.h>

// A DC borrowed from a window, by GetDC (client area) or GetWindowDC (the
// whole window), and released to it.
class WindowDc {
 public:
  WindowDc(HWND window, HDC dc) : window_(window), dc_(dc) {}
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

// A DC or GDI object released by Release with its owner.
template <typename Handle, typename Release>
class GdiHandle {
 public:
  explicit GdiHandle(Handle handle) : handle_(handle) {}
  ~GdiHandle() {
    if (handle_) Release()(handle_);
  }
  GdiHandle(const GdiHandle&) = delete;
  GdiHandle& operator=(const GdiHandle&) = delete;
  Handle get() const { return handle_; }

 private:
  Handle handle_;
};

struct DeleteDc {
  void operator()(HDC dc) const { DeleteDC(dc); }
};
struct DeleteGdiObject {
  void operator()(HGDIOBJ object) const { DeleteObject(object); }
};

// A memory DC, made by CreateCompatibleDC.
using MemoryDc = GdiHandle<HDC, DeleteDc>;
// A bitmap, brush or font.
template <typename Handle>
using GdiObject = GdiHandle<Handle, DeleteGdiObject>;

// An object selected into a DC until the end of the scope, when the one it
// replaced goes back.
class Selection {
 public:
  Selection(HDC dc, HGDIOBJ object) : dc_(dc), previous_(dc && object ? SelectObject(dc, object) : nullptr) {}
  ~Selection() {
    if (previous_) SelectObject(dc_, previous_);
  }
  Selection(const Selection&) = delete;
  Selection& operator=(const Selection&) = delete;

 private:
  HDC dc_;
  HGDIOBJ previous_;
};
