// The hook procedures: each finds the one HookSet, unpacks its message and
// passes everything it does not take to the next hook.
#include "ide/hook_set_win32.h"

#include <algorithm>

#include "project/editor_title.h"
#include "win32/ide_windows_win32.h"
#include "project/key_code.h"

HookSet* HookSet::active_ = nullptr;
bool HookSet::painting_ = false;

namespace {

constexpr UINT kCapturedKeyMessage = WM_USER + 1;
constexpr WPARAM kFrameCommandToWatch = 13104;
constexpr const char* kEditorClass = "BCW5Editor";
constexpr const char* kProjectClass = "BCW5Project";

// Bits 31 (key released) and 30 (key was down before) of a key message's lParam.
constexpr LPARAM kKeyUpBit = LPARAM(1) << 31;
constexpr LPARAM kRepeatBit = LPARAM(1) << 30;
constexpr LPARAM kAltBit = LPARAM(1) << 29;

std::string windowTitle(HWND window, size_t limit) {
  std::string title(limit + 1, '\0');
  title.resize(static_cast<size_t>(GetWindowTextA(window, &title[0], static_cast<int>(limit + 1))));
  return title;
}

bool keyDown(int virtualKey) { return (GetKeyState(virtualKey) & 0x8000) != 0; }

uint32_t keyCodeOf(WPARAM virtualKey, LPARAM flags) {
  return keyCode(static_cast<uint32_t>(virtualKey), keyDown(VK_CONTROL), (flags & kAltBit) != 0, keyDown(VK_SHIFT));
}

}  // namespace

HookSet::HookSet(HWND bar, HookClient& client)
    : bar_(bar),
      client_(client),
      mouse_(WH_MOUSE, mouseHook),
      windowProcedure_(WH_CALLWNDPROC, windowProcedureHook),
      messages_(WH_GETMESSAGE, messageHook),
      keyboard_(WH_KEYBOARD, keyboardHook) {
  active_ = this;
}

HookSet::~HookSet() {
  mouse_.reset();
  windowProcedure_.reset();
  messages_.reset();
  keyboard_.reset();
  if (active_ == this) active_ = nullptr;
}

bool HookSet::installed(int type) const {
  switch (type) {
    case WH_MOUSE:
      return mouse_.get() != nullptr;
    case WH_CALLWNDPROC:
      return windowProcedure_.get() != nullptr;
    case WH_GETMESSAGE:
      return messages_.get() != nullptr;
    case WH_KEYBOARD:
      return keyboard_.get() != nullptr;
    default:
      return false;
  }
}

void HookSet::post(UINT command, LPARAM lParam) { PostMessageA(bar_, WM_COMMAND, command, lParam); }

