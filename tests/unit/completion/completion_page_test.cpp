// The completion options page.
#include <gtest/gtest.h>

#include <fstream>

#include "completion/completion_page.h"
#include "support/fake_host.h"
#include "support/page_control.h"
#include "support/temp_dir.h"

TEST(CompletionPageTest, RemoveAsksAndTheKeyIsStoredWithTheSwitch) {
  RecordingAlerts alerts;
  CompletionEngine engine;
  engine.files = {"a.kwd", "b.kwd"};
  CompletionPage page(engine);
  page.show();
  EXPECT_FALSE(page.enabled(CompletionPage::kRemoveButton)) << "nothing selected";
  *bound(page, 1012).selected = 1;
  alerts.answer = kAnswerNo;
  page.changed(CompletionPage::kRemoveButton);
  EXPECT_EQ(engine.files.size(), 2u);
  alerts.answer = kAnswerYes;
  page.changed(CompletionPage::kRemoveButton);
  EXPECT_EQ(engine.files, std::vector<std::string>{"a.kwd"});
  EXPECT_EQ(*bound(page, 1012).selected, 0) << "the selection stays inside the list";
  ASSERT_EQ(alerts.boxes.size(), 2u);
  EXPECT_EQ(alerts.boxes[0].text, "Ok to remove this file ?");
  page.keyCaptured(1011, 4116, "Ctrl+F5");
  EXPECT_EQ(engine.keyCode, 222) << "the key waits for the page to be stored";
  page.store();
  EXPECT_EQ(engine.keyCode, 4116);
  EXPECT_EQ(engine.textCode, "Ctrl+F5");
}

TEST(CompletionPageTest, ExtractionAddsTheNewKeywordFileOrTellsWhyNot) {
  RecordingAlerts alerts;
  TempDir dir;
  std::ofstream(dir.file("stack.cpp")) << "int Stack::push(int v)\n{\n}\n";
  CompletionEngine engine;
  CompletionPage page(engine);
  page.show();
  EXPECT_TRUE(page.extractFrom(dir.file("stack.cpp")));
  EXPECT_EQ(*bound(page, 1012).rows, std::vector<std::string>{dir.file("stack.kwd")});
  EXPECT_EQ(*bound(page, 1012).selected, 0) << "the new file is selected";
  EXPECT_FALSE(page.extractFrom(dir.file("missing.cpp")));
  EXPECT_EQ(engine.files.size(), 1u);
  ASSERT_EQ(alerts.boxes.size(), 1u);
  EXPECT_EQ(alerts.boxes[0].text, "Impossible to extract keywords");
}
