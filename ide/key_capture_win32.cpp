// The key capture dialog: started and stopped around the dialog's life, so that
// no key reaches the IDE while it waits.
#include "ide/key_capture_win32.h"

#include "ide/hook_set_win32.h"
#include "project/key_code.h"

namespace {

constexpr UINT kCapturedKeyMessage = WM_USER + 1;
constexpr size_t kKeyTextLimit = 80;

struct Capture {
  HookSet* hooks;
  uint32_t code = 0;
  std::string text;
};

// The system's name of the key, from the scan code and extended bit of the
// stroke, else from the key's own scan code (synthesised strokes may carry
// none), else a name made from the virtual key.
std::string keyName(WPARAM virtualKey, LPARAM flags) {
  char name[kKeyTextLimit + 1] = {};
  if (GetKeyNameTextA(static_cast<LONG>(flags), name, sizeof name) > 0) return name;
  const UINT scanCode = MapVirtualKeyA(static_cast<UINT>(virtualKey), MAPVK_VK_TO_VSC);
  if (GetKeyNameTextA(static_cast<LONG>(scanCode << 16), name, sizeof name) > 0) return name;
  return virtualKeyName(static_cast<uint32_t>(virtualKey));
}

INT_PTR CALLBACK captureProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* capture = reinterpret_cast<Capture*>(GetWindowLongPtrA(dialog, DWLP_USER));
  switch (message) {
    case WM_INITDIALOG:
      SetWindowLongPtrA(dialog, DWLP_USER, lParam);
      reinterpret_cast<Capture*>(lParam)->hooks->startKeyCapture(dialog);
      return TRUE;
    case kCapturedKeyMessage: {
      const bool ctrl = GetKeyState(VK_CONTROL) < 0;
      const bool alt = (lParam & (1 << 29)) != 0;
      const bool shift = GetKeyState(VK_SHIFT) < 0;
      capture->code = keyCode(static_cast<uint32_t>(wParam), ctrl, alt, shift);
      capture->text = keyText(ctrl, alt, shift, keyName(wParam, lParam)).substr(0, kKeyTextLimit);
      capture->hooks->stopKeyCapture();
      EndDialog(dialog, IDOK);
      return TRUE;
    }
    case WM_COMMAND:
      if (LOWORD(wParam) == IDCANCEL) {
        capture->hooks->stopKeyCapture();
        EndDialog(dialog, IDCANCEL);
        return TRUE;
      }
      break;
    case WM_DESTROY:
      // However the dialog ends, the IDE gets its keys back.
      if (capture) capture->hooks->stopKeyCapture();
      break;
  }
  return FALSE;
}

}  // namespace

bool captureKey(HINSTANCE instance, HWND owner, HookSet* hooks, uint32_t* code, std::string* text) {
  if (!hooks) return false;
  Capture capture{hooks, 0, std::string()};
  if (DialogBoxParamA(instance, "DLGKEYCAPTURE", owner, captureProc, reinterpret_cast<LPARAM>(&capture)) != IDOK)
    return false;
  *code = capture.code;
  *text = capture.text;
  return true;
}
