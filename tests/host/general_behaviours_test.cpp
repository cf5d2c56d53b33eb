// The add-on's conveniences on the IDE's own windows, each with its "General"
// switch on and off: the message window cleared when a Make starts, the project
// and message windows closed during the Make and put back where they were, the
// compile status box minimised meanwhile, the project window shown when a
// project opens, and the auto-save of modified editors.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "addon_loader.h"
#include "foundation/settings.h"
#include "ui_driver.h"

namespace {

const std::string kAddon = windowsPath(KESTO_ADDON_DLL);

bool placedAlike(const RECT& a, const RECT& b) {
  return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
}

class GeneralBehavioursTest : public ::testing::Test {
 protected:
  void SetUp() override {
    RegDeleteTreeA(HKEY_LOCAL_MACHINE, SettingsStore::kAddOnRoot);
    ide_.project.projectFile = windowsPath(KESTO_HOST_WORK_DIR) + "\\DEMO.IDE";
    ide_.project.addNode(ide_.project.addNode(0, "demo.ide", ".ide"), "demo.exe", ".exe");
  }
  void TearDown() override {
    if (addon_) stop();
    EXPECT_TRUE(watchdog_.boxes().empty());
  }

  // The add-on started with the "General" switches as they are now, and a project open.
  void start() {
    addon_ = std::make_unique<LoadedAddon>(kAddon);
    ASSERT_TRUE(addon_->start(&ide_));
    ide_.project.clients[0]->ProjectOpened(nullptr);
    pumpMessages(100);
  }
  // The add-on writes its switches back as it stops: set them anew after this.
  void stop() {
    ide_.project.clients[0]->ProjectClosed();
    addon_->stop();
    addon_.reset();
  }

  bool frameGot(WPARAM command) const {
    const auto& commands = ide_.windows.frameCommands;
    return std::find(commands.begin(), commands.end(), command) != commands.end();
  }

