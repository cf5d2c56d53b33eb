// The IDE's windows around a Make, and the auto-save.
#include "ide/general_behaviours_win32.h"

#include <string>

#include "ide/addon_slots_win32.h"
#include "win32/ide_access_win32.h"
#include "ide/ide_host_win32.h"
#include "win32/ide_windows_win32.h"

namespace {

constexpr WPARAM kShowMessageWindow = 13252;
constexpr WPARAM kShowProjectWindow = 13251;
constexpr WPARAM kClearMessages = 1722;

HWND documentWindow(const char* windowClass) { return findChildWindow(ideDocuments(), windowClass, nullptr); }

// The compile status box: a dialog in the document area, else a top-level one, else the active window if it is one.
HWND statusBox() {
  if (HWND box = documentWindow("#32770")) return box;
  if (HWND box = FindWindowA("#32770", nullptr)) return box;
  HWND active = GetActiveWindow();
  return hasClass(active, "#32770") ? active : nullptr;
}

// Remembers where the window was and closes it.
HWND closeRemembering(const char* windowClass, RECT* where) {
  HWND window = documentWindow(windowClass);
  if (!window) return nullptr;
  GetWindowRect(window, where);
  SendMessageA(window, WM_SYSCOMMAND, SC_CLOSE, 0);
  return window;
}

// Asks the frame to show the window again and puts it where it was.
void reopenAt(WPARAM showCommand, const char* windowClass, const RECT& where) {
  HWND frame = ideFrame();
  if (!frame) return;
  SendMessageA(frame, WM_COMMAND, showCommand, 0);
  HWND documents = ideDocuments();
  HWND window = documentWindow(windowClass);
  if (!documents || !window) return;
  POINT corner{where.left, where.top};
  ScreenToClient(documents, &corner);
  SetWindowPos(window, nullptr, corner.x, corner.y, where.right - where.left, where.bottom - where.top,
               SWP_NOZORDER | SWP_NOACTIVATE);
}

// The frame of an IDE already running. The IDE that loads the add-on has not
// created its frame yet; a frame of this very process (a host that loads its
// add-ons after making its frame) is not another IDE.
HWND runningIdeFrame() {
  HWND frame = nullptr;
  while ((frame = FindWindowExA(nullptr, frame, "CPPFRAME", nullptr))) {
    DWORD process = 0;
    GetWindowThreadProcessId(frame, &process);
    if (process != GetCurrentProcessId()) return frame;
  }
  return nullptr;
}

}  // namespace

GeneralBehaviours::GeneralBehaviours() : options(GeneralOptions::read()) {
  if (!options.unic) return;
  HWND running = runningIdeFrame();
  if (!running) return;
  if (IsIconic(running)) ShowWindow(running, SW_SHOW);
  SetActiveWindow(running);
  ExitProcess(0);
}

void GeneralBehaviours::makeStarted() {
  if (options.clearOnMake) {
    if (HWND frame = ideFrame()) SendMessageA(frame, WM_COMMAND, kShowMessageWindow, 0);
    HWND messages = documentWindow("BCW5Message");
    // The first tab of the message window, then an empty list.
    if (HWND tabs = findChildWindow(messages, "OWL_NoteTab", nullptr))
      SendMessageA(tabs, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(20, 11));
    if (HWND list = findChildWindow(messages, "MsgViewer", nullptr)) SendMessageA(list, WM_COMMAND, kClearMessages, 0);
  }
  if (options.closeOnMake) closedMessages_ = closeRemembering("BCW5Message", &messageRect_);
  if (options.closeProjectOnMake) closedProject_ = closeRemembering("BCW5Project", &projectRect_);
  if (options.iconizeStatusOnMake) {
    minimisedStatus_ = statusBox();
    if (minimisedStatus_) SendMessageA(minimisedStatus_, WM_SYSCOMMAND, SC_MINIMIZE, 0);
  }
}

void GeneralBehaviours::makeEnded() {
  if (options.closeProjectOnMake && closedProject_) reopenAt(kShowProjectWindow, "BCW5Project", projectRect_);
  if (options.closeOnMake && closedMessages_) reopenAt(kShowMessageWindow, "BCW5Message", messageRect_);
  if (options.iconizeStatusOnMake && minimisedStatus_) SendMessageA(minimisedStatus_, WM_SYSCOMMAND, SC_RESTORE, 0);
  minimisedStatus_ = nullptr;
}

void GeneralBehaviours::projectOpened() {
  countdown_.reset();
  HWND frame = ideFrame();
  if (options.viewOnOpen && frame && IsWindowEnabled(frame)) PostMessageA(frame, WM_COMMAND, kShowProjectWindow, 0);
}

void GeneralBehaviours::timerTick(bool projectOpen) {
  if (!countdown_.tick(options) || !projectOpen) return;
  HWND frame = ideFrame();
  // A modal dialog of the IDE is up: its editors are not to be touched.
  if (!frame || !IsWindowEnabled(frame)) return;
  IIdeEditor* editor = addon().editor ? addon().editor->get() : nullptr;
  if (!editor) return;
  IIdeString* names = nullptr;
  const long saved = editor->SaveAll(&names);
  std::string text;
  takeIdeText(names, &text);
  if (saved > 0) ideHost().showStatus(autoSaveStatusText(options.timerCount, text));
}
