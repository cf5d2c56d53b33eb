// A menu model becomes a Win32 menu item for item: texts, identifiers,
// separators, columns, states and submenus.
#include <gtest/gtest.h>

#include "win32/menu_model_win32.h"
#include "ui_driver.h"

TEST(MenuModelWin32Test, EveryKindOfItemArrives) {
  MenuModel model;
  model.items.push_back(MenuItem::command(1000, "main"));
  MenuItem frame = MenuItem::popup("Frame");
  frame.children.push_back(MenuItem::command(1001, "Paint"));
  MenuItem size = MenuItem::command(1002, "Size");
  size.columnBreak = true;
  frame.children.push_back(size);
  model.items.push_back(frame);
  model.items.push_back(MenuItem::separator());
  MenuItem checked = MenuItem::command(7, "Checked\tF5");
  checked.checked = true;
  checked.grayed = true;
  checked.columnBreak = true;
  model.items.push_back(checked);

  OwnedMenu menu = buildPopupMenu(model);
  ASSERT_NE(menu.get(), nullptr);
  EXPECT_EQ(describeWin32Menu(menu.get()), describeMenu(model));
  const UINT state = GetMenuState(menu.get(), 7, MF_BYCOMMAND);
  EXPECT_TRUE(state & MF_CHECKED);
  EXPECT_TRUE(state & MF_GRAYED);
}
