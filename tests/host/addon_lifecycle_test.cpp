// The add-on loaded into this process as the IDE loads it: what it holds of the
// IDE while it runs, and that it gives all of it back.
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "addon_loader.h"
#include "foundation/settings.h"
#include "foundation/settings_registry_win32.h"

namespace {

const std::string kAddon = windowsPath(KESTO_ADDON_DLL);

// Reads a value as the add-on stored it in the prefix's registry.
bool readSetting(const std::string& section, const std::string& name, std::string* text = nullptr) {
  SettingsRegistry registry;
  std::string value;
  bool found = registry.read(std::string(SettingsStore::kAddOnRoot) + "\\" + section, name, 2000, &value);
  if (found && text) *text = value;
  return found;
}

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
    EXPECT_EQ(ide.project.references, 1) << "the project clients' registration holds it";
    EXPECT_EQ(ide.projectSave.references, 1);
    EXPECT_EQ(ide.make.references + ide.tools.references, 0) << "those are taken only while used";
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

TEST(AddonLifecycleTest, ShutdownWritesTheFeaturesSettingsBack) {
  MessageBoxWatchdog watchdog;
  RegDeleteTreeA(HKEY_LOCAL_MACHINE, SettingsStore::kAddOnRoot);
  TestIde ide;
  {
    LoadedAddon addon(kAddon);
    ASSERT_TRUE(addon.start(&ide));
    EXPECT_FALSE(readSetting("QuickFind", "FunctionMask")) << "starting reads, it never writes";
    addon.stop();
  }
  for (const auto& [section, name] : std::vector<std::pair<std::string, std::string>>{
           {"QuickFind", "FunctionMask"}, {"QuickFind", "KeyCross"}, {"Menus", "Size"}, {"Completion", "KeyCode"},
           {"Completion", "NbFiles"}, {"Mail", "Control"}, {"Tasks", "Types"}, {"Tasks", "AutoFlash"}})
    EXPECT_TRUE(readSetting(section, name)) << section << "/" << name;
  std::string size;
  ASSERT_TRUE(readSetting("Menus", "Size", &size));
  EXPECT_EQ(size, "50");
  EXPECT_TRUE(watchdog.boxes().empty());
}

TEST(AddonLifecycleTest, ProjectOptionsAreReadAtOpeningAndWrittenAtSaving) {
  MessageBoxWatchdog watchdog;
  TestIde ide;
  char folder[MAX_PATH];
  GetCurrentDirectoryA(sizeof folder, folder);
  ide.project.projectFile = std::string(folder) + "\\DEMO.IDE";
  ide.project.addNode(0, "demo.exe", "AppExpert");
  auto& stored = ide.nodeOptions.projectOptions;
  stored["Kesto_NB_MAIL"] = std::string("\x02\0\0\0", 4);
  stored["Kesto_MAIL_PJ_0"] = std::string("+ann@example.org\0", 17);
  stored["Kesto_MAIL_PJ_1"] = std::string("+\0", 2);
  stored["Kesto_HTMLAU"] = std::string("\x01\0", 2);
  {
    LoadedAddon addon(kAddon);
    ASSERT_TRUE(addon.start(&ide));
    ASSERT_EQ(ide.project.clients.size(), 1u);
    ASSERT_EQ(ide.projectSave.clients.size(), 1u);
    ide.project.clients[0]->ProjectOpened(nullptr);
    EXPECT_EQ(ide.make.clients.size(), 1u) << "the make client follows the open project";
    stored.clear();
    ide.projectSave.clients[0]->ProjectSaving();
    EXPECT_EQ(stored["Kesto_NB_MAIL"], std::string("\x01\0\0\0", 4)) << "the empty recipient is dropped";
    EXPECT_EQ(stored["Kesto_MAIL_PJ_0"], std::string("+ann@example.org\0", 17));
    EXPECT_EQ(stored["Kesto_HTMLAU"], std::string("\0\0\0\0", 4)) << "a stored integer of 2 bytes is ignored";
    EXPECT_EQ(stored["Kesto_HTMLFI"], std::string("~*.cpp;*.h\0", 11));
    EXPECT_EQ(stored.size(), 12u) << "every option once, no delivery group";
    ide.project.clients[0]->ProjectClosed();
    EXPECT_TRUE(ide.make.clients.empty());
    addon.stop();
  }
  EXPECT_TRUE(ide.project.clients.empty());
  EXPECT_TRUE(ide.projectSave.clients.empty());
  EXPECT_EQ(ide.referencesHeld(), 0);
  EXPECT_TRUE(watchdog.boxes().empty());
}
