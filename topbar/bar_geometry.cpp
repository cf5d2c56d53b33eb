// The bar's placements as numbers.
#include "topbar/bar_geometry.h"

BarRect normalBarRect(const ScreenMetrics& screen, int32_t leftMargin, int32_t rightMargin) {
  BarRect rect;
  rect.x = leftMargin;
  rect.y = screen.newShell ? -2 : -2 - screen.menuHeight;
  rect.width = screen.screenWidth - leftMargin - rightMargin;
  rect.height = screen.menuHeight + 1 + (screen.newShell ? 0 : screen.captionHeight);
  return rect;
}

int32_t measureExpandedHeight(const ScreenMetrics& screen, int32_t normalHeight,
                              const std::function<int32_t(int32_t height)>& clientHeightAt) {
  int32_t height = normalHeight;
  int32_t client = clientHeightAt(height);
  while (client < 1 && height < screen.screenHeight - 80 && screen.menuHeight > 0) {
    height += screen.menuHeight;
    client = clientHeightAt(height);
  }
  return height - (client + 1);
}
