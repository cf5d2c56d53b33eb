// The Flash window: today's tasks in a resizable modeless window, at most one.
#pragma once

#include <windows.h>

#include <string>

// Writes the day marker at markerPath, then creates the window under parent
// with text, or gives the open one the new text.
void showFlashWindow(HINSTANCE instance, HWND parent, const std::string& markerPath, const std::string& text);
// The open window; null when none is open.
HWND flashWindow();
