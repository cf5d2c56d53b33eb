// The add-on's chapter in the test IDE's options dialog: the pages in order,
// every page walked and changed and applied into the settings and the project,
// refused values, and the key capture through the hooks.
#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

#include "addon_loader.h"
#include "foundation/settings.h"
#include "foundation/settings_registry_win32.h"
#include "options_dialog.h"
#include "ui_driver.h"

namespace {

const std::string kAddon = windowsPath(KESTO_ADDON_DLL);
const std::string kWork = windowsPath(KESTO_HOST_WORK_DIR);
constexpr int kFileNameCombo = 0x47c;  // the file-open dialog's file name

std::string setting(const std::string& section, const std::string& name) {
  SettingsRegistry registry;
  std::string value;
  if (!registry.read(std::string(SettingsStore::kAddOnRoot) + "\\" + section, name, 2000, &value)) return "(absent)";
  return value;
}

void putSetting(const std::string& section, const std::string& name, const std::string& value) {
  SettingsRegistry().write(std::string(SettingsStore::kAddOnRoot) + "\\" + section, name, value);
}

std::string integerOption(int32_t value) { return std::string(reinterpret_cast<const char*>(&value), 4); }
std::string textOption(char marker, const std::string& text) { return marker + text + std::string(1, '\0'); }

std::string itemText(HWND page, int id) {
  char text[512] = {};
  GetDlgItemTextA(page, id, text, sizeof text);
  return text;
}

std::vector<std::string> listRows(HWND page, int id) {
  std::vector<std::string> rows;
  const int count = static_cast<int>(SendDlgItemMessageA(page, id, LB_GETCOUNT, 0, 0));
  for (int i = 0; i < count; ++i) {
    char row[512] = {};
    SendDlgItemMessageA(page, id, LB_GETTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(row));
    rows.push_back(row);
  }
  return rows;
}

// What a user's hand does to a page's controls.
void click(HWND page, int id) { SendMessageA(GetDlgItem(page, id), BM_CLICK, 0, 0); }
void type(HWND page, int id, const std::string& text) { SetDlgItemTextA(page, id, text.c_str()); }
void selectRow(HWND page, int id, int row) {
  SendDlgItemMessageA(page, id, LB_SETCURSEL, static_cast<WPARAM>(row), 0);
  SendMessageA(page, WM_COMMAND, MAKEWPARAM(id, LBN_SELCHANGE), reinterpret_cast<LPARAM>(GetDlgItem(page, id)));
}
void doubleClickRow(HWND page, int id) {
  SendMessageA(page, WM_COMMAND, MAKEWPARAM(id, LBN_DBLCLK), reinterpret_cast<LPARAM>(GetDlgItem(page, id)));
}

std::string hintOf(TestOptionsDialog& dialog, int index, int id) {
  SetFocus(GetDlgItem(dialog.pageWindow(index), id));
  return dialog.showHint();
}

// The page with the hint of its first control, as a user tabbing into it sees it.
void screenshot(TestOptionsDialog& dialog, int index) {
  dialog.select(index);
  SetFocus(GetNextDlgTabItem(dialog.pageWindow(index), nullptr, FALSE));
  dialog.showHint();
  pumpMessages(100);
  char name[40];
  std::snprintf(name, sizeof name, "options-page-%03d", 102 + index);
  EXPECT_TRUE(saveScreenshot(name)) << name;
}

// Acts once on the dialog of that caption when it shows inside a modal loop,
// and cancels it if it is still there seconds later.
class DialogHand {
 public:
  DialogHand(const char* caption, std::function<void(HWND)> act) : caption_(caption), act_(std::move(act)) {
    active_ = this;
    timer_ = SetTimer(nullptr, 0, 50, tick);
  }
  ~DialogHand() {
    KillTimer(nullptr, timer_);
    active_ = nullptr;
  }
  DialogHand(const DialogHand&) = delete;
  DialogHand& operator=(const DialogHand&) = delete;

