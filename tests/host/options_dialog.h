// The test IDE's options dialog: a window that asks a chapter for its pages,
// creates each page into itself, shows the selected one with its description
// and the hint of the focused control, and on OK asks every page to check and,
// when all accept, to store.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "win32/ide_api_win32.h"

class TestOptionsDialog {
 public:
  // Opens the dialog at once and holds the chapter and its pages until it closes.
  explicit TestOptionsDialog(IMpdChapter* chapter);
  ~TestOptionsDialog();
  TestOptionsDialog(const TestOptionsDialog&) = delete;
  TestOptionsDialog& operator=(const TestOptionsDialog&) = delete;

  HWND window() const { return window_; }
  int pageCount() const { return static_cast<int>(pages_.size()); }
  IMpdPage* page(int index) const { return pages_[static_cast<size_t>(index)]; }
  // The window the page created; null when it made none.
  HWND pageWindow(int index) const { return windows_[static_cast<size_t>(index)]; }

  // Shows page index alone, with its description.
  void select(int index);
  // The hint of the focused control of the shown page, also shown on the hint line.
  std::string showHint();
  // Check on every page; Store on every page when all accepted. False when one refused.
  bool accept();

 private:
  IMpdChapter* chapter_;
  std::vector<IMpdPage*> pages_;  // one reference each while the dialog is open
  std::vector<HWND> windows_;
  HWND window_ = nullptr;
  HWND description_ = nullptr;
  HWND hint_ = nullptr;
  HWND list_ = nullptr;
  int shown_ = -1;
};
