// The delivery tool in the IDE: in the Tool menu while a project is open, the
// confirmation dialog, the copies and their progress bar in the status window,
// the report mailed with the task notes; and the class files written when a Make starts.
#include <gtest/gtest.h>

#include <fstream>
#include <string>

#include "addon_loader.h"
#include "foundation/settings.h"
#include "foundation/settings_registry_win32.h"
#include "win32/status_progress_win32.h"
#include "ui_driver.h"

namespace {

const std::string kAddon = windowsPath(KESTO_ADDON_DLL);

class DeliveryToolTest : public ::testing::Test {
 protected:
  void SetUp() override {
    // Task notes go with the delivery mail.
    RegDeleteTreeA(HKEY_LOCAL_MACHINE, SettingsStore::kAddOnRoot);
    dir_ = testFolder("delivery-tool");
    CreateDirectoryA((dir_ + "\\BIN").c_str(), nullptr);
    DeleteFileA((dir_ + "\\BIN\\APP.EXE").c_str());
    DeleteFileA((dir_ + "\\rc.h").c_str());
    std::ofstream(dir_ + "\\APP.EXE", std::ios::binary) << std::string(50000, 'k');
    ide_.project.projectFile = dir_ + "\\DEMO.IDE";
    const IdeHandle top = ide_.project.addNode(0, "demo.exe", "AppExpert");
    const IdeHandle delivery = ide_.project.addNode(top, "DELIVERY", "SourcePool");
    ide_.project.addNode(delivery, dir_ + "\\APP.EXE", ".exe");
    auto& stored = ide_.nodeOptions.projectOptions;
    stored["Kesto_NB_ODR"] = std::string("\x01\0\0\0", 4);
    stored["Kesto_ODR_TYP_0"] = std::string("+.exe\0", 6);
    stored["Kesto_ODR_REP_0"] = "+" + dir_ + "\\BIN" + std::string(1, '\0');
    stored["Kesto_EWindows"] = std::string("\x01\0\0\0", 4);
    stored["Kesto_NB_MAIL"] = std::string("\x01\0\0\0", 4);
    stored["Kesto_MAIL_PJ_0"] = std::string("+lead@example.org\0", 18);
    std::ofstream(dir_ + "\\DEMO.IDE.tsk.txt", std::ios::binary) << "  NOTIFICATIONS FOR ENDED TASKS\n";
  }

