// The Flash window's view: its title, its one edit control fitted to the client area.
#include "tasks/flash_window_win32.h"

#include "win32/dialog_controls_win32.h"
#include "tasks/flash.h"

namespace {

constexpr int kReport = 101;

// Named with "class": the system has a function of that name.
class FlashWindow gFlash;
HWND gWindow = nullptr;

void fitReport(HWND window, int width, int height) { MoveWindow(GetDlgItem(window, kReport), 0, 0, width, height, TRUE); }

INT_PTR CALLBACK flashProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG: {
      gWindow = window;
      SetWindowTextA(window, flashTitle().c_str());
      setDialogItemText(window, kReport, gFlash.text());
      RECT client;
      GetClientRect(window, &client);
      fitReport(window, client.right, client.bottom);
      // The dialog manager would select the whole report in the control it
      // focuses; focused here, the report opens with the caret at its start.
      SetFocus(GetDlgItem(window, kReport));
      return FALSE;
    }
    case WM_SIZE:
      fitReport(window, LOWORD(lParam), HIWORD(lParam));
      return TRUE;
    case WM_COMMAND:
      if (LOWORD(wParam) != IDCANCEL) return FALSE;
      DestroyWindow(window);
      return TRUE;
    case WM_CLOSE:
      DestroyWindow(window);
      return TRUE;
    case WM_DESTROY:
      gFlash.closed();
      gWindow = nullptr;
      return TRUE;
    default:
      return FALSE;
  }
}

}  // namespace

HWND flashWindow() { return gWindow; }

void showFlashWindow(HINSTANCE instance, HWND parent, const std::string& markerPath, const std::string& text) {
  if (!gFlash.show(markerPath, text)) {
    setDialogItemText(gWindow, kReport, text);
    return;
  }
  if (!CreateDialogParamA(instance, "flash", parent, flashProc, 0)) {
    gFlash.closed();
    return;
  }
  ShowWindow(gWindow, SW_SHOW);
}
