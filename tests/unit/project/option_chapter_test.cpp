// The option chapter: its pages, dialogs and key texts.
#include <gtest/gtest.h>

#include "project/key_code.h"
#include "project/option_chapter.h"
#include "support/page_control.h"

TEST(OptionChapterTest, PagesGetDialogsFrom102AndOnlyTheFirstIsTheChapterKind) {
  EXPECT_STREQ(kOptionPages[0].title, "Kesto AddOn for Borland C++");
  EXPECT_STREQ(kOptionPages[6].description, "set mail options");
  EXPECT_STREQ(kOptionPages[10].title, "Kesto Windows");
  EXPECT_EQ(optionPageDialog(0), 102);
  EXPECT_EQ(optionPageDialog(10), 112);
  EXPECT_EQ(optionPageKind(0), 0x1000);
  EXPECT_EQ(optionPageKind(1), 1);
  EXPECT_EQ(kOptionPages[2].helpTopic, 12);
  EXPECT_EQ(kOptionPages[3].helpTopic, 16);
  FirstOptionPage first("Windows NT 6.1");
  EXPECT_EQ(*bound(first, kVersionTextControl).text, "Version 1.2");
  EXPECT_EQ(*bound(first, kSystemTextControl).text, "Windows NT 6.1");
  EXPECT_EQ(first.hint(4242), "") << "an unbound control has no hint";
}

TEST(OptionChapterTest, KeyTextJoinsTheModifiersBeforeTheKeyName) {
  EXPECT_EQ(keyText(false, false, false, "F5"), "F5");
  EXPECT_EQ(keyText(true, false, true, "F5"), "Ctrl+Shift+F5");
  EXPECT_EQ(keyText(false, false, true, "A"), "Shift+A");
  EXPECT_EQ(keyText(true, true, true, "Home"), "Ctrl+Alt+Shift+Home");
  EXPECT_EQ(keyText(false, true, false, "X"), "+Alt+X");
  EXPECT_EQ(virtualKeyName(0x70), "F1");
  EXPECT_EQ(virtualKeyName(0x87), "F24");
  EXPECT_EQ(virtualKeyName('Q'), "Q");
  EXPECT_EQ(virtualKeyName(0xBA), "Key 186");
}
