// The add-on loaded into this process, driven through the test IDE's windows:
// the title-bar popups, what choosing in them does, the buttons moved to the
// right side by the editor options page, QuickFind through a selection and
// through its dialog, and the cross reference in the message window.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <string>
#include <vector>

#include "addon_loader.h"
#include "foundation/settings.h"
#include "foundation/settings_registry_win32.h"
#include "ide/addon_environment_win32.h"
#include "navigation/title_bar_geometry.h"
#include "navigation/title_bar_win32.h"
#include "options_dialog.h"
#include "ui_driver.h"

namespace {

const std::string kAddon = windowsPath(KESTO_ADDON_DLL);
const std::string kWork = windowsPath(KESTO_HOST_WORK_DIR) + "\\navigation";

const char kFrameSource[] =
    "#include \"frame.h\"\n"
    "#include <other.h>\n"
    "\n"
    "void Frame::Paint(HDC dc)\n"
    "{\n"
    "  Draw(dc);\n"
    "}\n"
    "\n"
    "int Frame::Size(void)\n"
    "{\n"
    "  return Paint(0);\n"
    "}\n"
    "\n"
    "void View::Paint(HDC dc)\n"
    "{\n"
    "}\n"
    "\n"
    "int main(void)\n"
    "{\n"
    "  return 0;\n"
    "}\n";

void writeFile(const std::string& path, const std::string& text) {
  std::ofstream out(path, std::ios::binary);
  out << text;
}

void setSetting(const std::string& section, const std::string& name, const std::string& value) {
  SettingsRegistry().write(std::string(SettingsStore::kAddOnRoot) + "\\" + section, name, value);
}

std::string readSetting(const std::string& section, const std::string& name) {
  std::string value;
  SettingsRegistry().read(std::string(SettingsStore::kAddOnRoot) + "\\" + section, name, 2000, &value);
  return value;
}

std::string upper(std::string text) {
  for (char& c : text) c = static_cast<char>(toupper(static_cast<unsigned char>(c)));
  return text;
}

class TitleBarTest : public ::testing::Test {
 protected:
  void SetUp() override {
    RegDeleteTreeA(HKEY_LOCAL_MACHINE, SettingsStore::kAddOnRoot);
    CreateDirectoryA(windowsPath(KESTO_HOST_WORK_DIR).c_str(), nullptr);
    CreateDirectoryA(kWork.c_str(), nullptr);
    CreateDirectoryA((kWork + "\\inc").c_str(), nullptr);
    writeFile(kWork + "\\frame.cpp", kFrameSource);
    writeFile(kWork + "\\inc\\frame.h", "// the frame\nclass Frame : public Window\n{\n};\n");
    GetCurrentDirectoryA(sizeof previousDirectory_, previousDirectory_);
    SetCurrentDirectoryA(kWork.c_str());
    AddonEnvironment environment;
    probeEnvironment(&environment);
    newShell_ = environment.newShell != 0;
  }
  void TearDown() override {
    if (running_) stop();  // a failed assertion left early
    addon_.reset();
    SetCurrentDirectoryA(previousDirectory_);
    EXPECT_EQ(ide_.referencesHeld(), 0);
  }

  void start() {
    addon_ = std::make_unique<LoadedAddon>(kAddon);
    ASSERT_TRUE(addon_->start(&ide_));
    running_ = true;
  }
  void stop() {
    addon_->stop();
    running_ = false;
  }

  // The source file open in an editor, its buttons painted.
  HWND openFrameSource() {
    ide_.openFile(kWork + "\\frame.cpp", kFrameSource);
    HWND editor = ide_.editor.buffers.rbegin()->second.window;
    pumpMessages(300);
    return editor;
  }

  // The middle of a title-bar button, where the add-on painted it.
  POINT buttonPoint(HWND editor, int button) {
    const bool leftSide = readSetting("QuickFind", "LeftSide") != "0";
    RECT place = {};
    GetWindowRect(editor, &place);
    const POINT origin = titleBarButtonsOrigin(editor, {addon_->module(), newShell_, leftSide});
    return POINT{place.left + origin.x + button * 24 + 12, place.top + origin.y + 9};
  }

  // How many pixels of the three buttons the editor's title bar shows on that side.
  int buttonPixelsShown(HWND editor, bool leftSide) {
    const POINT origin = titleBarButtonsOrigin(editor, {addon_->module(), newShell_, leftSide});
    int shown = 0;
    for (int32_t button = 0; button < kTitleBarButtons; ++button)
      shown += bitmapPixelsShown(editor, addon_->module(), titleBarBitmap(button),
                                 POINT{origin.x + button * 24, origin.y});
    return shown;
  }

