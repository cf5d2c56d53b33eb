// The confirmation dialog: fills the list and the check box from the presenter, and back.
#include "delivery/delivery_dialog_win32.h"

namespace {

constexpr int kList = 101;
constexpr int kProceed = 102;
constexpr int kSendMail = 103;

INT_PTR CALLBACK confirmationProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* confirmation = reinterpret_cast<DeliveryConfirmation*>(GetWindowLongPtrA(dialog, DWLP_USER));
  switch (message) {
    case WM_INITDIALOG:
      confirmation = reinterpret_cast<DeliveryConfirmation*>(lParam);
      SetWindowLongPtrA(dialog, DWLP_USER, lParam);
      for (const std::string& row : confirmation->rows())
        SendDlgItemMessageA(dialog, kList, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(row.c_str()));
      CheckDlgButton(dialog, kSendMail, confirmation->sendMail() ? BST_CHECKED : BST_UNCHECKED);
      return TRUE;
    case WM_COMMAND:
      if (LOWORD(wParam) == kProceed) {
        confirmation->setSendMail(IsDlgButtonChecked(dialog, kSendMail) == BST_CHECKED);
        EndDialog(dialog, 1);
        return TRUE;
      }
      if (LOWORD(wParam) == IDCANCEL) {
        EndDialog(dialog, 0);
        return TRUE;
      }
      break;
  }
  return FALSE;
}

}  // namespace

bool showDeliveryConfirmation(HINSTANCE instance, HWND owner, DeliveryConfirmation& confirmation) {
  return DialogBoxParamA(instance, "FenetreConfirmation", owner, confirmationProc,
                         reinterpret_cast<LPARAM>(&confirmation)) == 1;
}
