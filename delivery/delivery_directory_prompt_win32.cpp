// The delivery directory prompt: the edit and the check box, and back on OK.
#include "delivery/delivery_directory_prompt_win32.h"

#include "delivery/delivery_page.h"

namespace {

constexpr int kDirectory = 101;
constexpr int kActive = 102;

struct Prompt {
  std::string directory;
  bool active;
};

INT_PTR CALLBACK promptProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* prompt = reinterpret_cast<Prompt*>(GetWindowLongPtrA(dialog, DWLP_USER));
  switch (message) {
    case WM_INITDIALOG:
      prompt = reinterpret_cast<Prompt*>(lParam);
      SetWindowLongPtrA(dialog, DWLP_USER, lParam);
      SendDlgItemMessageA(dialog, kDirectory, EM_LIMITTEXT, DeliveryPage::kMaxDirectoryLength, 0);
      SetDlgItemTextA(dialog, kDirectory, prompt->directory.c_str());
      CheckDlgButton(dialog, kActive, prompt->active ? BST_CHECKED : BST_UNCHECKED);
      return TRUE;
    case WM_COMMAND:
      if (LOWORD(wParam) == IDOK) {
        char text[DeliveryPage::kMaxDirectoryLength + 1] = {};
        GetDlgItemTextA(dialog, kDirectory, text, sizeof text);
        prompt->directory = text;
        prompt->active = IsDlgButtonChecked(dialog, kActive) == BST_CHECKED;
        EndDialog(dialog, IDOK);
        return TRUE;
      }
      if (LOWORD(wParam) == IDCANCEL) {
        EndDialog(dialog, IDCANCEL);
        return TRUE;
      }
      break;
  }
  return FALSE;
}

}  // namespace

bool promptDeliveryDirectory(HINSTANCE instance, HWND owner, std::string* directory, bool* active) {
  Prompt prompt{*directory, *active};
  if (DialogBoxParamA(instance, "DLGDELIVERYDIR", owner, promptProc, reinterpret_cast<LPARAM>(&prompt)) != IDOK)
    return false;
  *directory = prompt.directory;
  *active = prompt.active;
  return true;
}
