// The groupware options page.
#include <gtest/gtest.h>

#include "groupware/groupware_page.h"
#include "support/page_control.h"

TEST(GroupwarePageTest, WithoutAProjectTheServerDirectoryIsDisabledAndNotTaken) {
  GroupwareSettings groupwareSettings;
  GroupwarePage groupware(groupwareSettings, nullptr);
  groupware.show();
  EXPECT_TRUE(groupware.enabled(1013));
  EXPECT_FALSE(groupware.enabled(GroupwarePage::kServerEdit));
  *bound(groupware, GroupwarePage::kServerEdit).text = "\\\\server";
  groupware.store();
  EXPECT_EQ(groupwareSettings.server.str(), "") << "no project to take a server directory";
}