 private:
  static void CALLBACK tick(HWND, UINT, UINT_PTR, DWORD) {
    if (active_) active_->onTick();
  }
  void onTick() {
    HWND dialog = FindWindowA("#32770", caption_);
    if (!dialog || !IsWindowVisible(dialog)) return;
    if (++ticks_ == 4) act_(dialog);
    if (ticks_ > 100) PostMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
  }
  static DialogHand* active_;
  const char* caption_;
  std::function<void(HWND)> act_;
  UINT_PTR timer_;
  int ticks_ = 0;
};
DialogHand* DialogHand::active_ = nullptr;

class OptionPagesTest : public ::testing::Test {
 protected:
  void SetUp() override {
    RegDeleteTreeA(HKEY_LOCAL_MACHINE, SettingsStore::kAddOnRoot);
    CreateDirectoryA(kWork.c_str(), nullptr);
    ide_.project.projectFile = kWork + "\\PAGES.IDE";
    const IdeHandle top = ide_.project.addNode(0, "pages.exe", "AppExpert");
    const IdeHandle delivery = ide_.project.addNode(top, "DELIVERY", "SourcePool");
    ide_.project.addNode(delivery, kWork + "\\PAGES.EXE", ".exe");
    ide_.project.addNode(delivery, kWork + "\\PAGES.DLL", ".dll");
    auto& stored = ide_.nodeOptions.projectOptions;
    stored["Kesto_NB_MAIL"] = integerOption(1);
    stored["Kesto_MAIL_PJ_0"] = textOption('+', "ann@example.org");
  }

  IMpdChapter* chapter() { return ide_.nodeOptions.chapters.empty() ? nullptr : ide_.nodeOptions.chapters[0]; }

