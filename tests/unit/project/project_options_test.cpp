// Per-project options: defaults, the rules that accept a stored value, and the save order.
#include <gtest/gtest.h>

#include "project/project_options.h"
#include "support/fake_host.h"

TEST(ProjectOptionsTest, ProjectWithoutOptionsOpensWithDefaults) {
  MemoryOptionStore store;
  ProjectOptions options = readProjectOptions(store, 1);
  EXPECT_EQ(options.hierarchical, 1) << "taken from the registry's TopBar/Hierarchical";
  EXPECT_EQ(options.htmlEnabled, 1);
  EXPECT_EQ(options.htmlFilters, "*.cpp;*.h");
  EXPECT_EQ(options.withDelivery, 1);
  EXPECT_TRUE(options.deliveryGroups.empty());
  EXPECT_TRUE(options.mailRecipients.empty());
  EXPECT_EQ(options.groupwareServer, "");
}

TEST(ProjectOptionsTest, EmptyDeliveryEntriesAreSkipped) {
  MemoryOptionStore store;
  store.values["Kesto_NB_ODR"] = encodeIntegerOption(3);
  store.values["Kesto_ODR_TYP_0"] = encodeTextOption('+', "AppExpert");
  store.values["Kesto_ODR_REP_0"] = encodeTextOption('+', "/srv/apps");
  store.values["Kesto_ODR_TYP_1"] = encodeTextOption('+', "");
  store.values["Kesto_ODR_TYP_2"] = encodeTextOption('+', ".dll");
  ProjectOptions options = readProjectOptions(store, 0);
  ASSERT_EQ(options.deliveryGroups.size(), 2u);
  EXPECT_EQ(options.deliveryGroups[0].type, "AppExpert");
  EXPECT_EQ(options.deliveryGroups[0].directory, "/srv/apps");
  EXPECT_EQ(options.deliveryGroups[1].type, ".dll");
}

TEST(ProjectOptionsTest, IntegersNeedFourBytesAndTextsSkipTheirMarker) {
  MemoryOptionStore store;
  store.values["Kesto_HTMLEN"] = std::string("\0\0", 2);
  store.values["Kesto_EWindows"] = encodeIntegerOption(1);
  store.values["KestoGroupwareServer"] = encodeTextOption('~', "/srv/demo");
  store.values["Kesto_HTMLFI"] = "";
  ProjectOptions options = readProjectOptions(store, 0);
  EXPECT_EQ(options.htmlEnabled, 1);
  EXPECT_EQ(options.generateWindows, 1);
  EXPECT_EQ(options.groupwareServer, "/srv/demo");
  EXPECT_EQ(options.htmlFilters, "*.cpp;*.h") << "an empty stored text keeps the default";
}

TEST(ProjectOptionsTest, SaveWritesEveryOptionInItsOrderWithMarkers) {
  ProjectOptions options;
  options.deliveryGroups.push_back({".exe", "/srv/bin", 0});
  options.mailRecipients.push_back("ann@example.org");
  options.groupwareServer = "/srv/gw";
  MemoryOptionStore store;
  ASSERT_TRUE(writeProjectOptions(store, options));
  EXPECT_EQ(store.order, (std::vector<std::string>{
                             "Kesto_HIERARCH", "Kesto_HIDEWITHVIEW", "Kesto_WITHDELIVERY", "Kesto_NB_ODR",
                             "Kesto_ODR_TYP_0", "Kesto_ODR_REP_0", "Kesto_ODR_ACT_0", "Kesto_NB_MAIL", "Kesto_MAIL_PJ_0",
                             "KestoGroupwareServer", "Kesto_EWindows", "Kesto_GenRC", "Kesto_HTMLEN", "Kesto_HTMLAU",
                             "Kesto_HTMLFI"}));
  EXPECT_EQ(store.values["Kesto_ODR_REP_0"], std::string("+/srv/bin\0", 10));
  EXPECT_EQ(store.values["KestoGroupwareServer"], std::string("~/srv/gw\0", 9));
  EXPECT_EQ(store.values["Kesto_NB_ODR"], encodeIntegerOption(1));
  ProjectOptions again = readProjectOptions(store, 0);
  EXPECT_EQ(again.mailRecipients, options.mailRecipients);
  ASSERT_EQ(1u, again.deliveryGroups.size());
  EXPECT_EQ(0, again.deliveryGroups[0].active);
}
