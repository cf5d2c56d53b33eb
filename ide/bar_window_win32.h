// The bar window "KADO" as the add-on's start creates it: a thin topmost popup
// over the top edge of the screen that carries only a menu bar.
#pragma once

#include <windows.h>

constexpr const char* kBarClassName = "KADO";
constexpr UINT kStartupMenuId = 99;

// Makes the class known; false when the system refuses it.
bool registerBarClass(HINSTANCE instance);
void unregisterBarClass(HINSTANCE instance);

// The menu the bar starts with: one item saying that the add-on is starting.
// The caller owns it until a window takes it.
HMENU createStartupMenu();

// Creates the bar with its styles and place for the look of the system, with
// menu as its menu bar; null when creation failed (the menu is then still the caller's).
HWND createBarWindow(HINSTANCE instance, bool newShell, HMENU menu);
