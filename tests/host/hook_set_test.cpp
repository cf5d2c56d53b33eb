// The hooks on this thread, with a recording bar: which clicks and keys become
// which commands, for which editor, and what goes on to the IDE.
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "ide/hook_set_win32.h"
#include "win32/ide_windows_win32.h"
#include "navigation/title_bar_win32.h"
#include "test_ide.h"
#include "ui_driver.h"

namespace {

struct Posted {
  UINT id;
  LPARAM lParam;
};

std::vector<Posted> gPosted;
std::vector<std::pair<WPARAM, LPARAM>> gCaptured;  // keys sent to the capture window
int gEditorClicks = 0;                             // non-client presses the editor itself saw
WNDPROC gEditorProcedure = nullptr;

LRESULT CALLBACK barProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_COMMAND) gPosted.push_back({LOWORD(wParam), lParam});
  if (message == WM_USER + 1) gCaptured.emplace_back(wParam, lParam);
  return DefWindowProcA(window, message, wParam, lParam);
}

LRESULT CALLBACK countingEditorProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_NCLBUTTONDOWN || message == WM_NCRBUTTONDOWN) ++gEditorClicks;
  if (message == WM_GETMINMAXINFO) {
    // Lets a test make the editor narrower than the system's minimum.
    reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = POINT{1, 1};
    return 0;
  }
  return CallWindowProcA(gEditorProcedure, window, message, wParam, lParam);
}

class FakeHookClient : public HookClient {
 public:
  bool navigationEnabled() override { return navigation; }
  int32_t hitTitleBarButton(HWND editor, POINT point, POINT* popup) override {
    return ::hitTitleBarButton(editor, options, point, popup);
  }
  uint32_t completionKey() override { return completion; }
  std::array<uint16_t, 4> quickFindKeys() override { return keys; }
  bool rebuildsOnProjectView() override { return rebuild; }
  bool barFollowsFrame() override { return true; }
  bool barAlwaysOnTop() override { return false; }
  void frameCommandSeen() override { ++frameCommands; }
  std::vector<HWND> floatingDialogs() override { return {}; }

  bool navigation = true;
  TitleBarOptions options{GetModuleHandleA(nullptr), true, false};
  uint32_t completion = 0;
  std::array<uint16_t, 4> keys{};
  bool rebuild = false;
  int frameCommands = 0;
};

class HookSetTest : public ::testing::Test {
 protected:
  void SetUp() override {
    WNDCLASSA barClass = {};
    barClass.lpfnWndProc = barProcedure;
    barClass.hInstance = GetModuleHandleA(nullptr);
    barClass.lpszClassName = "HookTestBar";
    RegisterClassA(&barClass);
    bar_ = CreateWindowExA(0, "HookTestBar", nullptr, WS_POPUP, 0, 0, 10, 10, nullptr, nullptr,
                           GetModuleHandleA(nullptr), nullptr);
    gPosted.clear();
    gCaptured.clear();
    gEditorClicks = 0;
  }
  void TearDown() override { DestroyWindow(bar_); }

  // An editor window titled title, its presses counted.
  HWND openEditor(const std::string& title) {
    HWND editor = windows_.openEditor(title);
    watch(editor);
    pumpMessages(100);
    return editor;
  }
  static void watch(HWND editor) {
    gEditorProcedure = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrA(editor, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(countingEditorProcedure)));
  }

  // The screen point in the middle of a title-bar button.
  POINT buttonPoint(HWND editor, int button) {
    RECT place = {};
    GetWindowRect(editor, &place);
    const POINT origin = titleBarButtonsOrigin(editor, client_.options);
    return POINT{place.left + origin.x + button * 24 + 12, place.top + origin.y + 9};
  }

  std::vector<UINT> postedIds() const {
    std::vector<UINT> ids;
    for (const Posted& posted : gPosted) ids.push_back(posted.id);
    return ids;
  }

  // The posts other than painting, which every repaint adds.
  std::vector<UINT> commandsAfter(const std::function<void()>& action) {
    gPosted.clear();
    action();
    pumpMessages(300);
    std::vector<UINT> ids;
    for (UINT id : postedIds())
      if (id != kPaintButtonsCommand) ids.push_back(id);
    return ids;
  }

  TestIdeWindows windows_;
  FakeHookClient client_;
  HWND bar_ = nullptr;
};

}  // namespace

