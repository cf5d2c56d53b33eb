// The top bar's options page.
#include <gtest/gtest.h>

#include "support/page_control.h"
#include "topbar/top_bar_page.h"

TEST(TopBarPageTest, OutOfRangeValuesAreToldButTakenAndTheListsAreCut) {
  TopBarSettings settings = TopBarSettings();
  RecentFiles recent;
  recent.projects = {"a.ide", "b.ide", "c.ide", "d.ide"};
  ProjectOptions project;
  TopBarPage page(settings, recent, &project);
  page.show();
  *bound(page, 1011).value = -3000;
  *bound(page, 1021).value = 5;
  *bound(page, 1022).value = 2;
  *bound(page, 1015).value = 1;  // the hierarchical radio
  EXPECT_TRUE(page.check());
  EXPECT_EQ(page.checkText(),
            "Left margin must be between -2048 and 2048.\nMaximum number of .IDE must be between 3 and 50.\n"
            "Menu size must be between 10 and 99.\n");
  page.store();
  EXPECT_EQ(settings.leftMargin, -3000);
  EXPECT_EQ(settings.menuSize, 5);
  EXPECT_EQ(recent.projects, (std::vector<std::string>{"a.ide", "b.ide"}));
  EXPECT_EQ(project.hierarchical, 1) << "the open project keeps its own construction";
  EXPECT_TRUE(page.changes().margins);
  EXPECT_FALSE(page.changes().enabled);
  EXPECT_FALSE(page.changes().alwaysOnTop);
}
