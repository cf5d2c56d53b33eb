// The registry backend reads the shared REGEDIT4 fixture, once the system's
// registry editor has imported it, as the file backend reads the file.
#include <gtest/gtest.h>

#include <windows.h>

#include <string>

#include "addon_loader.h"
#include "foundation/settings.h"
#include "foundation/settings_registry_win32.h"

TEST(SettingsRegistryTest, ReadsTheImportedFixture) {
  std::string command = "regedit.exe /s \"" + windowsPath(KESTO_TEST_DATA_DIR "/settings/fixture.reg") + "\"";
  STARTUPINFOA startup = {};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION process = {};
  ASSERT_TRUE(CreateProcessA(nullptr, &command[0], nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process))
      << command;
  ASSERT_EQ(WaitForSingleObject(process.hProcess, 60000), WAIT_OBJECT_0);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);

  SettingsRegistry registry;
  SettingsStore store;
  store.setBackend(&registry);
  std::string text;
  EXPECT_TRUE(store.readString("General", "TimerCount", &text, nullptr));
  EXPECT_EQ(text, "7");
  EXPECT_EQ(store.readInteger("General", "Unic", 0), -1);
  EXPECT_EQ(store.readInteger("TopBar", "NbIDE", 0), 2);
  EXPECT_EQ(store.readList("TopBar", "IDE"),
            (std::vector<std::string>{"C:\\PROJECTS\\DEMO\\DEMO.IDE", "C:\\Program Files\\Quote \"q\"\\X.IDE"}));
  EXPECT_TRUE(store.readString("QuickFind", "Recurse", &text, nullptr));
  EXPECT_EQ(text, "abc");
  EXPECT_EQ(store.readInteger("QuickFind", "Recurse", 1), 1) << "not a number: the default";
  EXPECT_EQ(store.readInteger("QuickFind", "Missing", 42), 42);
}
