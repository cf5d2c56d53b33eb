// The top bar in the IDE: its menus in both constructions, expansion while a
// menu is open, the status texts, the recent projects across two loads, the
// recent headers, the project-file commands and the help command.
#include <gtest/gtest.h>

#include <string>

#include "addon_loader.h"
#include "fake_help_viewer.h"
#include "foundation/settings.h"
#include "foundation/settings_registry_win32.h"
#include "topbar/bar_commands.h"
#include "ui_driver.h"

namespace {

const std::string kAddon = windowsPath(KESTO_ADDON_DLL);
const std::string kProject = windowsPath(KESTO_HOST_WORK_DIR) + "\\BIG.IDE";

int countLines(const std::string& text, const std::string& line) {
  int count = 0;
  for (size_t at = text.find(line); at != std::string::npos; at = text.find(line, at + 1)) ++count;
  return count;
}

int barHeight() {
  RECT rect;
  GetWindowRect(FindWindowA("KADO", nullptr), &rect);
  return rect.bottom - rect.top;
}

std::string barMenu() { return describeWin32Menu(GetMenu(FindWindowA("KADO", nullptr))); }

class TopBarTest : public ::testing::Test {
 protected:
  void SetUp() override {
    RegDeleteTreeA(HKEY_LOCAL_MACHINE, SettingsStore::kAddOnRoot);
    ide_.project.projectFile = kProject;
    const IdeHandle top = ide_.project.addNode(0, "big.ide", ".ide");
    const IdeHandle target = ide_.project.addNode(top, "c:\\big\\big.exe", ".exe");
    for (int i = 0; i < 120; ++i) ide_.project.addNode(target, "file" + std::to_string(i) + ".cpp", ".cpp");
    const IdeHandle library = ide_.project.addNode(target, "util.lib", ".lib");
    ide_.project.addNode(library, "util.cpp", ".cpp");
  }

  // Tracks the bar's menu number index as a popup, with a screenshot of it.
  void showBarMenu(int index, const std::string& screenshot) {
    ModalDriver driver;
    driver.menuScreenshot = screenshot;
    TrackPopupMenu(GetSubMenu(GetMenu(FindWindowA("KADO", nullptr)), index), TPM_LEFTALIGN, 40, 30, 0,
                   FindWindowA("KADO", nullptr), nullptr);
  }