TEST_F(HookSetTest, InstallsFourHooksAndRemovesThem) {
  HWND editor = openEditor("C:\\SRC\\FRAME.CPP");
  {
    HookSet hooks(bar_, client_);
    for (int type : {WH_MOUSE, WH_CALLWNDPROC, WH_GETMESSAGE, WH_KEYBOARD}) EXPECT_TRUE(hooks.installed(type));
  }
  EXPECT_TRUE(commandsAfter([&] { clickAt(buttonPoint(editor, 0)); }).empty());
  EXPECT_EQ(gEditorClicks, 1) << "without hooks the editor gets its click";
}

TEST_F(HookSetTest, ButtonClicksPostTheirCommandsForTheCutTitle) {
  HWND editor = openEditor("C:\\SRC\\FRAME.CPP:2 *");
  HookSet hooks(bar_, client_);
  EXPECT_EQ(commandsAfter([&] { clickAt(buttonPoint(editor, 0)); }), std::vector<UINT>{189});
  EXPECT_EQ(hooks.target().window, editor);
  EXPECT_EQ(hooks.target().fileName, "C:\\SRC\\FRAME.CPP");
  EXPECT_EQ(commandsAfter([&] { clickAt(buttonPoint(editor, 1)); }), std::vector<UINT>{187});
  const POINT third = buttonPoint(editor, 2);
  EXPECT_EQ(commandsAfter([&] { clickAt(third); }), std::vector<UINT>{188});
  EXPECT_EQ(hooks.target().click.x, third.x);
  EXPECT_EQ(hooks.target().popup.x, third.x - 12 + 1 - 2) << "the popup opens under the button's left edge";
  EXPECT_EQ(gEditorClicks, 0) << "the editor never sees a taken click";

  POINT beside = buttonPoint(editor, 0);
  beside.x -= 30;
  EXPECT_TRUE(commandsAfter([&] { clickAt(beside); }).empty());
  EXPECT_EQ(gEditorClicks, 1) << "a caption click off the buttons goes on to the IDE";
}

TEST_F(HookSetTest, RightClickKeepsTheTitleForDocumentation) {
  HWND editor = openEditor("C:\\SRC\\FRAME.CPP:2 *");
  HookSet hooks(bar_, client_);
  POINT caption = buttonPoint(editor, 0);
  caption.x -= 60;
  EXPECT_EQ(commandsAfter([&] { clickAt(caption, true); }), std::vector<UINT>{197});
  EXPECT_EQ(hooks.target().documentationTitle, "C:\\SRC\\FRAME.CPP:2");
  EXPECT_EQ(hooks.target().fileName, "C:\\SRC\\FRAME.CPP");
  EXPECT_EQ(hooks.target().popup.x, caption.x) << "its popup opens at the press";
}

TEST_F(HookSetTest, ClicksThatAreNotTaken) {
  HWND editor = openEditor("C:\\SRC\\FRAME.CPP");
  HookSet hooks(bar_, client_);
  EnableWindow(editor, FALSE);
  EXPECT_TRUE(commandsAfter([&] { clickAt(buttonPoint(editor, 0), true); }).empty()) << "disabled editor";
  EnableWindow(editor, TRUE);

  hooks.target().popupOpen = true;
  EXPECT_TRUE(commandsAfter([&] { clickAt(buttonPoint(editor, 0)); }).empty()) << "a popup is open";
  hooks.target().popupOpen = false;

  hooks.setSuspended(true);
  EXPECT_TRUE(commandsAfter([&] { clickAt(buttonPoint(editor, 0)); }).empty()) << "suspended";
  hooks.setSuspended(false);

  client_.navigation = false;
  EXPECT_TRUE(commandsAfter([&] { clickAt(buttonPoint(editor, 0)); }).empty()) << "navigation off";
  client_.navigation = true;

  POINT project = {};
  RECT place = {};
  GetWindowRect(windows_.project, &place);
  project = POINT{place.left + 40, place.top + 8};
  BringWindowToTop(windows_.project);
  pumpMessages(100);
  EXPECT_TRUE(commandsAfter([&] { clickAt(project, true); }).empty()) << "not an editor";
}

TEST_F(HookSetTest, WindowEventsPostCreationAndPainting) {
  HookSet hooks(bar_, client_);
  gPosted.clear();
  HWND editor = windows_.openEditor("C:\\SRC\\NEW.CPP");
  pumpMessages(200);
  ASSERT_FALSE(gPosted.empty());
  EXPECT_EQ(gPosted[0].id, 101u);
  EXPECT_EQ(gPosted[0].lParam, reinterpret_cast<LPARAM>(editor));
  bool painted = false;
  for (const Posted& posted : gPosted)
    painted = painted || (posted.id == 111 && posted.lParam == reinterpret_cast<LPARAM>(editor));
  EXPECT_TRUE(painted);

  client_.rebuild = true;
  EXPECT_EQ(commandsAfter([&] { DestroyWindow(windows_.project); }), std::vector<UINT>{103});

  // Too narrow for the buttons: no paint command (the system beeps instead).
  watch(editor);
  SetWindowPos(editor, nullptr, 0, 0, GetSystemMetrics(SM_CYCAPTION) * 2, 200, SWP_NOMOVE | SWP_NOZORDER);
  gPosted.clear();
  RedrawWindow(editor, nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_UPDATENOW);
  pumpMessages(200);
  EXPECT_TRUE(postedIds().empty());

  PostMessageA(windows_.frame, WM_COMMAND, 13104, 0);
  pumpMessages(100);
  EXPECT_EQ(client_.frameCommands, 1);
}