  bool editorLogHas(const std::string& entry) {
    const auto& log = ide_.editor.log;
    return std::find(log.begin(), log.end(), entry) != log.end();
  }

  void selectInEditor(HWND editor, const std::string& word) {
    HWND text = FindWindowExA(editor, nullptr, "EditWindClass", nullptr);
    const size_t at = word.empty() ? 0 : std::string(kFrameSource).find(word);
    SendMessageA(text, EM_SETSEL, at, at + word.size());
  }

  TestIde ide_;
  std::unique_ptr<LoadedAddon> addon_;
  char previousDirectory_[MAX_PATH] = {};
  bool newShell_ = true;
  bool running_ = false;
};

}  // namespace

TEST_F(TitleBarTest, FunctionsPopupListsClassesAsSubmenusAndMovesTheCursor) {
  start();
  HWND editor = openFrameSource();
  const std::string expected =
      "1000 main\n"
      "Frame\n"
      "  1001 Paint\n"
      "  1002 Size\n"
      "View\n"
      "  1003 Paint\n";
  {
    ModalDriver driver;
    driver.openFirstSubmenu = true;
    driver.menuScreenshot = "functions-popup";
    clickAt(buttonPoint(editor, 0));
    ASSERT_TRUE(pumpUntil([&] { return !driver.menus.empty(); }));
    ASSERT_TRUE(pumpUntil([] { return !menuShown(); }));
    EXPECT_EQ(driver.menus[0], expected);
    EXPECT_EQ(driver.watchdogFired, 0);
  }
  ModalDriver driver;
  driver.choices = {1000};
  clickAt(buttonPoint(editor, 0));
  EXPECT_TRUE(pumpUntil([&] { return editorLogHas("cursor 1 18"); })) << "main is on line 18";
  const POINT button = buttonPoint(editor, 0);
  stop();
  addon_.reset();
  clickAt(button);
  pumpMessages(300);  // a hook left behind would now run unloaded code
  EXPECT_FALSE(menuShown());
}

TEST_F(TitleBarTest, IncludeIsFoundBelowTheProjectDirectoryOpenedAndRecorded) {
  start();
  HWND editor = openFrameSource();
  ModalDriver driver;
  driver.choices = {700};
  clickAt(buttonPoint(editor, 1));
  ASSERT_TRUE(pumpUntil([&] { return !ide_.tools.runs.empty(); }));
  EXPECT_EQ(driver.menus[0], "700 frame.h\n701 other.h\n");
  const std::string header = kWork + "\\inc\\frame.h";
  EXPECT_EQ(ide_.tools.runs[0].tool, "EditText");
  EXPECT_EQ(ide_.tools.runs[0].file, header);
  stop();
  EXPECT_EQ(readSetting("TopBar", "NbINC"), "1");
  EXPECT_EQ(readSetting("TopBar\\INC", "Entry0"), header);
}

