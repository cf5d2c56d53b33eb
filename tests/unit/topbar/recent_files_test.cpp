// The recent projects and headers: their storage and how entries move.
#include "topbar/recent_files.h"

#include <gtest/gtest.h>

#include "foundation/settings.h"
#include "foundation/settings_file.h"
#include "support/temp_dir.h"

namespace {

class RecentFilesTest : public ::testing::Test {
 protected:
  TempDir dir;
  SettingsFile file{dir.file("settings.reg")};
  RecentFilesTest() { settings().setBackend(&file); }
  ~RecentFilesTest() override { settings().setBackend(nullptr); }
};

TEST_F(RecentFilesTest, LoadStopsAtTheFirstMissingEntryAndAtTheMaximum) {
  settings().writeInteger("TopBar", "NbINC", 5);
  for (int i = 0; i < 3; ++i) settings().writeString("TopBar\\INC", "Entry" + std::to_string(i), "h" + std::to_string(i) + ".h");
  settings().writeInteger("TopBar", "NbIDE", 3);
  settings().writeInteger("TopBar", "MaxIDE", 2);
  for (int i = 0; i < 3; ++i) settings().writeString("TopBar\\IDE", "Entry" + std::to_string(i), "p" + std::to_string(i));
  RecentFiles recent;
  recent.load();
  EXPECT_EQ(recent.headers, (std::vector<std::string>{"h0.h", "h1.h", "h2.h"}));
  EXPECT_EQ(recent.projects, (std::vector<std::string>{"p0", "p1"}));
  EXPECT_EQ(recent.maxHeaders, 50);

  recent.rememberProject("p9");
  recent.save();
  RecentFiles again;
  again.load();
  EXPECT_EQ(again.projects, (std::vector<std::string>{"p9", "p0"}));
  EXPECT_EQ(again.headers, recent.headers);
}

TEST_F(RecentFilesTest, ProjectsKeepTheirPlaceHeadersMoveToTheFrontWhateverTheirCase) {
  RecentFiles recent;
  recent.maxProjects = 3;
  for (const char* path : {"a.ide", "b.ide", "c.ide"}) recent.rememberProject(path);
  recent.rememberProject("b.ide");
  EXPECT_EQ(recent.projects, (std::vector<std::string>{"c.ide", "b.ide", "a.ide"}));
  recent.rememberProject("d.ide");
  EXPECT_EQ(recent.projects, (std::vector<std::string>{"d.ide", "c.ide", "b.ide"}));
  recent.forgetProject("c.ide");
  EXPECT_EQ(recent.projects, (std::vector<std::string>{"d.ide", "b.ide"}));

  EXPECT_TRUE(recent.rememberHeader("C:\\INC\\ONE.H"));
  EXPECT_TRUE(recent.rememberHeader("c:\\inc\\two.h"));
  EXPECT_TRUE(recent.rememberHeader("c:\\inc\\one.h"));
  EXPECT_FALSE(recent.rememberHeader("c:\\src\\main.cpp"));
  EXPECT_EQ(recent.headers, (std::vector<std::string>{"c:\\inc\\one.h", "c:\\inc\\two.h"}));
  recent.applyMaxima(3, 1);
  EXPECT_EQ(recent.headers, (std::vector<std::string>{"c:\\inc\\one.h"}));
  EXPECT_EQ(recent.projects.size(), 2u);

  EXPECT_EQ(withoutLineSuffix("c:\\src\\a.cpp:120"), "c:\\src\\a.cpp");
  EXPECT_EQ(withoutLineSuffix("c:x"), "c:x");
  EXPECT_TRUE(recent.rememberHeader(std::string(300, 'x') + ".h"));
  EXPECT_EQ(recent.headers[0].size(), RecentFiles::kSlotBytes - 1);
}

}  // namespace
