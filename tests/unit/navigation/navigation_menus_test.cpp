// The navigation popups at the bounds of their identifier ranges: full, one
// entry over and far over, where an identifier past the range would reach
// another feature of the bar.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "navigation/navigation_menus.h"
#include "navigation/quick_resu.h"

namespace {

uint32_t highestId(const std::vector<MenuItem>& items) {
  uint32_t highest = 0;
  for (const MenuItem& item : items) highest = std::max({highest, item.id, highestId(item.children)});
  return highest;
}

// The popup ends with its range's last identifier, then counts the rest on a
// grayed item that is no command.
void expectCapped(const MenuModel& menu, const CommandRange& range, int32_t rest) {
  EXPECT_EQ(highestId(menu.items), range.last);
  const MenuItem& last = menu.items.back();
  if (rest == 0) {
    EXPECT_FALSE(last.grayed);
    return;
  }
  EXPECT_EQ(last.id, 0u);
  EXPECT_TRUE(last.grayed);
  EXPECT_EQ(last.text, "... " + std::to_string(rest) + " more");
}

}  // namespace

TEST(NavigationMenusTest, PopupsStopAtTheLastIdentifierOfTheirRangeAndCountTheRest) {
  for (const int32_t rest : {0, 1, 31869}) {
    SCOPED_TRACE(rest);
    Tableau<String> includes;
    for (int32_t i = 0; i < kIncludeCommands.size() + rest; ++i) includes.append(new String("h.h"));
    const MenuModel includesPopup = includesMenu(includes);
    expectCapped(includesPopup, kIncludeCommands, rest);
    EXPECT_EQ(includesPopup.items.size(), static_cast<size_t>(kIncludeCommands.size() + (rest ? 1 : 0)));

    Tableau<QuickResu> results;
    for (int32_t i = 0; i < kQuickFindResultCommands.size() + rest; ++i)
      results.append(new QuickResu(i + 1, "a.cpp", "View::Paint"));
    expectCapped(resultsMenu(results), kQuickFindResultCommands, rest);

    // The range ends inside a class: its submenu closes there and the count
    // follows it in the main popup, at the column it falls in.
    Tableau<Fnc> functions;
    for (int32_t i = 0; i < kFunctionCommands.size() - 1; ++i) functions.append(new Fnc("f", "", i + 1));
    for (int32_t i = 0; i <= rest; ++i) functions.append(new Fnc("Paint", "View", 1));
    const MenuModel functionsPopup = functionsMenu(functions, 50);
    expectCapped(functionsPopup, kFunctionCommands, rest);
    const MenuItem& view = functionsPopup.items[kFunctionCommands.size() - 1];
    EXPECT_EQ(view.text, "View");
    ASSERT_EQ(view.children.size(), 1u);
    EXPECT_EQ(view.children[0].id, kFunctionCommands.last);
    EXPECT_EQ(functionsPopup.items.back().columnBreak, rest != 0) << "item 9000 starts column 181";
  }
}
