// The class generation options page.
#include <gtest/gtest.h>

#include "rcgen/kesto_windows_page.h"

TEST(KestoWindowsPageTest, WithoutAProjectThePageIsDisabledAndStoresNothing) {
  KestoWindowsPage windows(nullptr);
  windows.show();
  EXPECT_FALSE(windows.enabled(1010));
  windows.store();
}
