// The bar's settings, placement and command table.
#include <gtest/gtest.h>

#include "foundation/command_ranges.h"
#include "foundation/settings.h"
#include "foundation/settings_file.h"
#include "support/temp_dir.h"
#include "topbar/bar_commands.h"
#include "topbar/bar_geometry.h"
#include "topbar/top_bar_settings.h"

namespace {

TEST(TopBarSettingsTest, MarginsDefaultByLookAndEveryFieldRoundTrips) {
  TempDir dir;
  SettingsFile file(dir.file("settings.reg"));
  settings().setBackend(&file);
  TopBarSettings old = TopBarSettings::read(false);
  EXPECT_EQ(old.leftMargin, 17);
  EXPECT_EQ(old.rightMargin, 37);
  TopBarSettings bar = TopBarSettings::read(true);
  EXPECT_EQ(bar.leftMargin, -1);
  EXPECT_EQ(bar.rightMargin, 58);
  bar.leftMargin = 4000;  // the page stores what is typed
  bar.construction = 2;
  bar.write();
  TopBarSettings again = TopBarSettings::read(false);
  settings().setBackend(nullptr);
  EXPECT_EQ(again.leftMargin, 4000);
  EXPECT_EQ(again.rightMargin, 58);
  EXPECT_EQ(again.construction, 2);
}

TEST(BarGeometryTest, NormalRowInBothLooksAndExpansionToEveryRow) {
  ScreenMetrics screen{true, 1024, 768, 19, 18};
  BarRect bar = normalBarRect(screen, 0, 0);
  EXPECT_EQ(bar.x, 0);
  EXPECT_EQ(bar.y, -2);
  EXPECT_EQ(bar.width, 1024);
  EXPECT_EQ(bar.height, 20);
  screen.newShell = false;
  bar = normalBarRect(screen, -5, 37);
  EXPECT_EQ(bar.x, -5);
  EXPECT_EQ(bar.y, -21);
  EXPECT_EQ(bar.width, 992);
  EXPECT_EQ(bar.height, 38);

  // A menu bar wrapped on three rows: the client area appears past 3 rows.
  screen.newShell = true;
  auto client = [](int32_t height) { return height - 2 - 3 * 19 > 0 ? height - 2 - 3 * 19 : 0; };
  EXPECT_EQ(measureExpandedHeight(screen, 20, client), 58);
  EXPECT_EQ(measureExpandedHeight(screen, 20, [](int32_t) { return 0; }), 704 - 1) << "stops near the screen's bottom";
}

TEST(BarCommandsTest, RangesAndStatusTexts) {
  uint32_t index = 0;
  EXPECT_EQ(barCommandFor(10042, &index), BarCommand::ProjectFile);
  EXPECT_EQ(index, 42u);
  EXPECT_EQ(barCommandFor(599, &index), BarCommand::RecentHeader);
  EXPECT_EQ(barCommandFor(188, &index), BarCommand::TitleBarPopup);
  EXPECT_EQ(barCommandFor(179, &index), BarCommand::None);
  EXPECT_EQ(barCommandFor(600, &index), BarCommand::None);
  EXPECT_EQ(barCommandFor(0, &index), BarCommand::None) << "a popup's grayed \"... N more\"";
  EXPECT_EQ(barCommandFor(kQuickFindResultCommands.last, &index), BarCommand::QuickFindResult);
  EXPECT_EQ(index, 99u);
  BarItemNames names;
  names.recentProject = [](uint32_t n) { return "c:\\p" + std::to_string(n) + ".ide"; };
  names.tool = [](uint32_t) { return std::string("app.exe"); };
  names.recentHeader = [](uint32_t) { return std::string("a.h"); };
  names.projectFile = [](uint32_t) { return std::string("main.cpp"); };
  EXPECT_EQ(barStatusText(203, names), "Switch to project c:\\p3.ide");
  EXPECT_EQ(barStatusText(300, names), "Run app.exe");
  EXPECT_EQ(barStatusText(10000, names), "Open main.cpp");
  EXPECT_EQ(barStatusText(196, names), "Open help window");
  EXPECT_EQ(barStatusText(171, names), " ");
}

}  // namespace
