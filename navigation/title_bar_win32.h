// The three buttons in an editor's title bar: painted from the module's
// bitmaps, hit-tested from the same geometry.
#pragma once

#include <windows.h>

#include <cstdint>

struct TitleBarOptions {
  HINSTANCE module;  // holds the bitmaps
  bool newShell;     // the Windows 95 look
  bool leftSide;     // "LeftSide"
};

// Where button 0 is drawn, relative to the editor window's top-left corner.
POINT titleBarButtonsOrigin(HWND editor, const TitleBarOptions& options);

// Draws the buttons into the editor's title bar.
void paintTitleBarButtons(HWND editor, const TitleBarOptions& options);

// The button (0 to 2) under the screen point, or -1; on a hit *popup is where its popup opens.
int32_t hitTitleBarButton(HWND editor, const TitleBarOptions& options, POINT point, POINT* popup);