  MessageBoxWatchdog watchdog_;
  TestIde ide_;
  std::unique_ptr<LoadedAddon> addon_;
};

TEST_F(GeneralBehavioursTest, AMakeShowsTheFirstTabOfAnEmptiedMessageList) {
  putAddonSetting("General", "CloseOnMake", "0");  // the message window stays to be seen
  start();
  HWND tabs = FindWindowExA(FindWindowExA(ide_.windows.documentWindow("BCW5Message"), nullptr, "OWL_Window", nullptr),
                            nullptr, "OWL_NoteTab", nullptr);
  auto fillMessages = [&] {
    ide_.windows.addMessageRow("Compiling DEMO.CPP:");
    ide_.windows.addMessageRow("Error demo.cpp 12: Undefined symbol 'x'");
    SendMessageA(tabs, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(150, 11));
    SendMessageA(tabs, WM_LBUTTONUP, 0, MAKELPARAM(150, 11));
    ASSERT_EQ(ide_.windows.messageTab(), 2);
  };
  fillMessages();
  pumpMessages(100);
  saveScreenshot("make-message-window-before");
  ide_.make.fireMakeStarted();
  pumpMessages(100);
  EXPECT_TRUE(frameGot(13252)) << "the message window is shown first";
  EXPECT_EQ(ide_.windows.messageTab(), 0);
  EXPECT_TRUE(ide_.windows.messageRows().empty());
  saveScreenshot("make-message-window-cleared");
  ide_.make.fireMakeEnded();
  stop();

  putAddonSetting("General", "ClearOnMake", "0");
  start();
  fillMessages();
  ide_.windows.frameCommands.clear();
  ide_.make.fireMakeStarted();
  EXPECT_FALSE(frameGot(13252));
  EXPECT_EQ(ide_.windows.messageTab(), 2) << "switched off";
  EXPECT_EQ(ide_.windows.messageRows().size(), 2u);
  ide_.make.fireMakeEnded();
}

TEST_F(GeneralBehavioursTest, AMakeClosesTheProjectAndMessageWindowsAndPutsThemBackWhereTheyWere) {
  start();
  auto placeOf = [&](const char* windowClass) {
    RECT rect{};
    GetWindowRect(ide_.windows.documentWindow(windowClass), &rect);
    return rect;
  };
  MoveWindow(ide_.windows.documentWindow("BCW5Project"), 30, 40, 300, 200, TRUE);
  const RECT projectBefore = placeOf("BCW5Project");
  const RECT messagesBefore = placeOf("BCW5Message");
  ide_.make.fireMakeStarted();
  pumpMessages(100);
  EXPECT_EQ(ide_.windows.documentWindow("BCW5Project"), nullptr);
  EXPECT_EQ(ide_.windows.documentWindow("BCW5Message"), nullptr);
  ide_.make.fireMakeEnded();
  pumpMessages(100);
  ASSERT_NE(ide_.windows.documentWindow("BCW5Project"), nullptr);
  ASSERT_NE(ide_.windows.documentWindow("BCW5Message"), nullptr);
  EXPECT_TRUE(placedAlike(placeOf("BCW5Project"), projectBefore));
  EXPECT_TRUE(placedAlike(placeOf("BCW5Message"), messagesBefore));
}

TEST_F(GeneralBehavioursTest, TheCompileStatusBoxIsMinimisedWhileTheMakeRunsWhereverItIs) {
  start();
  for (const bool inDocumentArea : {true, false}) {
    HWND box = ide_.windows.openCompileStatus(inDocumentArea);
    RECT before;
    GetWindowRect(box, &before);
    pumpMessages(100);
    if (!inDocumentArea) saveScreenshot("make-status-box-before");
    ide_.make.fireMakeStarted();
    pumpMessages(100);
    EXPECT_TRUE(IsIconic(box)) << (inDocumentArea ? "in the document area" : "a top-level box");
    saveScreenshot(inDocumentArea ? "make-status-box-minimised-inside" : "make-status-box-minimised");
    ide_.make.fireMakeEnded();
    pumpMessages(100);
    EXPECT_FALSE(IsIconic(box));
    RECT after;
    GetWindowRect(box, &after);
    EXPECT_TRUE(placedAlike(before, after)) << "restored where it was";
    DestroyWindow(box);
  }
  stop();

  putAddonSetting("General", "IconizeStatusOnMake", "0");
  start();
  HWND box = ide_.windows.openCompileStatus(false);
  ide_.make.fireMakeStarted();
  EXPECT_FALSE(IsIconic(box)) << "switched off";
  ide_.make.fireMakeEnded();
  DestroyWindow(box);
}

TEST_F(GeneralBehavioursTest, OpeningAProjectShowsTheProjectWindowWhenAskedAndTheFrameIsEnabled) {
  auto closeProjectWindow = [&] {
    SendMessageA(ide_.windows.documents, WM_MDIDESTROY,
                 reinterpret_cast<WPARAM>(ide_.windows.documentWindow("BCW5Project")), 0);
    ASSERT_EQ(ide_.windows.documentWindow("BCW5Project"), nullptr);
  };
  closeProjectWindow();
  start();
  EXPECT_EQ(ide_.windows.documentWindow("BCW5Project"), nullptr) << "off by default";
  stop();

  putAddonSetting("General", "ViewOnOpen", "1");
  start();
  EXPECT_NE(ide_.windows.documentWindow("BCW5Project"), nullptr);
  saveScreenshot("project-window-shown-on-open");
  ide_.project.clients[0]->ProjectClosed();
  closeProjectWindow();
  // A modal dialog of the IDE is up: its frame is disabled.
  EnableWindow(ide_.windows.frame, FALSE);
  ide_.project.clients[0]->ProjectOpened(nullptr);
  pumpMessages(100);
  EnableWindow(ide_.windows.frame, TRUE);
  EXPECT_EQ(ide_.windows.documentWindow("BCW5Project"), nullptr);
}

TEST_F(GeneralBehavioursTest, ModifiedEditorsAreSavedOnTheThreeHundredthTick) {
  start();
  const IdeHandle view = ide_.openFile("C:\\DEMO\\FILE1.CPP", "int x;\n");
  ide_.editor.buffers[view].modified = true;
  HWND bar = FindWindowA("KADO", nullptr);
  for (int tick = 1; tick < 300; ++tick) SendMessageA(bar, WM_TIMER, 1, 0);
  EXPECT_EQ(ide_.editor.buffers[view].modified, true) << "nothing before the 300th tick";
  SendMessageA(bar, WM_TIMER, 1, 0);
  EXPECT_FALSE(ide_.editor.buffers[view].modified);
  EXPECT_EQ(ide_.statusLine.texts.back(), "Auto-save (5 min) : C:\\DEMO\\FILE1.CPP.");
}

}  // namespace
