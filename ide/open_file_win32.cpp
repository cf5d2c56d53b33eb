// Opening files in the IDE: an editor of the file brought forward, else the editor tool.
#include "ide/open_file_win32.h"

#include <windows.h>

#include "ide/addon_slots_win32.h"
#include "project/editor_title.h"
#include "ide/ide_host_win32.h"
#include "win32/ide_windows_win32.h"
#include "project/tool_table.h"
#include "topbar/recent_files.h"
#include "topbar/top_bar_win32.h"

namespace {

// Unless "EditOtherView" is on or Shift is held: the editor of path, other
// than except, restored and raised.
bool bringEditorForward(const std::string& path, HWND except = nullptr) {
  const bool otherView = addon().topBar && addon().topBar->settings.editOtherView != 0;
  HWND documents = ideDocuments();
  if (otherView || (GetKeyState(VK_SHIFT) & 0x8000) || !documents) return false;
  const std::string upperPath = asciiUpper(path);
  // An editor whose title, less its view number and modified mark, is the path.
  HWND found = findChildWindowWhere(documents, [&](HWND window) {
    char title[280] = {};
    GetWindowTextA(window, title, sizeof title);
    return window != except && hasClass(window, "BCW5Editor") &&
           asciiUpper(editorFileName(title, sizeof title)) == upperPath;
  });
  if (!found) return false;
  ShowWindow(found, SW_SHOWNORMAL);
  SetWindowPos(found, HWND_TOP, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE);
  SendMessageA(documents, WM_MDIACTIVATE, reinterpret_cast<WPARAM>(found), 0);
  return true;
}

// A header enters or moves to the front of the recent headers, and the bar's
// header submenu shows the list anew.
void recordHeader(const std::string& path) {
  if (addon().recentFiles && addon().recentFiles->rememberHeader(withoutLineSuffix(path)) && addon().topBar)
    addon().topBar->refreshHeaderMenu();
}

}  // namespace

bool openFileInIde(const std::string& path) {
  if (bringEditorForward(path)) return true;
  const int result = ideHost().runTool("EditText", path);
  if (result == 0) return true;
  ideHost().showStatus(toolResultText(result));
  return false;
}

bool openAndRecord(const std::string& path) {
  if (!openFileInIde(path)) return false;
  recordHeader(path);
  return true;
}

void editorOpened(HWND editor) {
  char title[280] = {};
  if (!IsWindow(editor) || !GetWindowTextA(editor, title, sizeof title)) return;
  const std::string path = withoutLineSuffix(title);
  if (bringEditorForward(path, editor)) {
    SendMessageA(editor, WM_CLOSE, 0, 0);
    return;
  }
  recordHeader(path);
}

void activateIdeFrame() {
  if (HWND frame = ideFrame()) SetActiveWindow(frame);
}