TEST_F(TitleBarTest, EditorPageMovesTheButtonsToTheRightSideAtOnceWhereTheyStillOpenTheirPopups) {
  start();
  // A short title, so that the left side stands well apart from the right one.
  ide_.openFile("C:\\SRC\\FRAME.CPP", kFrameSource);
  HWND editor = ide_.editor.buffers.rbegin()->second.window;
  MoveWindow(editor, 0, 0, 560, 160, TRUE);
  pumpMessages(300);
  ASSERT_GT(titleBarButtonsOrigin(editor, {addon_->module(), newShell_, false}).x -
                titleBarButtonsOrigin(editor, {addon_->module(), newShell_, true}).x,
            3 * 24);
  const int allPixels = kTitleBarButtons * 24 * 18;
  ASSERT_EQ(buttonPixelsShown(editor, true), allPixels) << "on the left side by default";
  {
    TestOptionsDialog dialog(ide_.nodeOptions.chapters[0]);
    // Clear of the editor, so that closing it repaints nothing there.
    SetWindowPos(dialog.window(), nullptr, 20, 320, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    dialog.select(2);
    SendMessageA(GetDlgItem(dialog.pageWindow(2), 1018), BM_CLICK, 0, 0);  // "at the right side"
    pumpMessages(300);  // the repaints that the dialog's opening caused, on the left side still
    ASSERT_TRUE(dialog.accept());
    pumpMessages(300);
    EXPECT_EQ(buttonPixelsShown(editor, false), allPixels) << "the frame was painted again";
    EXPECT_LT(buttonPixelsShown(editor, true), allPixels / 2) << "the old buttons went with the old frame";
  }
  pumpMessages(100);
  saveScreenshot("editor-buttons-right-side");
  ModalDriver driver;
  clickAt(buttonPoint(editor, 1));
  ASSERT_TRUE(pumpUntil([&] { return !driver.menus.empty(); }));
  EXPECT_EQ(driver.menus[0], "700 frame.h\n701 other.h\n");
  ASSERT_TRUE(pumpUntil([] { return !menuShown(); }));
  stop();
}

TEST_F(TitleBarTest, EditDocumentationOpensTheTitlesTextFile) {
  start();
  HWND editor = openFrameSource();
  ModalDriver driver;
  driver.choices = {177};
  POINT caption = buttonPoint(editor, 0);
  caption.x -= 80;
  clickAt(caption, true);
  ASSERT_TRUE(pumpUntil([&] { return !ide_.tools.runs.empty(); }));
  EXPECT_EQ(driver.menus[0], "177 Edit Documentation\n");
  EXPECT_EQ(ide_.tools.runs[0].file, kWork + "\\frame.cpp.txt");
  stop();
}

TEST_F(TitleBarTest, QuickFindThroughTheSelectionKeepsTheClipboard) {
  start();
  HWND editor = openFrameSource();
  if (OpenClipboard(nullptr)) {
    EmptyClipboard();
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, 6);
    memcpy(GlobalLock(memory), "saved", 6);
    GlobalUnlock(memory);
    SetClipboardData(CF_TEXT, memory);
    CloseClipboard();
  }
  selectInEditor(editor, "Size");
  ModalDriver driver;
  driver.choices = {190};
  clickAt(buttonPoint(editor, 2));
  ASSERT_TRUE(pumpUntil([&] { return editorLogHas("cursor 1 9"); })) << "Frame::Size is on line 9";
  EXPECT_EQ(driver.menus[0],
            "190 Find as function... \n191 Find as method... \n192 Find as class... \n-\n193 Cross reference... \n");
  EXPECT_TRUE(driver.dialogCaption.empty()) << "a selection needs no dialog";
  const std::string found = upper(kWork + "\\frame.cpp");
  EXPECT_EQ(ide_.statusLine.texts.back(), found + " : 9");
  EXPECT_TRUE(ide_.tools.runs.empty()) << "the open editor was brought forward";

  ASSERT_TRUE(OpenClipboard(nullptr));
  HANDLE data = GetClipboardData(CF_TEXT);
  EXPECT_STREQ(data ? static_cast<const char*>(GlobalLock(data)) : "", "saved");
  if (data) GlobalUnlock(data);
  CloseClipboard();
  stop();
}

TEST_F(TitleBarTest, QuickFindKeyWithoutSelectionAsksThroughTheDialog) {
  setSetting("QuickFind", "KeyClass", "5116");  // Ctrl+Shift+F5
  setSetting("QuickFind", "TxtClass", "Ctrl+Shift+F5");
  ide_.project.projectFile = kWork + "\\demo.ide";
  const IdeHandle top = ide_.project.addNode(0, "demo.exe", ".exe");
  ide_.nodeOptions.nodeOptions[{top, 1}] = "inc";
  start();
  HWND editor = openFrameSource();
  {
    ModalDriver driver;
    driver.choices = {190};
    selectInEditor(editor, "Size");
    clickAt(buttonPoint(editor, 2));
    ASSERT_TRUE(pumpUntil([&] { return editorLogHas("cursor 1 9"); }));
    EXPECT_NE(driver.menus[0].find("192 Find as class... \tCtrl+Shift+F5\n"), std::string::npos);
  }
  selectInEditor(editor, "");
  ModalDriver driver;
  driver.dialogText = "Frame";
  driver.dialogScreenshot = "quickfind-dialog";
  SetFocus(FindWindowExA(editor, nullptr, "EditWindClass", nullptr));
  pressKey(VK_F5, true, true);
  ASSERT_TRUE(pumpUntil([&] { return !ide_.tools.runs.empty(); }, 10000));
  EXPECT_EQ(driver.dialogCaption, "Find as class ...");
  EXPECT_EQ(driver.dialogFirstText, "Size") << "the last text comes first";
  EXPECT_EQ(driver.dialogList, std::vector<std::string>{"Size"});
  EXPECT_EQ(driver.watchdogFired, 0);
  const std::string header = upper(kWork + "\\inc\\frame.h");
  EXPECT_EQ(ide_.tools.runs[0].file, header);
  EXPECT_EQ(ide_.statusLine.texts.back(), header + " : 2");
  stop();
  EXPECT_EQ(readSetting("TopBar\\INC", "Entry0"), header) << "a found header is recorded";
}

