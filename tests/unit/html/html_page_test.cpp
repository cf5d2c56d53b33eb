// The documentation options page.
#include <gtest/gtest.h>

#include "html/html_page.h"
#include "support/page_control.h"

TEST(HtmlPageTest, WithoutAProjectThePageShowsTheDefaultsDisabledAndStoresNothing) {
  HtmlPage html(nullptr);
  html.show();
  EXPECT_FALSE(html.enabled(1010));
  html.store();
  EXPECT_EQ(*bound(html, 1014).text, "*.cpp;*.h") << "the project defaults, shown disabled";
}
