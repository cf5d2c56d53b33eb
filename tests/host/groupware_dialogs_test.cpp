// The groupware send and get dialogs and the quick add dialog in the IDE: the
// buttons act on the files, the send's report is mailed, the menu's reports and
// mail work on the last action and the server, and Alt on a project file adds
// a node beside it.
#include <gtest/gtest.h>

#include <fstream>
#include <string>

#include "addon_loader.h"
#include "foundation/settings.h"
#include "ui_driver.h"

namespace {

const std::string kAddon = windowsPath(KESTO_ADDON_DLL);

bool readOnly(const std::string& path) { return (GetFileAttributesA(path.c_str()) & FILE_ATTRIBUTE_READONLY) != 0; }

// The message window's texts of one group, each child indented by two blanks.
std::vector<std::string> messagesOf(const TestIde& ide, const std::string& group) {
  std::vector<std::string> texts;
  for (const auto& message : ide.messageWindow.messages)
    if (message.group == group) texts.push_back((message.parent ? "  " : "") + message.text);
  return texts;
}

void remove(const std::string& path) {
  SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL);
  DeleteFileA(path.c_str());
}

class GroupwareDialogsTest : public ::testing::Test {
 protected:
  void SetUp() override {
    RegDeleteTreeA(HKEY_LOCAL_MACHINE, SettingsStore::kAddOnRoot);
    project_ = testFolder("gw-project");
    server_ = testFolder("gw-server");
    for (const std::string& dir : {project_, server_})
      for (const char* name : {"\\a.cpp", "\\c.cpp"}) remove(dir + name);
    std::ofstream(project_ + "\\a.cpp") << "edited here";
    std::ofstream(server_ + "\\c.cpp") << "from a colleague";
    ide_.project.projectFile = project_ + "\\DEMO.IDE";
    const IdeHandle top = ide_.project.addNode(0, "demo.ide", ".ide");
    const IdeHandle target = ide_.project.addNode(top, "demo.exe", ".exe");
    ide_.project.addNode(target, "a.cpp", ".cpp");
    auto& options = ide_.nodeOptions.projectOptions;
    options["KestoGroupwareServer"] = "~" + server_ + std::string(1, '\0');
    options["Kesto_NB_MAIL"] = std::string("\x01\0\0\0", 4);
    options["Kesto_MAIL_PJ_0"] = std::string("+team\0", 6);
  }

  std::string project_;
  std::string server_;
  TestIde ide_;
  RecordedMail mail_{"groupware-mail.log"};
};

TEST_F(GroupwareDialogsTest, SendUnlocksAndMailsThenGetTakesTheAdvisedFiles) {
  MessageBoxWatchdog watchdog;
  LoadedAddon addon(kAddon);
  ASSERT_TRUE(addon.start(&ide_));
  ide_.project.clients[0]->ProjectOpened(nullptr);
  {
    ModalDriver driver;
    driver.dialogTitle = "Groupware - Send files";
    driver.dialogScreenshot = "groupware-send";
    driver.dialogButtons = {104, 105, IDCANCEL};  // "Send && unlock" on every row, "SEND !", close
    sendBarCommand(176);
    EXPECT_EQ(driver.dialogList, std::vector<std::string>{"a.cpp\tNEW!\t "});
  }
  EXPECT_EQ(readWholeFile(server_ + "\\a.cpp"), "edited here");
  EXPECT_TRUE(readOnly(project_ + "\\a.cpp")) << "sent and unlocked: no longer ours to edit";
  EXPECT_EQ(mail_.text(),
            "subject: Groupware SEND : project DEMO\nflags: 1\nowner: yes\nto: [1 team]\n"
            "note:\na.cpp is delivered and unlocked\n\n.end\n");
  {
    ModalDriver driver;
    driver.dialogTitle = "Groupware - Get files";
    driver.dialogScreenshot = "groupware-get";
    driver.dialogButtons = {106, 105, IDCANCEL};  // "As advised", "GET !", close
    sendBarCommand(175);
    ASSERT_EQ(driver.dialogList.size(), 2u);
    EXPECT_EQ(driver.dialogList[1], "c.cpp\tNo\tNEW!\tRefresh\t ");
  }
  EXPECT_EQ(readWholeFile(project_ + "\\c.cpp"), "from a colleague");
  EXPECT_EQ(mail_.text().find("GET"), std::string::npos) << "no mail after a get by default";
  ide_.project.clients[0]->ProjectClosed();
  addon.stop();
  EXPECT_TRUE(watchdog.boxes().empty());
}

