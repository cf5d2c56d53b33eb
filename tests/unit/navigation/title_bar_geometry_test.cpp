// Where the title-bar buttons stand in both looks and on both sides, and the
// edges of their hit area.
#include <gtest/gtest.h>

#include "navigation/title_bar_geometry.h"

namespace {

// An editor window from x 100 to 500, top 50, whose title is 120 pixels wide.
TitleBarPlace editorAt(bool newShell, bool leftSide, int32_t titleWidth = 120) {
  return TitleBarPlace{100, 50, 500, titleWidth, newShell, leftSide};
}

}  // namespace

TEST(TitleBarGeometryTest, ButtonsLeftEdgeByLookAndSide) {
  EXPECT_EQ(titleBarButtonsLeft(editorAt(true, false)), 500 - 58 - 72);
  EXPECT_EQ(titleBarButtonsLeft(editorAt(false, false)), 500 - 41 - 72);
  EXPECT_EQ(titleBarButtonsLeft(editorAt(false, true)), 123) << "the older look ignores the title";
  EXPECT_EQ(titleBarButtonsLeft(editorAt(true, true)), 100 + 120 + 23) << "just right of the title";
  EXPECT_EQ(titleBarButtonsLeft(editorAt(true, true, 900)), 370) << "a long title leaves them on the right";
}

TEST(TitleBarGeometryTest, HitsEachButtonAndPlacesItsPopup) {
  const TitleBarPlace place = editorAt(true, false);  // buttons from 370 to 442, y 54 to 71
  ScreenPoint popup{-1, -1};
  EXPECT_EQ(hitTitleBarButton(place, 20, 370, 54, &popup), 0);
  EXPECT_EQ(popup.x, 370 + 1 - 2);
  EXPECT_EQ(popup.y, 50 + 20 + 2 + 1);
  EXPECT_EQ(hitTitleBarButton(place, 20, 394, 60, &popup), 1);
  EXPECT_EQ(popup.x, 394 + 1 - 2);
  EXPECT_EQ(hitTitleBarButton(place, 20, 441, 71, &popup), 2);

  const TitleBarPlace older = editorAt(false, true);
  EXPECT_EQ(hitTitleBarButton(older, 18, 123 + 48, 60, &popup), 2);
  EXPECT_EQ(popup.x, 123 + 48 - 2);
  EXPECT_EQ(popup.y, 50 + 18 + 1);
}

TEST(TitleBarGeometryTest, MissesJustOutsideTheButtons) {
  const TitleBarPlace place = editorAt(true, false);
  ScreenPoint popup{-1, -1};
  EXPECT_EQ(hitTitleBarButton(place, 20, 380, 53, &popup), -1) << "above the top";
  EXPECT_EQ(hitTitleBarButton(place, 20, 380, 72, &popup), -1) << "at top + height";
  EXPECT_EQ(hitTitleBarButton(place, 20, 369, 60, &popup), -1) << "left of the first";
  EXPECT_EQ(hitTitleBarButton(place, 20, 442, 60, &popup), -1) << "a fourth button would start here";
  EXPECT_EQ(popup.x, -1) << "a miss leaves the popup position";
}

TEST(TitleBarGeometryTest, LooksAndBitmaps) {
  EXPECT_EQ(titleBarLook(true).popupYAdjust, 2);
  EXPECT_EQ(titleBarLook(false).popupXAdjust, 0);
  EXPECT_STREQ(titleBarBitmap(0), "BMPFUNC95");
  EXPECT_STREQ(titleBarBitmap(2), "BMPQKFIND95");
  EXPECT_EQ(titleBarBitmap(3), nullptr);
}
