// Owning a box by the dialog it came from disables that dialog while the box
// is up, so that the window behind cannot be clicked a second time.
#include "win32/active_dialog_win32.h"

#include "win32/ide_windows_win32.h"

HWND activeDialog(HWND bar) {
  // GetActiveWindow answers for this thread's queue only: a window of another
  // program never becomes the owner.
  HWND active = GetActiveWindow();
  if (!active || !IsWindowVisible(active) || active == ideFrame() || active == bar) return nullptr;
  return active;
}
