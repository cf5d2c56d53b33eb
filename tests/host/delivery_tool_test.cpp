// The delivery tool in the IDE: in the Tool menu while a project is open, the
// confirmation dialog, the copies; and the class files written when a Make starts.
#include <gtest/gtest.h>

#include <atomic>
#include <fstream>
#include <sstream>
#include <string>
#include <thread>

#include "addon_loader.h"

namespace {

const std::string kAddon = windowsPath(KESTO_ADDON_DLL);

std::string readAll(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::stringstream text;
  text << in.rdbuf();
  return text.str();
}

// Waits for the confirmation dialog, reads what it shows and presses "Proceed".
class ConfirmationClicker {
 public:
  ConfirmationClicker()
      : thread_([this] {
          for (int tries = 0; tries < 200 && !done_; ++tries) {
            HWND dialog = FindWindowA("#32770", "Kesto Delivery");
            if (dialog && IsWindowVisible(dialog)) {
              char row[512] = {};
              SendDlgItemMessageA(dialog, 101, LB_GETTEXT, 0, reinterpret_cast<LPARAM>(row));
              firstRow = row;
              rows = static_cast<int>(SendDlgItemMessageA(dialog, 101, LB_GETCOUNT, 0, 0));
              mailChecked = IsDlgButtonChecked(dialog, 103) == BST_CHECKED;
              SendMessageA(GetDlgItem(dialog, 102), BM_CLICK, 0, 0);
              return;
            }
            Sleep(50);
          }
        }) {}
  ~ConfirmationClicker() {
    done_ = true;
    wait();
  }
  void wait() {
    if (thread_.joinable()) thread_.join();
  }

  std::string firstRow;
  int rows = 0;
  bool mailChecked = true;

 private:
  std::atomic<bool> done_{false};
  std::thread thread_;
};

class DeliveryToolTest : public ::testing::Test {
 protected:
  void SetUp() override {
    CreateDirectoryA(windowsPath(KESTO_HOST_WORK_DIR).c_str(), nullptr);
    dir_ = windowsPath(KESTO_HOST_WORK_DIR) + "\\delivery-tool";
    CreateDirectoryA(dir_.c_str(), nullptr);
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
  }

  std::string dir_;
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
      ConfirmationClicker clicker;
      EXPECT_EQ(tool.implementor->Execute(nullptr), 0);
      clicker.wait();
      EXPECT_EQ(clicker.rows, 1);
      EXPECT_EQ(clicker.firstRow, "APP.EXE -> " + dir_ + "\\BIN");
      EXPECT_FALSE(clicker.mailChecked) << "the project has no recipients";
    }
    EXPECT_EQ(readAll(dir_ + "\\BIN\\APP.EXE"), std::string(50000, 'k'));
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

}  // namespace
