// The title-bar buttons' geometry in both looks.
#include "navigation/title_bar_geometry.h"

#include <algorithm>

namespace {

constexpr int32_t kLeftSideInset = 23;

}  // namespace

const TitleBarLook& titleBarLook(bool newShell) {
  static const TitleBarLook kNewShell{58, 4, 24, 18, 2, 1};
  static const TitleBarLook kOlder{41, 4, 24, 18, 0, 0};
  return newShell ? kNewShell : kOlder;
}

const char* titleBarBitmap(int32_t button) {
  static const char* const kBitmaps[kTitleBarButtons] = {"BMPFUNC95", "BMPINC95", "BMPQKFIND95"};
  return button >= 0 && button < kTitleBarButtons ? kBitmaps[button] : nullptr;
}

int32_t titleBarButtonsLeft(const TitleBarPlace& place) {
  const TitleBarLook& look = titleBarLook(place.newShell);
  const int32_t rightSide = place.right - look.rightMargin - kTitleBarButtons * look.buttonWidth;
  if (!place.leftSide) return rightSide;
  if (!place.newShell) return place.left + kLeftSideInset;
  return std::min(rightSide, place.left + place.titleWidth + kLeftSideInset);
}

int32_t hitTitleBarButton(const TitleBarPlace& place, int32_t captionHeight, int32_t x, int32_t y,
                          ScreenPoint* popup) {
  const TitleBarLook& look = titleBarLook(place.newShell);
  const int32_t top = place.top + look.top;
  if (y < top || y >= top + look.buttonHeight) return -1;
  const int32_t left = titleBarButtonsLeft(place);
  if (x < left) return -1;
  const int32_t button = (x - left) / look.buttonWidth;
  if (button >= kTitleBarButtons) return -1;
  popup->x = left + button * look.buttonWidth + look.popupXAdjust - 2;
  popup->y = place.top + captionHeight + look.popupYAdjust + 1;
  return button;
}
