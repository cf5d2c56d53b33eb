// The control helpers of the dialog views.
#include "win32/dialog_controls_win32.h"

std::string dialogItemText(HWND dialog, int id, size_t maxLength) {
  std::string text(maxLength + 1, '\0');
  text.resize(GetDlgItemTextA(dialog, id, &text[0], static_cast<int>(maxLength + 1)));
  return text;
}

void setDialogItemText(HWND dialog, int id, const std::string& text) { SetDlgItemTextA(dialog, id, text.c_str()); }

bool isChecked(HWND dialog, int id) { return IsDlgButtonChecked(dialog, id) == BST_CHECKED; }

void setChecked(HWND dialog, int id, bool on) { CheckDlgButton(dialog, id, on ? BST_CHECKED : BST_UNCHECKED); }

void enableControls(HWND dialog, std::initializer_list<int> ids, bool on) {
  for (int id : ids) EnableWindow(GetDlgItem(dialog, id), on);
}

void fillListBox(HWND dialog, int id, const std::vector<std::string>& rows) {
  HWND list = GetDlgItem(dialog, id);
  SendMessageA(list, WM_SETREDRAW, FALSE, 0);
  SendMessageA(list, LB_RESETCONTENT, 0, 0);
  for (const std::string& row : rows) SendMessageA(list, LB_INSERTSTRING, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(row.c_str()));
  SendMessageA(list, WM_SETREDRAW, TRUE, 0);
  InvalidateRect(list, nullptr, TRUE);
}

void fillComboBox(HWND dialog, int id, const std::vector<std::string>& entries) {
  SendDlgItemMessageA(dialog, id, CB_RESETCONTENT, 0, 0);
  for (const std::string& entry : entries)
    SendDlgItemMessageA(dialog, id, CB_INSERTSTRING, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(entry.c_str()));
}

void setTabStops(HWND dialog, int id, const std::vector<int>& stops) {
  std::vector<INT> units(stops.begin(), stops.end());
  SendDlgItemMessageA(dialog, id, LB_SETTABSTOPS, units.size(), reinterpret_cast<LPARAM>(units.data()));
}