LRESULT CALLBACK HookSet::mouseHook(int code, WPARAM wParam, LPARAM lParam) {
  if (code >= 0 && active_ && active_->onMouse(static_cast<UINT>(wParam), *reinterpret_cast<MOUSEHOOKSTRUCT*>(lParam)))
    return 1;
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

LRESULT CALLBACK HookSet::windowProcedureHook(int code, WPARAM wParam, LPARAM lParam) {
  if (code >= 0 && active_) active_->onWindowMessage(*reinterpret_cast<CWPSTRUCT*>(lParam));
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

LRESULT CALLBACK HookSet::messageHook(int code, WPARAM wParam, LPARAM lParam) {
  if (code >= 0 && active_) {
    MSG& message = *reinterpret_cast<MSG*>(lParam);
    if (message.message == WM_COMMAND && message.wParam == kFrameCommandToWatch && message.hwnd &&
        message.hwnd == ideFrame())
      active_->client_.frameCommandSeen();
    // A message taken by a dialog is emptied so that the IDE's loop does not
    // translate and dispatch it a second time.
    if (wParam == PM_REMOVE && active_->routeDialogKey(&message)) message.message = WM_NULL;
  }
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

LRESULT CALLBACK HookSet::keyboardHook(int code, WPARAM wParam, LPARAM lParam) {
  if (code == HC_ACTION && active_ && active_->onKey(wParam, lParam)) return 1;
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

bool HookSet::routeDialogKey(MSG* message) {
  if (message->message < WM_KEYFIRST || message->message > WM_KEYLAST || !message->hwnd) return false;
  for (HWND dialog : client_.floatingDialogs())
    if (dialog && (dialog == message->hwnd || IsChild(dialog, message->hwnd))) return IsDialogMessageA(dialog, message);
  return false;
}

bool HookSet::onMouse(UINT message, const MOUSEHOOKSTRUCT& mouse) {
  if (message != WM_NCLBUTTONDOWN && message != WM_NCRBUTTONDOWN) return false;
  if (suspended_ || target_.popupOpen || !client_.navigationEnabled()) return false;
  HWND window = mouse.hwnd;
  if (!hasClass(window, kEditorClass) || !IsWindowEnabled(window)) return false;
  if (message == WM_NCRBUTTONDOWN) {
    target_.documentationTitle = documentationTitle(windowTitle(window, kDocumentationTitleLimit));
    takeClick(window, mouse.pt, mouse.pt, kCaptionRightClickCommand);
    return true;
  }
  static const UINT kButtonCommands[] = {kFunctionsButtonCommand, kIncludesButtonCommand, kQuickFindButtonCommand};
  POINT popup = {};
  const int32_t button = client_.hitTitleBarButton(window, mouse.pt, &popup);
  if (button < 0 || button > 2) return false;
  takeClick(window, mouse.pt, popup, kButtonCommands[button]);
  return true;
}

void HookSet::takeClick(HWND editor, POINT point, POINT popup, UINT command) {
  target_.window = editor;
  target_.fileName = editorFileName(windowTitle(editor, kEditorFileNameLimit));
  SetWindowPos(editor, HWND_TOP, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE);
  target_.click = point;
  target_.popup = popup;
  post(command);
}

void HookSet::onWindowMessage(const CWPSTRUCT& message) {
  switch (message.message) {
    case WM_CREATE:
    case WM_DESTROY:
      if (hasClass(message.hwnd, kProjectClass)) {
        if (client_.rebuildsOnProjectView()) post(kProjectViewCommand);
      } else if (message.message == WM_CREATE && hasClass(message.hwnd, kEditorClass)) {
        post(kEditorCreatedCommand, reinterpret_cast<LPARAM>(message.hwnd));
      }
      break;
    case WM_NCPAINT:
    case WM_NCACTIVATE:
      if (hasClass(message.hwnd, kEditorClass) && client_.navigationEnabled() && !IsIconic(message.hwnd)) {
        RECT place = {};
        GetWindowRect(message.hwnd, &place);
        // Too narrow for the buttons: the user hears it at every repaint.
        if (place.right - place.left > 2 * GetSystemMetrics(SM_CYCAPTION)) {
          painting_ = true;
          post(kPaintButtonsCommand, reinterpret_cast<LPARAM>(message.hwnd));
          painting_ = false;
        } else {
          MessageBeep(0);
        }
      }
      break;
    case WM_SIZE:
    case WM_ACTIVATE:
      if (message.hwnd && message.hwnd == ideFrame()) onFrameMessage(message.message, message.wParam);
      break;
    default:
      break;
  }
}

void HookSet::onFrameMessage(UINT message, WPARAM wParam) {
  if (message == WM_SIZE) {
    if (!client_.barFollowsFrame()) return;
    const bool visible = IsWindowVisible(bar_) != FALSE;
    if (wParam == SIZE_MINIMIZED && visible) {
      ShowWindow(bar_, SW_HIDE);
      for (HWND window : client_.floatingDialogs())
        if (window && IsWindowVisible(window)) {
          ShowWindow(window, SW_HIDE);
          hiddenWithFrame_.push_back(window);
        }
    }
    if (wParam != SIZE_MINIMIZED && !visible) {
      ShowWindow(bar_, SW_SHOWNA);
      // A window closed meanwhile is gone, and its handle may be another's.
      const std::vector<HWND> open = client_.floatingDialogs();
      for (HWND window : hiddenWithFrame_)
        if (std::find(open.begin(), open.end(), window) != open.end()) ShowWindow(window, SW_SHOWNA);
      hiddenWithFrame_.clear();
    }
    return;
  }
  if (client_.barAlwaysOnTop()) return;
  if (LOWORD(wParam) == WA_INACTIVE)
    SetWindowPos(bar_, HWND_NOTOPMOST, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOREDRAW | SWP_NOACTIVATE);
  else
    SetWindowPos(bar_, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE);
}

bool HookSet::onKey(WPARAM virtualKey, LPARAM flags) {
  if (captureWindow_) {
    if (!(flags & kKeyUpBit) && (virtualKey < VK_SHIFT || virtualKey > VK_MENU))
      SendMessageA(captureWindow_, kCapturedKeyMessage, virtualKey, flags);
    return true;
  }
  if (flags & (kKeyUpBit | kRepeatBit)) return false;
  const uint32_t completionKey = client_.completionKey();
  if (completionKey != 0 && virtualKey == completionKey % 1000 && keyCodeOf(virtualKey, flags) == completionKey) {
    post(kCompletionKeyCommand);
    return true;
  }
  if (!client_.navigationEnabled()) return false;
  const uint32_t code = keyCodeOf(virtualKey, flags);
  const std::array<uint16_t, 4> keys = client_.quickFindKeys();
  for (UINT n = 0; n < keys.size(); ++n) {
    if (keys[n] == 0 || keys[n] != code) continue;
    HWND editor = activeEditor();
    if (!editor) return false;
    const std::string title = windowTitle(editor, 299);
    if (title.empty()) return false;
    target_.window = editor;
    target_.fileName = editorFileName(title, 255);
    post(kFirstQuickFindKeyCommand + n);
    return true;
  }
  return false;
}
