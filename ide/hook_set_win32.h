// The four thread hooks on the IDE's user-interface thread, which turn editor
// title-bar clicks, editor window events and shortcut keys into WM_COMMAND
// messages posted to the bar window.
#pragma once

#include <windows.h>

#include <array>
#include <cstdint>
#include <string>
#include <vector>

// The commands the hooks post to the bar (identifier in wParam's low word).
enum HookCommand : UINT {
  kEditorCreatedCommand = 101,      // lParam: the new editor window
  kCompletionKeyCommand = 102,
  kProjectViewCommand = 103,        // the project window came or went
  kPaintButtonsCommand = 111,       // lParam: the editor window to decorate
  kIncludesButtonCommand = 187,     // button 1
  kQuickFindButtonCommand = 188,    // button 2
  kFunctionsButtonCommand = 189,    // button 0
  kFirstQuickFindKeyCommand = 190,  // 190 to 193: QuickFind key n
  kCaptionRightClickCommand = 197,
};

// What the hooks ask of the add-on's features.
class HookClient {
 public:
  virtual ~HookClient() = default;
  // The editor title-bar menus are on.
  virtual bool navigationEnabled() = 0;
  // The title-bar button (0 to 2) under the screen point of editor, or -1; on
  // a hit *popup is where its popup opens.
  virtual int32_t hitTitleBarButton(HWND editor, POINT point, POINT* popup) = 0;
  // The completion key code; 0 while completion is off.
  virtual uint32_t completionKey() = 0;
  // QuickFind's four shortcut key codes, 0 for none.
  virtual std::array<uint16_t, 4> quickFindKeys() = 0;
  // The top bar rebuilds its menu when the project window comes or goes.
  virtual bool rebuildsOnProjectView() = 0;
  // The bar hides and shows with the IDE's frame.
  virtual bool barFollowsFrame() = 0;
  // The bar stays in the topmost band whatever the frame does.
  virtual bool barAlwaysOnTop() = 0;
  // The IDE's command 13104 reached the frame.
  virtual void frameCommandSeen() = 0;
  // The add-on's open floating windows besides the bar, all modeless dialogs:
  // they hide and show with the bar, and get their dialog keys through the
  // hooks, which the IDE's message loop would not route to them.
  virtual std::vector<HWND> floatingDialogs() = 0;
};

// The editor that the last title-bar click or shortcut concerns, and the
// popup that it opens.
struct EditorTarget {
  HWND window = nullptr;
  std::string fileName;            // the title cut to the file name
  std::string documentationTitle;  // the right-clicked title, for "Edit Documentation"
  POINT click = {};                // the press, screen coordinates
  POINT popup = {};                // where the popup opens
  bool popupOpen = false;          // a title-bar popup is being tracked: no click is taken
};

// A hook removed when its owner goes.
class HookHandle {
 public:
  HookHandle() = default;
  HookHandle(int type, HOOKPROC procedure)
      : hook_(SetWindowsHookExA(type, procedure, nullptr, GetCurrentThreadId())) {}
  ~HookHandle() { reset(); }
  HookHandle(const HookHandle&) = delete;
  HookHandle& operator=(const HookHandle&) = delete;
  HHOOK get() const { return hook_; }
  void reset() {
    if (hook_) UnhookWindowsHookEx(hook_);
    hook_ = nullptr;
  }

 private:
  HHOOK hook_ = nullptr;
};

// One per process: its hooks live from its construction to its destruction,
// and a hook that could not be installed leaves the others working alone.
class HookSet {
 public:
  HookSet(HWND bar, HookClient& client);
  ~HookSet();
  HookSet(const HookSet&) = delete;
  HookSet& operator=(const HookSet&) = delete;

  bool installed(int type) const;

  // While a capture window is set, every key-down but Shift, Ctrl and Alt is
  // sent to it as WM_USER + 1 (virtual key, lParam) and all keys are swallowed.
  void startKeyCapture(HWND window) { captureWindow_ = window; }
  void stopKeyCapture() { captureWindow_ = nullptr; }

  // While suspended, title-bar clicks go on to the IDE.
  void setSuspended(bool suspended) { suspended_ = suspended; }

  EditorTarget& target() { return target_; }

  // Set while a paint command is being posted.
  static bool painting() { return painting_; }

 private:
  static LRESULT CALLBACK mouseHook(int code, WPARAM wParam, LPARAM lParam);
  static LRESULT CALLBACK windowProcedureHook(int code, WPARAM wParam, LPARAM lParam);
  static LRESULT CALLBACK messageHook(int code, WPARAM wParam, LPARAM lParam);
  static LRESULT CALLBACK keyboardHook(int code, WPARAM wParam, LPARAM lParam);

  bool onMouse(UINT message, const MOUSEHOOKSTRUCT& mouse);
  void onWindowMessage(const CWPSTRUCT& message);
  void onFrameMessage(UINT message, WPARAM wParam);
  bool onKey(WPARAM virtualKey, LPARAM flags);
  // Gives a modeless dialog its Tab, Enter and Esc; true when it took the message.
  bool routeDialogKey(MSG* message);
  void post(UINT command, LPARAM lParam = 0);
  // Takes a click: records the editor, raises it and posts the command.
  void takeClick(HWND editor, POINT point, POINT popup, UINT command);

  static HookSet* active_;
  static bool painting_;

  HWND bar_;
  HookClient& client_;
  HWND captureWindow_ = nullptr;
  bool suspended_ = false;
  EditorTarget target_;
  std::vector<HWND> hiddenWithFrame_;  // shown again when the frame is restored
  // Installed in this order and removed in the same order.
  HookHandle mouse_;
  HookHandle windowProcedure_;
  HookHandle messages_;
  HookHandle keyboard_;
};
