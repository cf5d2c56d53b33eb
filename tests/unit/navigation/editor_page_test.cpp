// The editor options page: a round trip through its fields, the size check,
// and when storing asks for the editors to be repainted.
#include <gtest/gtest.h>

#include "navigation/editor_page.h"
#include "support/fake_host.h"

namespace {

struct Page {
  MenuSettings menus;
  QuickFindSettings quickFind;
  EditorPagePresenter presenter{menus, quickFind};
  Page() { presenter.show(); }
};

}  // namespace

TEST(EditorPageTest, FieldsRoundTripIntoBothSettings) {
  Page page;
  page.presenter.sorted = false;
  page.presenter.size = 30;
  page.presenter.functionMask = "*.cxx";
  page.presenter.recurse = false;
  page.presenter.setKey(kQuickClass, 5116, "Ctrl+Shift+F5" + std::string(100, '!'));
  page.presenter.store();
  EXPECT_FALSE(page.menus.sorted);
  EXPECT_EQ(page.menus.size, 30);
  EXPECT_EQ(page.quickFind.functionMask, "*.cxx");
  EXPECT_FALSE(page.quickFind.recurse);
  EXPECT_EQ(page.quickFind.keys[kQuickClass], 5116);
  EXPECT_EQ(page.quickFind.keyTexts[kQuickClass].size(), EditorPagePresenter::kKeyTextLimit);
  EXPECT_EQ(page.quickFind.keyTexts[kQuickFunction], "???");
}

TEST(EditorPageTest, SizeOutsideTenToNinetyNineIsRefusedWithABox) {
  RecordingAlerts alerts;
  Page page;
  for (int32_t size : {10, 99}) {
    page.presenter.size = size;
    EXPECT_TRUE(page.presenter.check()) << size;
  }
  for (int32_t size : {9, 100}) {
    page.presenter.size = size;
    EXPECT_FALSE(page.presenter.check()) << size;
  }
  ASSERT_EQ(alerts.boxes.size(), 2u);
  EXPECT_EQ(alerts.boxes[0].text, "Menu size must be between 10 and 99.");
  EXPECT_EQ(alerts.boxes[0].caption, "Kesto Addon error");
}

TEST(EditorPageTest, RepaintWhenTheButtonsAppearOrMove) {
  Page page;
  EXPECT_FALSE(page.presenter.store()) << "nothing changed";
  page.presenter.leftSide = false;
  EXPECT_TRUE(page.presenter.store()) << "the side changed while on";
  page.presenter.enabled = false;
  EXPECT_TRUE(page.presenter.store()) << "switched off";
  page.presenter.leftSide = true;
  EXPECT_FALSE(page.presenter.store()) << "the side of hidden buttons";
  EXPECT_EQ(EditorPagePresenter::hint(kEditorKeyCross), "Set shortkey for \"Cross reference\"");
  EXPECT_EQ(EditorPagePresenter::hint(kEditorControlCount), "");
}
