// The task list dialog and the Flash window in the IDE: the dialog's commands,
// the mail of an ended public task, one dialog however often it is asked for,
// and the flash shown once on the first opening of a day.
#include <gtest/gtest.h>

#include <string>

#include "addon_loader.h"
#include "foundation/settings.h"
#include "foundation/settings_registry_win32.h"
#include "ui_driver.h"

namespace {

const std::string kAddon = windowsPath(KESTO_ADDON_DLL);

std::string text(HWND window, int id) {
  char buffer[512] = {};
  GetDlgItemTextA(window, id, buffer, sizeof buffer);
  return buffer;
}

// A WNDENUMPROC is __stdcall on i686, which a lambda is not.
BOOL CALLBACK findFlash(HWND window, LPARAM found) {
  char title[128] = {};
  GetWindowTextA(window, title, sizeof title);
  if (IsWindowVisible(window) && std::string(title).rfind("Flash : ", 0) == 0) *reinterpret_cast<HWND*>(found) = window;
  return TRUE;
}

HWND flashShown() {
  HWND found = nullptr;
  EnumThreadWindows(GetCurrentThreadId(), findFlash, reinterpret_cast<LPARAM>(&found));
  return found;
}

// A key stroke as the IDE's thread receives it: a WM_KEYDOWN in its queue for the
// focused control of window (window itself when nothing inside it has focus),
// with Shift held in the thread's key state when asked.
void strike(HWND window, WORD key, bool shift = false) {
  BYTE keys[256] = {};
  GetKeyboardState(keys);
  const BYTE before = keys[VK_SHIFT];
  keys[VK_SHIFT] = shift ? 0x80 : 0;
  SetKeyboardState(keys);
  HWND focus = GetFocus();
  const UINT scan = MapVirtualKeyA(key, 0);
  PostMessageA(focus && IsChild(window, focus) ? focus : window, WM_KEYDOWN, key, LPARAM(1) | LPARAM(scan) << 16);
  pumpMessages(150);
  keys[VK_SHIFT] = before;
  SetKeyboardState(keys);
}

class TaskWindowsTest : public ::testing::Test {
 protected:
  void SetUp() override {
    RegDeleteTreeA(HKEY_LOCAL_MACHINE, SettingsStore::kAddOnRoot);
    // Ended public tasks are mailed at once.
    SettingsRegistry().write(std::string(SettingsStore::kAddOnRoot) + "\\Tasks", "KeyIsDelivery", "0");
    project_ = testFolder("task-windows") + "\\DEMO.IDE";
    for (const char* suffix : {".tsk", ".fltme", ".tsk.txt"}) DeleteFileA((project_ + suffix).c_str());
    ide_.project.projectFile = project_;
    ide_.project.addNode(0, "demo.exe", "AppExpert");
    ide_.nodeOptions.projectOptions["Kesto_NB_MAIL"] = std::string("\x01\0\0\0", 4);
    ide_.nodeOptions.projectOptions["Kesto_MAIL_PJ_0"] = std::string("+team\0", 6);
  }

  // The add-on started with the project open; the task list shown.
  HWND startWithTaskList() {
    if (!addon_.start(&ide_)) return nullptr;
    ide_.project.clients[0]->ProjectOpened(nullptr);
    pumpMessages(200);
    sendBarCommand(171);
    return ownDialog("Task list");
  }

  void reopenProject() {
    ide_.project.clients[0]->ProjectClosed();
    ide_.project.clients[0]->ProjectOpened(nullptr);
    pumpMessages(300);
  }