TEST_F(GroupwareDialogsTest, MenuShowsTheLastReportAndTheServerLocksAndMailsTheReport) {
  MessageBoxWatchdog watchdog;
  LoadedAddon addon(kAddon);
  ASSERT_TRUE(addon.start(&ide_));
  ide_.project.clients[0]->ProjectOpened(nullptr);
  sendBarCommand(177);
  sendBarCommand(174);
  EXPECT_TRUE(ide_.tools.runs.empty()) << "\"Report...\" is not \"Edit Documentation\"";
  EXPECT_TRUE(messagesOf(ide_, "Groupware").empty());
  EXPECT_EQ(mail_.text(), "") << "nothing to mail before a send or get";
  EXPECT_EQ(ide_.statusLine.texts.back(), "No groupware send or get in this project yet");
  {
    ModalDriver driver;
    driver.dialogTitle = "Groupware - Get files";
    driver.dialogButtons = {104, 105, IDCANCEL};  // "Get && lock" on every row, "GET !", close
    sendBarCommand(175);
  }
  ASSERT_TRUE(readOnly(server_ + "\\c.cpp")) << "locked by the get";
  sendBarCommand(177);
  sendBarCommand(178);
  char user[100] = {};
  DWORD size = sizeof user;
  GetUserNameA(user, &size);
  EXPECT_EQ(messagesOf(ide_, "Groupware"),
            (std::vector<std::string>{"Groupware GET : project DEMO", "  c.cpp is locked", "Locks on " + server_,
                                      "  c.cpp: locked by " + std::string(user) + ", Same"}));
  EXPECT_EQ(mail_.text(), "") << "a get mails nothing by default";
  sendBarCommand(174);
  EXPECT_EQ(mail_.text(),
            "subject: Groupware GET : project DEMO\nflags: 1\nowner: yes\nto: [1 team]\n"
            "note:\nc.cpp is locked\n\n.end\n");
  saveScreenshot("groupware-menu-reports");
  remove(server_ + "\\c.cpp.lock");
  ide_.project.clients[0]->ProjectClosed();
  addon.stop();
  EXPECT_TRUE(watchdog.boxes().empty());
}

TEST_F(GroupwareDialogsTest, AMistypedServerDirectoryIsRefusedInItsBoxAndNeverCreated) {
  MessageBoxWatchdog watchdog([](const std::string&) { saveScreenshot("groupware-missing-server"); });
  const std::string mistyped = server_ + "\\mistyped";
  ide_.nodeOptions.projectOptions["KestoGroupwareServer"] = "~" + mistyped + std::string(1, '\0');
  LoadedAddon addon(kAddon);
  ASSERT_TRUE(addon.start(&ide_));
  ide_.project.clients[0]->ProjectOpened(nullptr);
  sendBarCommand(176);
  ide_.project.clients[0]->ProjectClosed();
  addon.stop();
  ASSERT_EQ(watchdog.boxes().size(), 1u);
  EXPECT_EQ(watchdog.boxes()[0], "Kesto AddOn error: Server directory " + mistyped + " does not exist");
  EXPECT_EQ(GetFileAttributesA(mistyped.c_str()), INVALID_FILE_ATTRIBUTES) << "a mistyped server is never made";
  EXPECT_FALSE(readOnly(project_ + "\\a.cpp")) << "nothing was shared, so nothing was given away";
}

TEST_F(GroupwareDialogsTest, AltOnAProjectFileAddsANodeBesideIt) {
  MessageBoxWatchdog watchdog;
  LoadedAddon addon(kAddon);
  ASSERT_TRUE(addon.start(&ide_));
  ide_.project.clients[0]->ProjectOpened(nullptr);
  BYTE keys[256] = {};
  GetKeyboardState(keys);
  keys[VK_MENU] = 0x80;
  SetKeyboardState(keys);
  {
    ModalDriver driver;
    driver.dialogTitle = "Quick add node...";
    driver.dialogScreenshot = "quick-add";
    bool containerEnabled = true;
    driver.onDialog = [&containerEnabled](HWND dialog) {
      containerEnabled = IsWindowEnabled(GetDlgItem(dialog, 110)) != FALSE;
      SetDlgItemTextA(dialog, 102, "util");
    };
    sendBarCommand(10000);
    EXPECT_FALSE(containerEnabled) << "the container waits for its check box";
  }
  keys[VK_MENU] = 0;
  SetKeyboardState(keys);
  ASSERT_EQ(ide_.project.nodes.size(), 4u);
  EXPECT_EQ(ide_.project.nodes[3].name, "util.cpp");
  EXPECT_EQ(ide_.project.nodes[3].parent, 2u) << "beside a.cpp, under its target";
  EXPECT_TRUE(ide_.tools.runs.empty()) << "Alt adds instead of opening the file";
  ide_.project.clients[0]->ProjectClosed();
  addon.stop();
  EXPECT_TRUE(watchdog.boxes().empty());
}

}  // namespace