  std::string dir_;
  RecordedMail mail_{"delivery-mail.log"};
  TestIde ide_;
};

TEST_F(DeliveryToolTest, ToolDeliversAfterConfirmationAndMakeWritesClassFiles) {
  MessageBoxWatchdog watchdog;
  {
    LoadedAddon addon(kAddon);
    ASSERT_TRUE(addon.start(&ide_));
    EXPECT_TRUE(ide_.tools.added.empty()) << "no tool without a project";
    ide_.project.clients[0]->ProjectOpened(nullptr);
    ASSERT_EQ(ide_.tools.added.size(), 1u);
    const TestTools::Added& tool = ide_.tools.added[0];
    EXPECT_EQ(tool.position, -3);
    EXPECT_EQ(tool.name, "KestoDelivery");
    EXPECT_EQ(tool.flags, 0x2100u);
    EXPECT_EQ(tool.description, "Kesto Project delivery");
    EXPECT_EQ(tool.menuText, "Kesto &Delivery");
    EXPECT_EQ(tool.text, "[Kesto AddOn extension]");
    ASSERT_NE(tool.implementor, nullptr);

    {
      ModalDriver driver;
      driver.dialogTitle = "Kesto Delivery";
      driver.dialogScreenshot = "delivery-confirmation";
      driver.dialogButtons = {102};
      bool mailChecked = false;
      driver.onDialog = [&mailChecked](HWND dialog) { mailChecked = IsDlgButtonChecked(dialog, 103) == BST_CHECKED; };
      EXPECT_EQ(tool.implementor->Execute(nullptr), 0);
      EXPECT_EQ(driver.dialogList, std::vector<std::string>{"APP.EXE -> " + dir_ + "\\BIN"});
      EXPECT_TRUE(mailChecked) << "the project has a recipient";
    }
    EXPECT_EQ(readWholeFile(dir_ + "\\BIN\\APP.EXE"), std::string(50000, 'k'));
    const std::string mail = mail_.text();
    EXPECT_EQ(mail.rfind("subject: Delivery : demo : 1 file (", 0), 0u) << mail;
    EXPECT_NE(mail.find("to: [1 lead@example.org]\nnote:\n" + dir_ + "\\APP.EXE delivered to " + dir_ +
                        "\\BIN\n  NOTIFICATIONS FOR ENDED TASKS\n" + std::string(70, '-') +
                        "\nThat's all folks !\n\n.end\n"),
              std::string::npos)
        << mail;
    EXPECT_EQ(GetFileAttributesA((dir_ + "\\DEMO.IDE.tsk.txt").c_str()), INVALID_FILE_ATTRIBUTES)
        << "the notes are consumed by the sending";

    ASSERT_EQ(ide_.messageWindow.messages.size(), 2u);
    EXPECT_EQ(ide_.messageWindow.messages[0].group, "Delivery");
    EXPECT_EQ(ide_.messageWindow.messages[0].text.rfind("demo : 1 file (", 0), 0u);
    EXPECT_EQ(ide_.messageWindow.messages[1].text, dir_ + "\\APP.EXE delivered");
    EXPECT_EQ(ide_.statusLine.texts.back(), "Delivery terminated");

    ide_.make.fireMakeStarted();
    EXPECT_NE(GetFileAttributesA((dir_ + "\\rc.h").c_str()), INVALID_FILE_ATTRIBUTES)
        << "the project's windows switch regenerates its class files";

    ide_.project.clients[0]->ProjectClosed();
    EXPECT_EQ(ide_.tools.added[0].implementor, nullptr) << "the tool leaves with the project";
    addon.stop();
  }
  EXPECT_EQ(ide_.referencesHeld(), 0);
  EXPECT_TRUE(watchdog.boxes().empty());
}

TEST_F(DeliveryToolTest, RefusedMailKeepsTheTaskNotesForTheNextDelivery) {
  DeleteFileA((dir_ + "\\BIN\\APP.EXE").c_str());
  SettingsRegistry().write(std::string(SettingsStore::kAddOnRoot) + "\\Mail", "Control", "1");
  SetEnvironmentVariableA("KESTO_TEST_MAPI_RESULT", "2");  // MAPI_E_FAILURE
  MessageBoxWatchdog watchdog;
  {
    LoadedAddon addon(kAddon);
    ASSERT_TRUE(addon.start(&ide_));
    ide_.project.clients[0]->ProjectOpened(nullptr);
    ASSERT_EQ(ide_.tools.added.size(), 1u);
    ModalDriver driver;
    driver.dialogTitle = "Kesto Delivery";
    driver.dialogButtons = {102};
    ide_.tools.added[0].implementor->Execute(nullptr);
    ide_.project.clients[0]->ProjectClosed();
    addon.stop();
  }
  SetEnvironmentVariableA("KESTO_TEST_MAPI_RESULT", nullptr);
  EXPECT_NE(mail_.text().find("subject: Delivery : "), std::string::npos) << "MAPI was asked";
  EXPECT_NE(mail_.text().find("\nflags: 9\n"), std::string::npos) << "Control asks for MAPI's dialog";
  EXPECT_EQ(readWholeFile(dir_ + "\\DEMO.IDE.tsk.txt"), "  NOTIFICATIONS FOR ENDED TASKS\n");
  EXPECT_EQ(watchdog.boxes(), std::vector<std::string>{"Kesto AddOn error: MAPI SendMail missed !"});
}

TEST(StatusProgressTest, BarFillsTheStatusWindowInProportionAndGoesAtTheEnd) {
  TestIde ide;
  HWND status = ide.windows.status;
  ASSERT_NE(status, nullptr);
  RECT area;
  GetClientRect(status, &area);
  const int y = area.bottom / 2;
  const int barWidth = area.right - 90;
  drawStatusProgress(25, 100, "APP.EXE");
  saveScreenshot("status-progress");
  HDC dc = GetDC(status);
  EXPECT_EQ(GetPixel(dc, 2, y), RGB(0, 0, 255)) << "the done part is blue";
  EXPECT_NE(GetPixel(dc, barWidth * 3 / 4, y), RGB(0, 0, 255)) << "the rest is not";
  EXPECT_NE(GetPixel(dc, barWidth + 40, y), RGB(0, 0, 255)) << "the last 90 pixels stay the status window's";
  drawStatusProgress(100, 100, "APP.EXE");
  EXPECT_EQ(GetPixel(dc, barWidth - 2, y), RGB(0, 0, 255));
  endStatusProgress();
  EXPECT_NE(GetPixel(dc, 2, y), RGB(0, 0, 255)) << "the end repaints the status window";
  ReleaseDC(status, dc);
}

}  // namespace