  TestIde ide_;
};

TEST_F(TopBarTest, MenusFollowTheProjectInBothConstructions) {
  MessageBoxWatchdog watchdog;
  LoadedAddon addon(kAddon);
  ASSERT_TRUE(addon.start(&ide_));
  pumpMessages(200);
  EXPECT_EQ(barMenu(), "Kesto\n  Last Includes\n  -\n  199 Options...\n  196 Help...\n")
      << "without a project only the Kesto menu, once the start-up menu is replaced";

  ide_.project.clients[0]->ProjectOpened(nullptr);
  std::string linear = barMenu();
  EXPECT_NE(linear.find("  300 run big.exe\n"), std::string::npos) << linear;
  EXPECT_NE(linear.find("\nbig.exe\n  10000 file0.cpp\n"), std::string::npos) << linear;
  EXPECT_NE(linear.find("\nutil.lib\n  10120 util.cpp\n"), std::string::npos) << "a nested target on the bar";
  EXPECT_EQ(countLines(linear, "\n  --\n"), 2) << "120 files in columns of 50, 50 and 20";
  showBarMenu(1, "top-bar-linear-files");

  ide_.project.clients[0]->ProjectClosed();
  ide_.nodeOptions.projectOptions["Kesto_HIERARCH"] = std::string("\x01\0\0\0", 4);
  ide_.project.clients[0]->ProjectOpened(nullptr);
  std::string nested = barMenu();
  EXPECT_NE(nested.find("\nbig.exe\n  10000 file0.cpp\n"), std::string::npos) << nested;
  EXPECT_NE(nested.find("\n  util.lib\n    10120 util.cpp\n"), std::string::npos) << "nested in its parent";
  EXPECT_EQ(nested.find("\nutil.lib"), std::string::npos);
  showBarMenu(1, "top-bar-hierarchical-files");

  // A renamed node keeps its item, under its new name.
  ide_.project.nodes[2].name = "renamed.cpp";
  ide_.project.clients[0]->NodeChanged(3);
  EXPECT_NE(barMenu().find("\nbig.exe\n  10000 renamed.cpp\n"), std::string::npos) << barMenu();

  // The status line names the highlighted item.
  const size_t before = ide_.statusLine.texts.size();
  SendMessageA(FindWindowA("KADO", nullptr), WM_MENUSELECT, MAKEWPARAM(10001, MF_STRING), 0);
  ASSERT_GT(ide_.statusLine.texts.size(), before);
  EXPECT_EQ(ide_.statusLine.texts.back(), "Open file1.cpp");

  ide_.project.clients[0]->ProjectClosed();
  addon.stop();
  EXPECT_TRUE(watchdog.boxes().empty());
}

TEST_F(TopBarTest, EditorsOfHeadersEnterTheHeaderMenuAndASecondViewOfAFileCloses) {
  MessageBoxWatchdog watchdog;
  LoadedAddon addon(kAddon);
  ASSERT_TRUE(addon.start(&ide_));
  pumpMessages(200);
  HWND bar = FindWindowA("KADO", nullptr);
  HWND first = ide_.windows.openEditor("C:\\INC\\ONE.H");
  ide_.windows.openEditor("C:\\SRC\\MAIN.CPP");
  ide_.windows.openEditor("c:\\inc\\two.h");
  pumpMessages(200);
  EXPECT_EQ(barMenu().rfind("Kesto\n  Last Includes\n    400 c:\\inc\\two.h\n    401 C:\\INC\\ONE.H\n  -\n", 0), 0u)
      << "headers only, newest first, under their whole paths: " << barMenu();

  HWND second = ide_.windows.openEditor("c:\\inc\\one.h:2");
  pumpMessages(200);
  EXPECT_FALSE(IsWindow(second)) << "another editor shows the file";
  EXPECT_TRUE(IsWindow(first));
  EXPECT_NE(barMenu().find("400 c:\\inc\\two.h\n"), std::string::npos) << "the closed view records nothing";

  // The refresh names what it misses on the status line.
  HMENU menu = GetMenu(bar);
  SetMenu(bar, nullptr);
  ide_.windows.openEditor("C:\\INC\\THREE.H");
  pumpMessages(200);
  ASSERT_FALSE(ide_.statusLine.texts.empty());
  EXPECT_EQ(ide_.statusLine.texts.back(), "Pas de bar");
  SetMenu(bar, menu);
  sendBarCommand(kRebuildMenuCommand);
  EXPECT_EQ(barMenu().rfind("Kesto\n  Last Includes\n    400 THREE.H\n    401 two.h\n    402 ONE.H\n", 0), 0u)
      << "a rebuild shows file names: " << barMenu();
  addon.stop();
  EXPECT_TRUE(watchdog.boxes().empty());
}

TEST_F(TopBarTest, HelpOpensTheContentsOfTheAddOnsHelpFile) {
  FakeHelpViewer viewer;
  LoadedAddon addon(kAddon);
  ASSERT_TRUE(addon.start(&ide_));
  SendMessageA(FindWindowA("KADO", nullptr), WM_COMMAND, 196, 0);
  addon.stop();
  std::string helpFile = kAddon.substr(0, kAddon.size() - 3) + "hlp";
  ASSERT_EQ(viewer.heard().size(), 2u) << "the contents, then the viewer closed with the add-on";
  EXPECT_EQ(viewer.heard()[0].command, static_cast<unsigned>(HELP_CONTENTS));
  EXPECT_EQ(_stricmp(viewer.heard()[0].file.c_str(), helpFile.c_str()), 0) << viewer.heard()[0].file;
  EXPECT_EQ(viewer.heard()[1].command, static_cast<unsigned>(HELP_QUIT));
}

TEST_F(TopBarTest, ControlOnAProjectFileAsksAndRemovesItFromTheProject) {
  MessageBoxWatchdog watchdog;
  LoadedAddon addon(kAddon);
  ASSERT_TRUE(addon.start(&ide_));
  ide_.project.clients[0]->ProjectOpened(nullptr);
  HWND bar = FindWindowA("KADO", nullptr);
  BYTE keys[256];
  GetKeyboardState(keys);
  keys[VK_CONTROL] = 0x80;
  SetKeyboardState(keys);
  SendMessageA(bar, WM_COMMAND, 10001, 0);
  keys[VK_CONTROL] = 0;
  SetKeyboardState(keys);
  ASSERT_EQ(watchdog.boxes().size(), 1u);
  EXPECT_EQ(watchdog.boxes()[0], "Confirmation: Okay to remove\nfile1.cpp ?");
  EXPECT_TRUE(ide_.project.nodes[3].removed) << "answered Yes";
  EXPECT_NE(barMenu().find("\n  10001 file2.cpp\n"), std::string::npos) << barMenu();

  SendMessageA(bar, WM_COMMAND, 10001, 0);
  ASSERT_FALSE(ide_.tools.runs.empty());
  EXPECT_EQ(ide_.tools.runs.back().file.substr(ide_.tools.runs.back().file.size() - 10), "\\file2.cpp")
      << "without a key the file opens";
  const size_t runs = ide_.tools.runs.size();
  ide_.project.nodes[4].removed = true;  // gone from the IDE, not yet from the menu
  SendMessageA(bar, WM_COMMAND, 10001, 0);
  ASSERT_FALSE(ide_.statusLine.texts.empty());
  EXPECT_EQ(ide_.statusLine.texts.back(), "Internal error: bad file");
  EXPECT_EQ(ide_.tools.runs.size(), runs);
  ide_.project.clients[0]->ProjectClosed();
  addon.stop();
}

TEST_F(TopBarTest, ControlAltOpensAResourceScriptAsTextAndOtherFilesAsUsual) {
  ide_.project.addNode(2, "app.rc", ".rc");
  MessageBoxWatchdog watchdog;
  LoadedAddon addon(kAddon);
  ASSERT_TRUE(addon.start(&ide_));
  ide_.project.clients[0]->ProjectOpened(nullptr);
  const std::string menu = barMenu();
  const size_t item = menu.rfind('\n', menu.find(" app.rc\n"));
  ASSERT_NE(item, std::string::npos) << menu;
  const UINT script = static_cast<UINT>(std::stoul(menu.substr(item + 1)));
  HWND bar = FindWindowA("KADO", nullptr);
  auto open = [&](UINT id, bool controlAlt) {
    BYTE keys[256];
    GetKeyboardState(keys);
    keys[VK_CONTROL] = keys[VK_MENU] = controlAlt ? 0x80 : 0;
    SetKeyboardState(keys);
    SendMessageA(bar, WM_COMMAND, id, 0);
    keys[VK_CONTROL] = keys[VK_MENU] = 0;
    SetKeyboardState(keys);
    return ide_.tools.runs.empty() ? std::string() : ide_.tools.runs.back().tool;
  };
  EXPECT_EQ(open(script, false), "EditResource");
  EXPECT_EQ(open(script, true), "EditText");
  EXPECT_EQ(ide_.tools.runs.back().file.substr(ide_.tools.runs.back().file.size() - 7), "\\app.rc");
  EXPECT_EQ(open(10000, true), "EditText") << "a text file has one form";
  EXPECT_EQ(ide_.tools.runs.size(), 3u);
  ide_.project.clients[0]->ProjectClosed();
  addon.stop();
  EXPECT_TRUE(watchdog.boxes().empty()) << "neither removed nor added";
}

TEST_F(TopBarTest, ExpandsToEveryRowWhileAMenuIsOpenAndRemembersProjectsAcrossLoads) {
  MessageBoxWatchdog watchdog;
  // Many targets wrap the menu bar on several rows.
  const IdeHandle top = 1;
  for (int i = 0; i < 30; ++i) {
    const IdeHandle target = ide_.project.addNode(top, "target-number-" + std::to_string(i) + ".dll", ".dll");
    ide_.project.addNode(target, "part" + std::to_string(i) + ".cpp", ".cpp");
  }
  {
    LoadedAddon addon(kAddon);
    ASSERT_TRUE(addon.start(&ide_));
    ide_.project.clients[0]->ProjectOpened(nullptr);
    const int normal = barHeight();
    SendMessageA(FindWindowA("KADO", nullptr), WM_INITMENU, reinterpret_cast<WPARAM>(GetMenu(FindWindowA("KADO", nullptr))), 0);
    const int expanded = barHeight();
    EXPECT_GE(expanded, normal + 2 * GetSystemMetrics(SM_CYMENU)) << "every row of the wrapped bar shows";
    saveScreenshot("top-bar-expanded");
    SendMessageA(FindWindowA("KADO", nullptr), WM_COMMAND, 103, 0);
    EXPECT_EQ(barHeight(), normal) << "a command collapses the bar";
    saveScreenshot("top-bar-collapsed");
    ide_.project.clients[0]->ProjectClosed();
    addon.stop();
  }
  TestIde again;
  {
    LoadedAddon addon(kAddon);
    ASSERT_TRUE(addon.start(&again));
    pumpMessages(200);
    EXPECT_EQ(barMenu().rfind("Kesto\n  200 BIG.IDE\n  -\n", 0), 0u) << barMenu();
    addon.stop();
  }
  EXPECT_TRUE(watchdog.boxes().empty());
}

}  // namespace