  std::string project_;
  TestIde ide_;
  RecordedMail mail_{"task-mail.log"};
  MessageBoxWatchdog watchdog_{[](const std::string& box) {
    if (box.rfind("Warning: ", 0) == 0) saveScreenshot("task-list-owned-box");
  }};
  LoadedAddon addon_{kAddon};  // unloaded first, before the IDE's windows go
};

TEST_F(TaskWindowsTest, DialogEditsTasksMailsAnEndedPublicOneAndSavesWhenClosed) {
  HWND dialog = startWithTaskList();
  ASSERT_NE(dialog, nullptr);
  EXPECT_EQ(flashShown(), nullptr) << "no task, no automatic flash";
  EXPECT_TRUE(listBoxRows(dialog, 103).empty());
  EXPECT_FALSE(IsWindowEnabled(GetDlgItem(dialog, 121))) << "nothing to edit in an empty list";

  pressButton(dialog, 109);
  ASSERT_EQ(listBoxRows(dialog, 103).size(), 1u);
  EXPECT_EQ(text(dialog, 104), "to &Do : 1");
  EXPECT_EQ(text(dialog, 111), "New task");
  SetDlgItemTextA(dialog, 111, "Ship it");
  CheckDlgButton(dialog, 113, BST_CHECKED);
  SendDlgItemMessageA(dialog, 115, CB_SETCURSEL, 3, 0);
  pressButton(dialog, 121);
  EXPECT_EQ(text(dialog, 107), "&Ended: 1");
  EXPECT_EQ(listBoxRows(dialog, 103)[0].rfind("Ship it\tBug\tENDED\t", 0), 0u) << listBoxRows(dialog, 103)[0];
  EXPECT_EQ(mail_.text(),
            "subject: End of task \"Ship it\" (project DEMO)\nflags: 1\nowner: yes\nto: [1 team]\n"
            "note:\nSomething to do\n.end\n");
  EXPECT_FALSE(IsWindowEnabled(GetDlgItem(dialog, 110))) << "an ended task is read-only";

  // A task for today's flash, and one removed again.
  pressButton(dialog, 109);
  pressButton(dialog, 109);
  ASSERT_EQ(listBoxRows(dialog, 103).size(), 3u);
  pressButton(dialog, 110);
  EXPECT_EQ(listBoxRows(dialog, 103).size(), 2u) << "removed on Yes";
  SendDlgItemMessageA(dialog, 116, BM_CLICK, 0, 0);
  EXPECT_EQ(listBoxRows(dialog, 103)[1].rfind("Ship it", 0), 0u) << "reversed";
  pumpMessages(300);
  saveScreenshot("task-list");

  sendBarCommand(171);
  EXPECT_EQ(ownDialog("Task list"), dialog) << "one dialog however often it is asked for";
  SendMessageA(dialog, WM_CLOSE, 0, 0);
  EXPECT_EQ(ownDialog("Task list"), nullptr);
  EXPECT_NE(GetFileAttributesA((project_ + ".tsk").c_str()), INVALID_FILE_ATTRIBUTES) << "saved when closed";

  ide_.project.clients[0]->ProjectClosed();
  addon_.stop();
  ASSERT_EQ(watchdog_.boxes().size(), 1u);
  EXPECT_EQ(watchdog_.boxes()[0], "Warning: Remove New task ?");
  EXPECT_EQ(watchdog_.owners()[0], "Task list, disabled") << "the list cannot be clicked again behind its question";
}

TEST_F(TaskWindowsTest, FlashShowsOnceOnTheFirstOpeningOfADayAndOnDemandAlways) {
  HWND dialog = startWithTaskList();
  ASSERT_NE(dialog, nullptr);
  pressButton(dialog, 109);
  SendMessageA(dialog, WM_CLOSE, 0, 0);

  reopenProject();
  HWND flash = flashShown();
  ASSERT_NE(flash, nullptr) << "a task is current today";
  EXPECT_NE(text(flash, 101).find("New task"), std::string::npos) << text(flash, 101);
  RECT client;
  RECT report;
  GetClientRect(flash, &client);
  GetWindowRect(GetDlgItem(flash, 101), &report);
  EXPECT_EQ(report.right - report.left, client.right) << "the report fills the window";
  pumpMessages(300);
  DWORD selStart = 1;
  DWORD selEnd = 0;
  SendDlgItemMessageA(flash, 101, EM_GETSEL, reinterpret_cast<WPARAM>(&selStart), reinterpret_cast<LPARAM>(&selEnd));
  EXPECT_EQ(selStart, selEnd) << "the report opens with nothing selected";
  saveScreenshot("flash");
  SendMessageA(flash, WM_CLOSE, 0, 0);
  EXPECT_EQ(flashShown(), nullptr);

  reopenProject();
  EXPECT_EQ(flashShown(), nullptr) << "once a day";

  sendBarCommand(173);
  flash = flashShown();
  ASSERT_NE(flash, nullptr) << "on demand whatever the day";
  sendBarCommand(173);
  EXPECT_EQ(flashShown(), flash) << "a second showing keeps the window";
  ide_.project.clients[0]->ProjectClosed();
  addon_.stop();
  EXPECT_EQ(flashShown(), nullptr) << "the add-on takes its windows with it";
  EXPECT_TRUE(watchdog_.boxes().empty());
}

TEST_F(TaskWindowsTest, TabEnterAndEscReachTheModelessWindowsThroughTheIdeLoop) {
  HWND dialog = startWithTaskList();
  ASSERT_NE(dialog, nullptr);
  HWND filter = GetDlgItem(dialog, 102);
  SendMessageA(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(filter), TRUE);
  strike(dialog, VK_TAB);
  EXPECT_EQ(GetFocus(), GetNextDlgTabItem(dialog, filter, FALSE));
  EXPECT_NE(GetFocus(), filter);
  strike(dialog, VK_TAB, true);
  EXPECT_EQ(GetFocus(), filter) << "Shift+Tab goes back";

  SendMessageA(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(GetDlgItem(dialog, 109)), TRUE);
  strike(dialog, VK_RETURN);
  EXPECT_EQ(listBoxRows(dialog, 103).size(), 1u) << "Enter on \"Create\" creates";
  saveScreenshot("task-list-keyboard");
  strike(dialog, VK_ESCAPE);
  EXPECT_EQ(ownDialog("Task list"), nullptr) << "Esc closes";

  sendBarCommand(173);
  HWND flash = flashShown();
  ASSERT_NE(flash, nullptr);
  strike(flash, VK_ESCAPE);
  EXPECT_EQ(flashShown(), nullptr) << "Esc closes the Flash window";
  ide_.project.clients[0]->ProjectClosed();
  addon_.stop();
  EXPECT_TRUE(watchdog_.boxes().empty());
}

TEST_F(TaskWindowsTest, MinimisingTheIdeHidesEveryFloatingWindowAndRestoringShowsThem) {
  HWND dialog = startWithTaskList();
  ASSERT_NE(dialog, nullptr);
  sendBarCommand(173);
  HWND flash = flashShown();
  ASSERT_NE(flash, nullptr);
  HWND bar = FindWindowA("KADO", nullptr);
  ASSERT_TRUE(IsWindowVisible(bar));
  auto shown = [&] {
    return std::vector<bool>{IsWindowVisible(bar) != FALSE, IsWindowVisible(dialog) != FALSE,
                             IsWindowVisible(flash) != FALSE};
  };
  ShowWindow(ide_.windows.frame, SW_MINIMIZE);
  pumpMessages(300);
  saveScreenshot("ide-minimised");
  EXPECT_EQ(shown(), std::vector<bool>(3, false)) << "bar, task list, flash";
  ShowWindow(ide_.windows.frame, SW_RESTORE);
  pumpMessages(300);
  EXPECT_EQ(shown(), std::vector<bool>(3, true));
  saveScreenshot("ide-restored");
  ide_.project.clients[0]->ProjectClosed();
  addon_.stop();
  EXPECT_TRUE(watchdog_.boxes().empty());
}

}  // namespace
