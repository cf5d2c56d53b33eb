// The completion key in an editor buffer and the documentation commands of the
// bar in the IDE: the word before the caret completed, the site written on a
// worker thread, and a second generation refused while one runs.
#include <gtest/gtest.h>

#include <fstream>
#include <string>

#include "addon_loader.h"
#include "foundation/settings.h"
#include "foundation/settings_registry_win32.h"
#include "ui_driver.h"

namespace {

const std::string kAddon = windowsPath(KESTO_ADDON_DLL);

// The pages of the site in dir, each passed to onPage when given; their number.
int forEachPage(const std::string& dir, void (*onPage)(const std::string& path) = nullptr) {
  WIN32_FIND_DATAA found;
  HANDLE search = FindFirstFileA((dir + "\\*.html").c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return 0;
  int count = 0;
  do {
    ++count;
    if (onPage) onPage(dir + "\\" + found.cFileName);
  } while (FindNextFileA(search, &found));
  FindClose(search);
  return count;
}

int filesIn(const std::string& dir) { return forEachPage(dir); }

// A run must start from no page at all, to see the first one come.
void removePages(const std::string& dir) {
  forEachPage(dir, [](const std::string& path) { DeleteFileA(path.c_str()); });
}

TEST(CompletionKeyTest, CompletesTheWordBeforeTheCaretAndMovesTheCaret) {
  RegDeleteTreeA(HKEY_LOCAL_MACHINE, SettingsStore::kAddOnRoot);
  const std::string keywords = testFolder("completion") + "\\c.kwd";
  std::ofstream(keywords, std::ios::binary) << "print|Prints a line\r\nprintf|Formats a line\r\nprivate\r\n";
  SettingsRegistry registry;
  SettingsStore store;
  store.setBackend(&registry);
  ASSERT_TRUE(store.writeList("Completion", "Files", {keywords}));

  MessageBoxWatchdog watchdog;
  TestIde ide;
  LoadedAddon addon(kAddon);
  ASSERT_TRUE(addon.start(&ide));
  const IdeHandle view = ide.openFile("C:\\SRC\\MAIN.CPP", "int x;\n  prin(1); priv\n");
  TestBuffer& buffer = ide.editor.buffers[view];
  buffer.line = 2;
  buffer.column = 7;
  // The key (222 by default) as the user strikes it in the editor: the hook passes it on as command 102.
  SetFocus(GetWindow(buffer.window, GW_CHILD));
  pressKey(VK_OEM_7);
  pumpMessages(200);
  EXPECT_EQ(buffer.lines[1], "  print(1); priv");
  EXPECT_EQ(buffer.column, 8) << "past the inserted text";
  ASSERT_FALSE(ide.statusLine.texts.empty());
  EXPECT_NE(ide.statusLine.texts.back().find("print, printf"), std::string::npos) << ide.statusLine.texts.back();

  buffer.column = 17;
  sendBarCommand(102);
  EXPECT_EQ(buffer.lines[1], "  print(1); private");
  EXPECT_EQ(ide.statusLine.texts.back(), "Completion done");

  addon.stop();
  EXPECT_TRUE(watchdog.boxes().empty());
}

// A project of one target in a test folder, open in the IDE with the add-on
// loaded, its old site removed.
class DocumentationCommandsTest : public ::testing::Test {
 protected:
  void open(const std::string& folder, const std::string& projectName) {
    RegDeleteTreeA(HKEY_LOCAL_MACHINE, SettingsStore::kAddOnRoot);
    project_ = testFolder(folder);
    site_ = project_ + "\\kHTML";
    removePages(site_);
    ide_.project.projectFile = project_ + "\\" + projectName + ".IDE";
    ide_.project.addNode(0, "docs.exe", ".exe");
    ASSERT_TRUE(addon_.start(&ide_));
    ide_.project.clients[0]->ProjectOpened(nullptr);
  }
  void close() {
    ide_.project.clients[0]->ProjectClosed();
    addon_.stop();
  }

  MessageBoxWatchdog watchdog_;
  TestIde ide_;
  LoadedAddon addon_{kAddon};
  std::string project_;
  std::string site_;
};

TEST_F(DocumentationCommandsTest, GeneratesOnAWorkerThreadAndRefusesASecondRunMeanwhile) {
  const int sources = 300;
  const std::string folder = testFolder("html-project");
  for (int i = 0; i < sources; ++i)
    std::ofstream(folder + "\\unit" + std::to_string(i) + ".cpp") << "int compute" << i << "(int a) { return a; }\n";
  open("html-project", "DOCS");

  sendBarCommand(194);
  ASSERT_TRUE(pumpUntil([this] { return filesIn(site_) > 0; }, 20000)) << "the site is being written";
  sendBarCommand(194);
  EXPECT_EQ(watchdog_.boxes(), std::vector<std::string>{"Warning: HTML generation in progress"});
  EXPECT_TRUE(pumpUntil([this] { return filesIn(site_) >= 5 + 2 * sources; }, 60000)) << filesIn(site_);
  pumpMessages(500);  // the thread ends after its last page

  // The test prefix has no browser: the shell's failure names the page it was asked to open.
  sendBarCommand(195);
  ASSERT_FALSE(ide_.statusLine.texts.empty());
  EXPECT_NE(ide_.statusLine.texts.back().find(site_ + "\\Documentation DOCS.html: error"), std::string::npos)
      << ide_.statusLine.texts.back();
  removePages(site_);
  sendBarCommand(194);
  close();
  EXPECT_EQ(filesIn(site_), 5 + 2 * sources) << "the add-on waits for its generation before it goes";
  EXPECT_EQ(watchdog_.boxes().size(), 1u);
}

TEST_F(DocumentationCommandsTest, ASourceThatCannotBeReadIsNamedOnTheStatusLine) {
  const std::string folder = testFolder("html-skipped");
  std::ofstream(folder + "\\open.cpp") << "int open(int a) { return a; }\n";
  std::ofstream(folder + "\\held.cpp") << "int held(int a) { return a; }\n";
  // Held with no sharing, as another program's exclusive handle would.
  HANDLE held = CreateFileA((folder + "\\held.cpp").c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  ASSERT_NE(held, INVALID_HANDLE_VALUE);
  open("html-skipped", "SKIP");
  sendBarCommand(194);
  auto skippedShown = [this] {
    return !ide_.statusLine.texts.empty() && ide_.statusLine.texts.back().find("Skipped 1 path") == 0;
  };
  EXPECT_TRUE(pumpUntil(skippedShown, 20000)) << "the worker's report reaches the IDE's thread";
  ASSERT_FALSE(ide_.statusLine.texts.empty());
  EXPECT_NE(ide_.statusLine.texts.back().find("held.cpp"), std::string::npos) << ide_.statusLine.texts.back();
  CloseHandle(held);
  close();
  removePages(site_);
}

}  // namespace