TEST_F(HookSetTest, QuickFindKeysTargetTheActiveEditor) {
  HWND editor = openEditor("C:\\SRC\\FRAME.CPP:3");
  client_.keys = {0, 0, 5116, 2116};  // class: Ctrl+Shift+F5, cross reference: Alt+F5
  HookSet hooks(bar_, client_);
  SetFocus(editor);
  EXPECT_EQ(commandsAfter([] { pressKey(VK_F5, true, true); }), std::vector<UINT>{192});
  EXPECT_EQ(hooks.target().window, editor);
  EXPECT_EQ(hooks.target().fileName, "C:\\SRC\\FRAME.CPP");
  EXPECT_TRUE(commandsAfter([] { pressKey(VK_F5, true); }).empty()) << "Ctrl+F5 is no shortcut";

  client_.completion = 222;
  EXPECT_EQ(commandsAfter([] { pressKey(222); }), std::vector<UINT>{102});
}

TEST_F(HookSetTest, KeyCaptureSwallowsEveryKey) {
  HWND editor = openEditor("C:\\SRC\\FRAME.CPP");
  client_.keys = {116, 0, 0, 0};
  HookSet hooks(bar_, client_);
  SetFocus(editor);
  hooks.startKeyCapture(bar_);
  EXPECT_TRUE(commandsAfter([] { pressKey(VK_SHIFT); }).empty());
  EXPECT_TRUE(gCaptured.empty()) << "Shift alone is not a key";
  EXPECT_TRUE(commandsAfter([] { pressKey(VK_F5); }).empty()) << "no shortcut during capture";
  ASSERT_EQ(gCaptured.size(), 1u);
  EXPECT_EQ(gCaptured[0].first, static_cast<WPARAM>(VK_F5));
  EXPECT_EQ(gCaptured[0].second & 0x80000000, 0) << "the key-down alone";
  hooks.stopKeyCapture();
  EXPECT_EQ(commandsAfter([] { pressKey(VK_F5); }), std::vector<UINT>{190});
}

TEST_F(HookSetTest, BarFollowsTheFramesSizeAndActivation) {
  HookSet hooks(bar_, client_);
  ShowWindow(bar_, SW_SHOWNA);
  SendMessageA(windows_.frame, WM_SIZE, SIZE_MINIMIZED, 0);
  EXPECT_FALSE(IsWindowVisible(bar_));
  SendMessageA(windows_.frame, WM_SIZE, SIZE_RESTORED, 0);
  EXPECT_TRUE(IsWindowVisible(bar_));

  auto topmost = [&] { return (GetWindowLongA(bar_, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0; };
  SendMessageA(windows_.frame, WM_ACTIVATE, WA_INACTIVE, 0);
  EXPECT_FALSE(topmost()) << "the IDE went to the background";
  SendMessageA(windows_.frame, WM_ACTIVATE, WA_ACTIVE, 0);
  EXPECT_TRUE(topmost());
}

TEST_F(HookSetTest, FindChildWindowByClassAndFileName) {
  HWND other = windows_.openEditor("C:\\SRC\\MYFRAME.CPP");
  HWND editor = windows_.openEditor("c:\\src\\frame.cpp:2");
  EXPECT_EQ(findChildWindow(windows_.frame, "BCW5Editor", "FRAME.CPP"), editor);
  EXPECT_EQ(findChildWindow(windows_.frame, "BCW5Editor", "MYFRAME.CPP"), other);
  EXPECT_EQ(findChildWindow(windows_.frame, "BCW5Project", "FRAME.CPP"), nullptr) << "the class must match";
  EXPECT_EQ(findChildWindow(windows_.frame, "MDIClient", nullptr), windows_.documents);
  EXPECT_EQ(findChildWindow(windows_.frame, nullptr, "DEMO.IDE"), windows_.project);
  EXPECT_EQ(ideDocuments(), windows_.documents);
  EXPECT_EQ(activeEditor(), editor) << "the editor on top of the document area";
}
