// Painting and hit-testing the title-bar buttons on a real window.
#include "navigation/title_bar_win32.h"

#include <string>

#include "win32/gdi_win32.h"
#include "navigation/title_bar_geometry.h"

namespace {

// The window's rectangle and its title's width in the system font.
TitleBarPlace placeOf(HWND editor, HDC dc, const TitleBarOptions& options) {
  RECT rect = {};
  GetWindowRect(editor, &rect);
  TitleBarPlace place{rect.left, rect.top, rect.right, 0, options.newShell, options.leftSide};
  if (options.leftSide && options.newShell && dc) {
    char title[256] = {};
    const int length = GetWindowTextA(editor, title, sizeof title);
    Selection font(dc, GetStockObject(SYSTEM_FONT));
    SIZE extent = {};
    if (GetTextExtentPoint32A(dc, title, length, &extent)) place.titleWidth = extent.cx;
  }
  return place;
}

}  // namespace

POINT titleBarButtonsOrigin(HWND editor, const TitleBarOptions& options) {
  WindowDc dc(editor, GetWindowDC(editor));
  const TitleBarPlace place = placeOf(editor, dc.get(), options);
  return POINT{titleBarButtonsLeft(place) - place.left, titleBarLook(options.newShell).top};
}

void paintTitleBarButtons(HWND editor, const TitleBarOptions& options) {
  const POINT origin = titleBarButtonsOrigin(editor, options);
  WindowDc dc(editor, GetWindowDC(editor));
  if (!dc.get()) return;
  const TitleBarLook& look = titleBarLook(options.newShell);
  int32_t x = origin.x;
  MemoryDc memory(CreateCompatibleDC(dc.get()));
  for (int32_t button = 0; button < kTitleBarButtons; ++button, x += look.buttonWidth) {
    GdiObject<HBITMAP> bitmap(LoadBitmapA(options.module, titleBarBitmap(button)));
    if (!bitmap.get() || !memory.get()) continue;
    Selection selected(memory.get(), bitmap.get());
    BitBlt(dc.get(), x, origin.y, look.buttonWidth, look.buttonHeight, memory.get(), 0, 0, SRCCOPY);
  }
}

int32_t hitTitleBarButton(HWND editor, const TitleBarOptions& options, POINT point, POINT* popup) {
  WindowDc dc(editor, GetWindowDC(editor));
  const TitleBarPlace place = placeOf(editor, dc.get(), options);
  ScreenPoint at = {};
  const int32_t button = hitTitleBarButton(place, GetSystemMetrics(SM_CYCAPTION), point.x, point.y, &at);
  if (button >= 0) *popup = POINT{at.x, at.y};
  return button;
}
