// Where the three buttons of an editor's title bar stand, and which one a
// point hits: pure numbers, fed by the Win32 side with the window's rectangle.
#pragma once

#include <cstdint>

// Button 0 is the functions button, 1 the includes button, 2 the QuickFind button.
constexpr int32_t kTitleBarButtons = 3;

// The two looks' geometry, in pixels.
struct TitleBarLook {
  int32_t rightMargin;   // from the window's right edge to the buttons' right end
  int32_t top;           // from the window's top edge to the buttons
  int32_t buttonWidth;
  int32_t buttonHeight;
  int32_t popupYAdjust;  // added to the popup's top
  int32_t popupXAdjust;  // added to the popup's left
};

// newShell: Windows 95 or Windows NT 4 and later.
const TitleBarLook& titleBarLook(bool newShell);

// The resource names of the buttons' bitmaps, by button index; the same in both looks.
const char* titleBarBitmap(int32_t button);

struct TitleBarPlace {
  int32_t left;        // the window's left edge
  int32_t top;         // the window's top edge
  int32_t right;       // the window's right edge
  int32_t titleWidth;  // the caption text's width in the system font
  bool newShell;
  bool leftSide;       // "LeftSide": the buttons follow the title
};

// The buttons' left edge, in the coordinates of place. On the right side they
// end rightMargin from the right edge. On the left side they stand 23 pixels
// in; in the Windows 95 look just after the title instead, but never further
// right than on the right side.
int32_t titleBarButtonsLeft(const TitleBarPlace& place);

struct ScreenPoint {
  int32_t x;
  int32_t y;
};

// The button under (x, y), or -1. On a hit, *popup is where the button's popup opens.
int32_t hitTitleBarButton(const TitleBarPlace& place, int32_t captionHeight, int32_t x, int32_t y,
                          ScreenPoint* popup);
