// The word at the cursor and the editor's file name.
#include <gtest/gtest.h>

#include "completion/caret_text.h"

TEST(CaretTextTest, WordAtCursorSpansTheCaretAndIsCapped) {
  EXPECT_EQ(wordAtCursor("  x = Stack::push(v);", 15), "push");
  EXPECT_EQ(wordAtCursor("  x = Stack::push(v);", 18), "push") << "just after the word";
  EXPECT_EQ(wordAtCursor("  x = Stack::push(v);", 1), "");
  EXPECT_EQ(wordAtCursor("abc", 4), "") << "past the end of the line";
  EXPECT_EQ(wordAtCursor("caf\xe9 name", 6), "name");
  std::string longWord(300, 'w');
  EXPECT_EQ(wordAtCursor(" " + longWord, 200), std::string(255, 'w'));
  EXPECT_EQ(wordAtCursor(" " + longWord, 301), std::string(255, 'w')) << "even from its last character";
  EXPECT_EQ(wordAtCursor("\xe9t\xe9 x", 2), "t") << "bytes above 127 separate";
  EXPECT_EQ(wordAtCursor("abc\r\n", 4), "abc") << "a line end left in the line ends the word";
}

TEST(CaretTextTest, EditorFileNameLosesLineNumbersButKeepsTheDrive) {
  EXPECT_EQ(editorFileName("c:\\src\\a.cpp:120"), "c:\\src\\a.cpp");
  EXPECT_EQ(editorFileName("c:\\my src\\a.cpp:12:4"), "c:\\my src\\a.cpp");
  EXPECT_EQ(editorFileName("c:"), "c:");
  EXPECT_EQ(editorFileName("/src/a.cpp"), "/src/a.cpp");
}

TEST(CaretTextTest, FormatWithoutArgumentsKeepsWhatHasNoArgument) {
  EXPECT_EQ(formatWithoutArguments("100%% of %s, 50%"), "100% of %s, 50%");
}
