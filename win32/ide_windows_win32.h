// Finding the IDE's windows by class name and by the file name in their titles.
#pragma once

#include <windows.h>

#include <functional>

// The first descendant of parent (in EnumChildWindows order) that matches;
// null when none does.
HWND findChildWindowWhere(HWND parent, const std::function<bool(HWND)>& matches);

// The first descendant of parent (in EnumChildWindows order) whose class is
// windowClass exactly (any class when null) and, when fileName is given, whose
// title names that file (see titleNamesFile; compared in upper case). Null
// when none matches.
HWND findChildWindow(HWND parent, const char* windowClass, const char* fileName);

// The IDE's frame ("CPPFRAME"); null when it is not there.
HWND ideFrame();
// The frame's document area ("MDIClient"); null without one.
HWND ideDocuments();
// The editor window ("BCW5Editor") on top of the document area; null when the
// top window is not an editor.
HWND activeEditor();

// Whether the window's class is windowClass exactly.
bool hasClass(HWND window, const char* windowClass);
