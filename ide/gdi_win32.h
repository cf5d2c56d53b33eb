// Owners of the GDI resources that painting borrows: each gives back what it
// took when it goes out of scope.
#pragma once

#include <windows.h>

// The DC of a whole window, non-client area included.
class WindowDc {
 public:
  explicit WindowDc(HWND window) : window_(window), dc_(GetWindowDC(window)) {}
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

// A memory DC compatible with another.
class MemoryDc {
 public:
  explicit MemoryDc(HDC like) : dc_(CreateCompatibleDC(like)) {}
  ~MemoryDc() {
    if (dc_) DeleteDC(dc_);
  }
  MemoryDc(const MemoryDc&) = delete;
  MemoryDc& operator=(const MemoryDc&) = delete;
  HDC get() const { return dc_; }

 private:
  HDC dc_;
};

// A GDI object that is deleted with its owner (bitmaps, brushes, fonts).
template <typename Handle>
class GdiObject {
 public:
  explicit GdiObject(Handle handle) : handle_(handle) {}
  ~GdiObject() {
    if (handle_) DeleteObject(handle_);
  }
  GdiObject(const GdiObject&) = delete;
  GdiObject& operator=(const GdiObject&) = delete;
  Handle get() const { return handle_; }

 private:
  Handle handle_;
};

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
