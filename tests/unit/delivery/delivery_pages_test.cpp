// The delivery and mail options pages.
#include <gtest/gtest.h>

#include "delivery/delivery_page.h"
#include "delivery/mail_option_page.h"
#include "support/page_control.h"

TEST(DeliveryPageTest, GroupsFollowTheDeliveryNodeAndTheirDirectoriesReachTheProject) {
  ProjectNode root{"app.exe", "AppExpert", "", "", "", {}};
  root.nodes.push_back({"DELIVERY", "SourcePool", "", "", "", {{"app.exe", ".exe", "", "", "", {}},
                                                               {"app.hlp", ".hlp", "", "", "", {}}}});
  Tableau<OneDelRep> groups;
  ProjectOptions project;
  project.deliveryGroups = {{".exe", "c:\\bin", 1}, {".old", "c:\\gone", 1}};
  loadDeliveryGroups(groups, project);
  DeliveryPage page(groups, &project, &root);
  page.show();
  EXPECT_EQ(*bound(page, 1011).rows, (std::vector<std::string>{".exe -> c:\\bin", ".hlp -> "}));
  *bound(page, 1011).selected = 1;
  page.setSelectedGroup(std::string(300, 'd'), false);
  *bound(page, 1010).value = 0;
  page.store();
  ASSERT_EQ(project.deliveryGroups.size(), 2u);
  EXPECT_EQ(project.deliveryGroups[1].directory.size(), DeliveryPage::kMaxDirectoryLength);
  EXPECT_EQ(project.deliveryGroups[1].active, 0);
  EXPECT_EQ(project.withDelivery, 0);
  EXPECT_FALSE(page.toolEnabled());
}

TEST(DeliveryPageTest, WithoutAProjectThePageIsDisabledAndStoresNothing) {
  Tableau<OneDelRep> groups;
  DeliveryPage delivery(groups, nullptr, nullptr);
  delivery.show();
  EXPECT_FALSE(delivery.enabled(1010));
  delivery.store();
  EXPECT_EQ(groups.count(), 0);
}

TEST(MailOptionPageTest, ListCommandsNeedAProjectAndPasteACopiedList) {
  Mail mail;
  mail.setRecipients({"ann"});
  static bool open = false;
  MailOptionPage page(mail, [] { return open; });
  page.show();
  EXPECT_FALSE(page.enabled(1011));
  EXPECT_TRUE(page.enabled(1010));
  open = true;
  page.show();
  EXPECT_TRUE(page.enabled(1013));
  EXPECT_FALSE(page.enabled(1016)) << "nothing copied yet";
  page.changed(1015);
  EXPECT_TRUE(page.enabled(1016));
  *bound(page, 1012).text = "bob";
  page.changed(1012);
  EXPECT_EQ(*bound(page, 1011).rows, std::vector<std::string>{"bob"});
  EXPECT_TRUE(page.modified);
  page.store();
  EXPECT_EQ(mail.recipientTexts(), std::vector<std::string>{"bob"});
}
