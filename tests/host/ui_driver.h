// Driving the test IDE's windows as a user would: synthesised clicks and keys,
// a message pump, popup menus and dialogs answered from a timer that keeps
// firing inside their modal loops, and screenshots of the whole screen.
#pragma once

#include <windows.h>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

// Dispatches this thread's messages for ms milliseconds.
void pumpMessages(DWORD ms);
// Dispatches messages until done() holds or timeoutMs passes; done()'s last answer.
bool pumpUntil(const std::function<bool()>& done, DWORD timeoutMs = 5000);

// A press and release of a mouse button at a screen point.
void clickAt(POINT point, bool rightButton = false);
// A key stroke, with Ctrl and Shift held around it when asked.
void pressKey(WORD virtualKey, bool ctrl = false, bool shift = false);

// A click on a dialog's button, as its command reaches the dialog (at once, sent).
void pressButton(HWND dialog, int id);
// The visible top-level window of this process with that caption; null when none.
HWND ownDialog(const std::string& caption);
// The rows of a dialog's list box.
std::vector<std::string> listBoxRows(HWND dialog, int id);

// The screen as a PNG file named name under the screenshot folder; false when it could not be taken.
bool saveScreenshot(const std::string& name);

// How many pixels of the module's bitmap resource the whole window (caption
// and frame included) shows with the bitmap's top-left corner at at, in window
// coordinates; 0 when the bitmap cannot be loaded.
int bitmapPixelsShown(HWND window, HMODULE module, const char* bitmap, POINT at);

// Whether a popup menu of this process is showing.
bool menuShown();

// A menu in the text form of describeMenu(MenuModel): "ID TEXT" per item,
// submenus' items indented by two blanks, "--" before a new column.
std::string describeWin32Menu(HMENU menu);

// Answers the next popup menu and the next dialog of this thread. A watchdog
// closes either after a few seconds, so that a test that goes wrong cannot hang.
class ModalDriver {
 public:
  ModalDriver();
  ~ModalDriver();
  ModalDriver(const ModalDriver&) = delete;
  ModalDriver& operator=(const ModalDriver&) = delete;

  // The plan for menus: in the n-th menu, choose the top-level item with
  // command choices[n] (dismiss past the end or for 0); before that, open the
  // first submenu and take a screenshot when asked.
  std::vector<uint32_t> choices;
  bool openFirstSubmenu = false;
  std::string menuScreenshot;
  // Called with each menu as it opens, to read what its description leaves out.
  std::function<void(HMENU menu)> onMenu;
  // The plan for dialogs: only the one captioned dialogTitle (any when empty);
  // the text typed into control 101, then onDialog to read or set its other
  // controls, the screenshot, and the buttons pressed in turn a few ticks apart.
  std::string dialogTitle;
  std::string dialogText;
  std::function<void(HWND dialog)> onDialog;
  std::string dialogScreenshot;
  std::vector<int> dialogButtons = {IDOK};

  // What was seen.
  std::vector<std::string> menus;     // each popup's description
  std::string dialogCaption;
  std::string dialogFirstText;        // control 101's text when the dialog opened
  std::vector<std::string> dialogList;  // control 101's list, a combo box's or a list box's
  int watchdogFired = 0;

 private:
  static void CALLBACK tick(HWND, UINT, UINT_PTR, DWORD);
  void onTick();
  void driveMenu(HWND menuWindow);
  void driveDialog(HWND dialog);

  HWND findDialog() const;

  static ModalDriver* active_;
  UINT_PTR timer_ = 0;
  int menuTicks_ = 0;
  int dialogTicks_ = 0;
};
