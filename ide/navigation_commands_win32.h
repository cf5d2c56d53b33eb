// The navigation commands as the bar window receives them: the title-bar
// popups and what is chosen in them, QuickFind with its results, and the two
// private messages that put an editor on a found line.
#pragma once

#include <windows.h>

#include "navigation/title_bar_win32.h"

// The private messages: wParam the line, lParam the path (a const char* valid
// until the next search).
constexpr UINT kGoToLineMessage = WM_USER + 7;
constexpr UINT kOpenFoundFileMessage = WM_USER + 8;

// The title bar's look and side as the add-on's settings give them.
TitleBarOptions addonTitleBarOptions();

// Each runs one command for the bar; false when the command is not taken and
// goes on to the bar's default processing (a scan that found nothing).
bool paintButtonsCommand(HWND bar, UINT id, LPARAM editor);
bool titleBarPopupCommand(HWND bar, UINT id, LPARAM);       // 187, 188, 189, 197
bool editDocumentationCommand(HWND bar, UINT id, LPARAM);   // 177
bool functionChosenCommand(HWND bar, UINT id, LPARAM);      // 1000 to 9999
bool includeChosenCommand(HWND bar, UINT id, LPARAM);       // 700 to 799
bool quickFindCommand(HWND bar, UINT id, LPARAM);           // 190 to 193
bool methodResultsCommand(HWND bar, UINT id, LPARAM);       // 184
bool resultChosenCommand(HWND bar, UINT id, LPARAM);        // 800 to 899

void goToFoundLine(int line, const char* path);
void openFoundFile(HWND bar, int line, const char* path);
