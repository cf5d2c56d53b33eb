// Where the top bar sits: one menu row normally, every row of a wrapped menu bar while a menu is open.
#pragma once

#include <cstdint>
#include <functional>

#include "project/addon_startup.h"

struct ScreenMetrics {
  bool newShell = true;  // the Windows 95 look: a thin border instead of a caption
  int32_t screenWidth = 0;
  int32_t screenHeight = 0;
  int32_t menuHeight = 0;
  int32_t captionHeight = 0;
};

// Across the screen less the two margins, its caption (older look) above the top edge.
BarRect normalBarRect(const ScreenMetrics& screen, int32_t leftMargin, int32_t rightMargin);

// Grows the bar one menu height at a time from the normal height until the
// wrapped menu bar leaves a client area (clientHeightAt answers for a window
// of that height) or the height reaches the screen's less 80 pixels; the
// result is the height that shows every menu row and no client area.
int32_t measureExpandedHeight(const ScreenMetrics& screen, int32_t normalHeight,
                              const std::function<int32_t(int32_t height)>& clientHeightAt);