  // Declared in the order of their lives: the add-on goes first, the IDE last.
  TestIde ide_;
  MessageBoxWatchdog watchdog_;
  LoadedAddon addon_{kAddon};
};

TEST_F(OptionPagesTest, ChapterListsItsPagesInTableOrderWithTheTopicList) {
  ASSERT_TRUE(addon_.start(&ide_));
  ASSERT_EQ(ide_.nodeOptions.chapters.size(), 1u);
  const std::vector<std::pair<std::string, std::string>> expected = {
      {"Kesto AddOn for Borland C++", "Set general Kesto AddOn options"},
      {"General options", "Set general options"},
      {"Editor menu", "Set Top Editor Menu options"},
      {"Top screen bar", "Set top screen bar options"},
      {"Keyword completion", "Set keyword completion options"},
      {"Project delivery", "Set project delivery options"},
      {"Mail", "set mail options"},
      {"Task management", "set task management options"},
      {"Groupware", "Set groupware options"},
      {"HTML generation", "Set HTML generation options"},
      {"Kesto Windows", "Set Kesto Windows options"},
  };
  {
    TestOptionsDialog dialog(chapter());
    ASSERT_EQ(dialog.pageCount(), 11);
    for (int i = 0; i < dialog.pageCount(); ++i) {
      IMpdPage* page = dialog.page(i);
      IIdeString* title = page->Title();
      IIdeString* description = page->Description();
      EXPECT_EQ(textOf(title), expected[static_cast<size_t>(i)].first);
      EXPECT_EQ(textOf(description), expected[static_cast<size_t>(i)].second);
      title->Release();
      description->Release();
      EXPECT_EQ(page->DialogId(), 102 + i);
      EXPECT_EQ(page->Kind(), i == 0 ? 0x1000 : 1);
      EXPECT_NE(dialog.pageWindow(i), nullptr) << "page " << i << " has its dialog template";
    }
    EXPECT_EQ(itemText(dialog.pageWindow(0), 1016), "Version 1.2");
    OSVERSIONINFOA version = {};
    version.dwOSVersionInfoSize = sizeof version;
    GetVersionExA(&version);
    EXPECT_EQ(itemText(dialog.pageWindow(0), 1017),
              "Windows NT " + std::to_string(version.dwMajorVersion) + "." + std::to_string(version.dwMinorVersion));
    screenshot(dialog, 0);
  }

  HRSRC found = FindResourceA(addon_.module(), MAKEINTRESOURCEA(1), "MPD_TOPICLIST");
  ASSERT_NE(found, nullptr);
  ASSERT_EQ(SizeofResource(addon_.module(), found), 18u);
  const auto* bytes = static_cast<const unsigned char*>(LockResource(LoadResource(addon_.module(), found)));
  EXPECT_EQ(std::vector<unsigned char>(bytes, bytes + 18),
            (std::vector<unsigned char>{1, 0, 0, 0x10, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 1, 0}));
  addon_.stop();
  EXPECT_EQ(ide_.referencesHeld(), 0);
  EXPECT_TRUE(watchdog_.boxes().empty());
}

TEST_F(OptionPagesTest, EveryPageChangedAndAppliedReachesTheSettingsAndTheProject) {
  putSetting("Completion", "NbFiles", "2");
  putSetting("Completion\\Files", "Entry0", kWork + "\\FIRST.KWD");
  putSetting("Completion\\Files", "Entry1", kWork + "\\SECOND.KWD");
  std::ofstream(kWork + "\\THIRD.KWD") << "third\n";
  ASSERT_TRUE(addon_.start(&ide_));
  ide_.project.clients[0]->ProjectOpened(nullptr);
  ASSERT_EQ(ide_.tools.added.size(), 1u);
  HWND bar = FindWindowA("KADO", nullptr);
  {
    TestOptionsDialog dialog(chapter());
    ASSERT_EQ(dialog.pageCount(), 11);
    auto page = [&dialog](int index) {
      dialog.select(index);
      return dialog.pageWindow(index);
    };

    HWND general = page(1);
    EXPECT_EQ(hintOf(dialog, 1, 1014), "Open project window when opening project");
    click(general, 1014);
    type(general, 1016, "12");
    screenshot(dialog, 1);

    HWND editor = page(2);
    EXPECT_EQ(hintOf(dialog, 2, 1019), "Set shortkey for \"Find as function\"");
    click(editor, 1011);
    type(editor, 1013, "30");
    type(editor, 1014, "*.cxx");
    click(editor, 1018);
    click(editor, IDHELP);  // the help viewer is disabled in the tests: nothing opens
    screenshot(dialog, 2);

    HWND topBar = page(3);
    type(topBar, 1011, "5");
    click(topBar, 1015);
    click(topBar, 1019);
    type(topBar, 1021, "5");  // out of range, and taken as entered
    type(topBar, 1022, "3");
    screenshot(dialog, 3);

    HWND completion = page(4);
    EXPECT_EQ(listRows(completion, 1012), (std::vector<std::string>{kWork + "\\FIRST.KWD", kWork + "\\SECOND.KWD"}));
    selectRow(completion, 1012, 0);
    click(completion, 1015);
    EXPECT_EQ(listRows(completion, 1012), std::vector<std::string>{kWork + "\\SECOND.KWD"});
    {
      DialogHand chooser("Open a keyword file...", [](HWND open) {
        saveScreenshot("options-open-keyword-file");
        SetDlgItemTextA(open, kFileNameCombo, (kWork + "\\THIRD.KWD").c_str());
        PostMessageA(open, WM_COMMAND, IDOK, 0);
      });
      click(completion, 1013);
    }
    EXPECT_EQ(listRows(completion, 1012), (std::vector<std::string>{kWork + "\\SECOND.KWD", kWork + "\\THIRD.KWD"}));
    click(completion, 1010);
    screenshot(dialog, 4);

    HWND delivery = page(5);
    EXPECT_EQ(listRows(delivery, 1011), (std::vector<std::string>{".dll -> ", ".exe -> "}));
    selectRow(delivery, 1011, 1);
    {
      ModalDriver driver;
      driver.dialogText = kWork + "\\BIN";
      driver.dialogScreenshot = "options-delivery-directory";
      doubleClickRow(delivery, 1011);
      EXPECT_EQ(driver.dialogCaption, "Set delivery directory");
    }
    EXPECT_EQ(listRows(delivery, 1011)[1], ".exe -> " + kWork + "\\BIN");
    click(delivery, 1010);
    screenshot(dialog, 5);

    HWND mail = page(6);
    EXPECT_EQ(listRows(mail, 1011), std::vector<std::string>{"ann@example.org"});
    click(mail, 1013);
    EXPECT_EQ(itemText(mail, 1012), "new entry");
    type(mail, 1012, "bob@example.org");
    click(mail, 1010);
    EXPECT_EQ(listRows(mail, 1011), (std::vector<std::string>{"ann@example.org", "bob@example.org"}));
    screenshot(dialog, 6);

    HWND tasks = page(7);
    EXPECT_EQ(itemText(tasks, 1019), "Design;Evolution;Bug;Documentation");
    click(tasks, 1013);
    click(tasks, 1015);
    type(tasks, 1019, "Bug;;Doc;");
    screenshot(dialog, 7);

    HWND groupware = page(8);
    click(groupware, 1011);
    type(groupware, 1013, "*.cpp");
    type(groupware, 1014, "\\\\server\\share");
    screenshot(dialog, 8);

    HWND html = page(9);
    EXPECT_EQ(itemText(html, 1014), "*.cpp;*.h");
    click(html, 1012);
    type(html, 1014, "*.cpp;*.hpp");
    screenshot(dialog, 9);

    HWND windows = page(10);
    click(windows, 1010);
    click(windows, 1011);
    screenshot(dialog, 10);

    ASSERT_TRUE(dialog.accept());
    RECT placed;
    GetWindowRect(bar, &placed);
    EXPECT_EQ(placed.left, 5) << "the bar moved to its new left margin";
    EXPECT_NE(GetWindowLongA(bar, GWL_EXSTYLE) & WS_EX_TOPMOST, 0);
  }

  const std::vector<std::vector<std::string>> stored = {
      {"General", "ViewOnOpen", "1"},      {"General", "TimerCount", "12"},
      {"Menus", "Sorted", "0"},            {"Menus", "Size", "30"},
      {"QuickFind", "FunctionMask", "*.cxx"}, {"QuickFind", "LeftSide", "0"},
      {"TopBar", "LeftMargin", "5"},       {"TopBar", "AlwaysOnTop", "1"},
      {"TopBar", "MenuSize", "5"},         {"TopBar", "MaxIDE", "3"},
      {"Completion", "Enabled", "0"},      {"Completion", "NbFiles", "2"},
      {"Completion\\Files", "Entry1", kWork + "\\THIRD.KWD"},
      {"Mail", "Control", "1"},            {"Tasks", "FlashEnded", "1"},
      {"Tasks", "KeyIsDelivery", "0"},     {"Tasks", "Types", "Bug;;Doc"},
      {"Groupware", "MailOnGet", "1"},     {"Groupware", "Filters", "*.cpp"},
  };
  for (const auto& value : stored) EXPECT_EQ(setting(value[0], value[1]), value[2]) << value[0] << "/" << value[1];

  // The top bar, delivery and mail pages write the project's options at once.
  auto& project = ide_.nodeOptions.projectOptions;
  EXPECT_EQ(project["Kesto_HIERARCH"], integerOption(1));
  EXPECT_EQ(project["Kesto_WITHDELIVERY"], integerOption(0));
  EXPECT_EQ(project["Kesto_ODR_TYP_1"], textOption('+', ".exe"));
  EXPECT_EQ(project["Kesto_ODR_REP_1"], textOption('+', kWork + "\\BIN"));
  EXPECT_EQ(project["Kesto_NB_MAIL"], integerOption(2));
  EXPECT_EQ(project["Kesto_MAIL_PJ_1"], textOption('+', "bob@example.org"));
  EXPECT_EQ(ide_.tools.added[0].implementor, nullptr) << "the delivery tool left the Tool menu";
  // The others go with the project when the IDE saves it.
  ide_.projectSave.clients[0]->ProjectSaving();
  EXPECT_EQ(project["KestoGroupwareServer"], textOption('~', "\\\\server\\share"));
  EXPECT_EQ(project["Kesto_HTMLAU"], integerOption(1));
  EXPECT_EQ(project["Kesto_HTMLFI"], textOption('~', "*.cpp;*.hpp"));
  EXPECT_EQ(project["Kesto_EWindows"], integerOption(1));
  EXPECT_EQ(project["Kesto_GenRC"], integerOption(1));

  ide_.project.clients[0]->ProjectClosed();
  addon_.stop();
  EXPECT_EQ(ide_.referencesHeld(), 0);
  EXPECT_EQ(watchdog_.boxes(), std::vector<std::string>{"Warning: Ok to remove this file ?"});
}

TEST_F(OptionPagesTest, RefusedValueShowsItsTextAndNothingIsStored) {
  ASSERT_TRUE(addon_.start(&ide_));
  {
    TestOptionsDialog dialog(chapter());
    dialog.select(7);
    type(dialog.pageWindow(7), 1019, "Only;These");
    dialog.select(1);
    for (const char* period : {"0", "61", "5x", "4294967301"}) {
      type(dialog.pageWindow(1), 1016, period);
      EXPECT_FALSE(dialog.accept()) << period;
    }
    type(dialog.pageWindow(1), 1016, "60");
    dialog.select(2);
    type(dialog.pageWindow(2), 1013, "100");
    EXPECT_FALSE(dialog.accept());
    EXPECT_EQ(setting("General", "TimerCount"), "(absent)");
    EXPECT_EQ(setting("Tasks", "Types"), "(absent)") << "a refusal on one page stores no page";
    type(dialog.pageWindow(2), 1013, "99");
    EXPECT_TRUE(dialog.accept());
  }
  EXPECT_EQ(setting("General", "TimerCount"), "60");
  EXPECT_EQ(setting("Menus", "Size"), "99");
  EXPECT_EQ(setting("Tasks", "Types"), "Only;These");
  const std::string timerBox = "Kesto Addon error: Timer size must be between 0 and 60 min.";
  EXPECT_EQ(watchdog_.boxes(), (std::vector<std::string>{timerBox, timerBox, timerBox, timerBox,
                                                         "Kesto Addon error: Menu size must be between 10 and 99."}))
      << "text and numbers past 32 bits read as 0, which is refused";
  EXPECT_EQ(watchdog_.owners(), std::vector<std::string>(5, "Environment Options, disabled"))
      << "a page's refusal holds the dialog behind it";
  addon_.stop();
}


TEST_F(OptionPagesTest, KeyFieldCapturesTheStruckKeyThroughTheHooks) {
  ASSERT_TRUE(addon_.start(&ide_));
  {
    TestOptionsDialog dialog(chapter());
    dialog.select(2);
    HWND editor = dialog.pageWindow(2);
    EXPECT_EQ(itemText(editor, 1019), "???");
    std::string prompt;
    {
      DialogHand striker("Kesto AddOn", [&prompt](HWND capture) {
        prompt = itemText(capture, 101);
        saveScreenshot("options-key-capture");
        SetFocus(capture);
        pressKey(VK_SHIFT);  // a modifier alone is no key
        pressKey(VK_F5, true, true);
      });
      click(editor, 1019);
    }
    EXPECT_EQ(prompt, "Strike any key...");
    EXPECT_EQ(itemText(editor, 1019), "Ctrl+Shift+F5");
    ASSERT_TRUE(dialog.accept());
  }
  EXPECT_EQ(setting("QuickFind", "KeyFunction"), "5116");
  EXPECT_EQ(setting("QuickFind", "TxtFunction"), "Ctrl+Shift+F5");
  addon_.stop();
  EXPECT_TRUE(watchdog_.boxes().empty());
}

}  // namespace