TEST_F(TitleBarTest, MethodSearchOffersEveryHitAndOpensTheChosenOne) {
  start();
  HWND editor = openFrameSource();
  selectInEditor(editor, "Paint");
  ModalDriver driver;
  driver.choices = {191, 801};
  clickAt(buttonPoint(editor, 2));
  ASSERT_TRUE(pumpUntil([&] { return editorLogHas("cursor 1 14"); })) << "View::Paint is on line 14";
  ASSERT_EQ(driver.menus.size(), 2u);
  EXPECT_EQ(driver.menus[1], "800 Frame::Paint\n801 View::Paint\n");
  stop();
}

TEST_F(TitleBarTest, CrossReferenceFillsItsMessageGroup) {
  setSetting("QuickFind", "KeyCross", "4117");  // Ctrl+F6
  start();
  HWND editor = openFrameSource();
  selectInEditor(editor, "Paint");
  SetFocus(FindWindowExA(editor, nullptr, "EditWindClass", nullptr));
  ModalDriver driver;
  pressKey(VK_F6, true);
  ASSERT_TRUE(pumpUntil([&] { return ide_.messageWindow.messages.size() >= 2; }));
  const auto& messages = ide_.messageWindow.messages;
  ASSERT_EQ(messages.size(), 2u) << "the header and the one indented use";
  EXPECT_EQ(messages[0].group, "Cross reference");
  EXPECT_EQ(messages[0].parent, 0u);
  EXPECT_EQ(messages[0].text.rfind("demo : cross reference \"Paint\"  (", 0), 0u) << messages[0].text;
  EXPECT_EQ(messages[0].text.substr(messages[0].text.size() - 11), ") : 1 found");
  EXPECT_EQ(messages[1].parent, 1u);
  EXPECT_EQ(messages[1].text, "  return Paint(0);");
  EXPECT_EQ(upper(messages[1].file), upper(kWork + "\\frame.cpp"));
  EXPECT_EQ(messages[1].line, 11);
  EXPECT_EQ(messages[1].column, 1);
  EXPECT_EQ(ide_.statusLine.texts.back(), "References found, see Message Window");
  stop();
}

TEST_F(TitleBarTest, CrowdedPopupsStopAtTheirRangesAndCountTheRest) {
  // 120 includes and 9,100 definitions of one method: more than the include,
  // function and QuickFind result ranges number.
  const std::string dir = windowsPath(KESTO_HOST_WORK_DIR) + "\\crowded";
  CreateDirectoryA(dir.c_str(), nullptr);
  SetCurrentDirectoryA(dir.c_str());
  std::string source;
  for (int i = 0; i < 120; ++i) source += "#include \"h" + std::to_string(i) + ".h\"\n";
  for (int i = 0; i < 9100; ++i) source += "void View::Paint(int)\n";
  writeFile(dir + "\\crowded.cpp", source);
  start();
  ide_.openFile(dir + "\\crowded.cpp", source);
  HWND editor = ide_.editor.buffers.rbegin()->second.window;
  pumpMessages(300);

  ModalDriver driver;
  driver.menuScreenshot = "functions-popup-crowded";
  driver.choices = {0, 0, 191, 0};  // the method search comes through the third
  std::vector<std::string> lastItems;
  driver.onMenu = [&](HMENU menu) {
    const int last = GetMenuItemCount(menu) - 1;
    char text[64] = {};
    GetMenuStringA(menu, static_cast<UINT>(last), text, sizeof text, MF_BYPOSITION);
    const bool grayed = GetMenuState(menu, static_cast<UINT>(last), MF_BYPOSITION) & MF_GRAYED;
    lastItems.push_back(text + std::string(grayed ? ", grayed" : ""));
  };
  const size_t paint = source.find("Paint");
  SendMessageA(FindWindowExA(editor, nullptr, "EditWindClass", nullptr), EM_SETSEL, paint, paint + 5);
  for (size_t popup = 0; popup < 3; ++popup) {
    clickAt(buttonPoint(editor, static_cast<int>(popup)));
    ASSERT_TRUE(pumpUntil([&] { return driver.menus.size() > popup; }));
    ASSERT_TRUE(pumpUntil([] { return !menuShown(); }));
    driver.menuScreenshot.clear();
  }
  ASSERT_TRUE(pumpUntil([&] { return driver.menus.size() == 4 && !menuShown(); }, 10000));
  EXPECT_EQ(lastItems, (std::vector<std::string>{"... 100 more, grayed", "... 20 more, grayed", "Cross reference... ",
                                                 "... 9000 more, grayed"}));
  EXPECT_NE(driver.menus[0].find("\n  9999 Paint\n0 ... 100 more\n"), std::string::npos);
  EXPECT_NE(driver.menus[1].find("\n799 h99.h\n0 ... 20 more\n"), std::string::npos);
  EXPECT_NE(driver.menus[3].find("\n899 View::Paint\n0 ... 9000 more\n"), std::string::npos);
  EXPECT_EQ(driver.watchdogFired, 0);
  stop();
}
