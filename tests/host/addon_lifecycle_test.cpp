// The add-on loaded into this process as the IDE loads it: what it holds of the
// IDE while it runs, and that it gives all of it back.
#include <gtest/gtest.h>

#include <string>

#include "addon_loader.h"

namespace {
const std::string kAddon = windowsPath(KESTO_ADDON_DLL);
}  // namespace

TEST(AddonLifecycleTest, HoldsItsServicesWhileRunningAndReturnsThemAll) {
  MessageBoxWatchdog watchdog;
  TestIde ide;
  {
    LoadedAddon addon(kAddon);
    ASSERT_TRUE(addon.start(&ide));
    EXPECT_EQ(ide.references, 2) << "the IDE's own reference and the add-on's";
    EXPECT_EQ(ide.editor.references, 1);
    EXPECT_EQ(ide.statusLine.references, 1);
    EXPECT_EQ(ide.nodeOptions.references, 1);
    EXPECT_EQ(ide.make.references + ide.project.references + ide.tools.references, 0)
        << "those are taken only while used";
    EXPECT_NE(FindWindowA("KADO", nullptr), nullptr);

    addon.stop();
    EXPECT_EQ(ide.referencesHeld(), 0);
    EXPECT_EQ(TestIde::liveStrings, 0);
    EXPECT_EQ(FindWindowA("KADO", nullptr), nullptr);
  }
  EXPECT_TRUE(watchdog.boxes().empty());
}

TEST(AddonLifecycleTest, MissingOptionsServiceFailsItsAssertionAndTheAddonGoesOn) {
  MessageBoxWatchdog watchdog;
  TestIde ide;
  ide.withhold(ide_iid::kNodeOptions);
  LoadedAddon addon(kAddon);
  ASSERT_TRUE(addon.start(&ide));
  EXPECT_EQ(watchdog.boxes(), std::vector<std::string>{"Erreur: Assertion failed: svr!=NULL, file koptions, line 13"});
  EXPECT_EQ(ide.editor.references, 1) << "the other services are held";
  addon.stop();
  EXPECT_EQ(ide.referencesHeld(), 0);
}
