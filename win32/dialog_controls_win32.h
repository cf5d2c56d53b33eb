// Moving values between a dialog's controls and its presenter: texts, lists,
// check boxes and enabled states, the few calls every dialog view makes.
#pragma once

#include <windows.h>

#include <initializer_list>
#include <string>
#include <vector>

// The control's text, cut to at most maxLength characters.
std::string dialogItemText(HWND dialog, int id, size_t maxLength);
void setDialogItemText(HWND dialog, int id, const std::string& text);

bool isChecked(HWND dialog, int id);
void setChecked(HWND dialog, int id, bool on);
void enableControls(HWND dialog, std::initializer_list<int> ids, bool on);

// Empties a list box and adds rows in order (never sorted); it is not redrawn meanwhile.
void fillListBox(HWND dialog, int id, const std::vector<std::string>& rows);
// Empties a combo box's list and adds entries in order.
void fillComboBox(HWND dialog, int id, const std::vector<std::string>& entries);
// Tab stops of a list box, in dialog template units.
void setTabStops(HWND dialog, int id, const std::vector<int>& stops);
