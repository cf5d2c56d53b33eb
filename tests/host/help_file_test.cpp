// The help viewer hears of the add-on's help file only once a topic was shown.
#include <gtest/gtest.h>

#include <windows.h>

#include <string>

#include "fake_help_viewer.h"
#include "ide/help_file_win32.h"

TEST(HelpFileTest, QuitIsSentOnceAndOnlyAfterATopic) {
  FakeHelpViewer viewer;
  char module[MAX_PATH];
  GetModuleFileNameA(nullptr, module, MAX_PATH);
  std::string expected = module;
  expected.replace(expected.size() - 3, 3, "hlp");

  delete new HelpFile(GetModuleHandleA(nullptr), nullptr);
  EXPECT_TRUE(viewer.heard().empty()) << "no topic, nothing for the viewer";

  auto* help = new HelpFile(GetModuleHandleA(nullptr), nullptr);
  EXPECT_EQ(help->path(), expected);
  help->showTopic(16);
  help->showTopic(12);
  delete help;
  ASSERT_EQ(viewer.heard().size(), 3u);
  EXPECT_EQ(viewer.heard()[0].command, static_cast<unsigned>(HELP_CONTEXT));
  EXPECT_EQ(viewer.heard()[0].data, 16);
  EXPECT_EQ(viewer.heard()[0].file, expected);
  EXPECT_EQ(viewer.heard()[1].command, static_cast<unsigned>(HELP_CONTEXT));
  EXPECT_EQ(viewer.heard()[1].data, 12);
  EXPECT_EQ(viewer.heard()[2].command, static_cast<unsigned>(HELP_QUIT));
  EXPECT_EQ(viewer.heard()[2].file, expected);
}
