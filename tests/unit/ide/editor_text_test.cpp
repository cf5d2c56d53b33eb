// The word under the editor's cursor.
#include <gtest/gtest.h>

#include <string>

#include "ide/editor_text.h"

TEST(EditorTextTest, WordAroundTheCursorOrEndingThere) {
  const std::string line = "  value = obj_2.count(x);";
  EXPECT_EQ(wordAtColumn(line, 3), "value") << "on the first character";
  EXPECT_EQ(wordAtColumn(line, 5), "value") << "in the middle";
  EXPECT_EQ(wordAtColumn(line, 8), "value") << "just after it, on the blank";
  EXPECT_EQ(wordAtColumn(line, 13), "obj_2");
  EXPECT_EQ(wordAtColumn(line, 16), "obj_2") << "\".\" separates";
  EXPECT_EQ(wordAtColumn(line, 10), "") << "\"=\" with a blank before";
  EXPECT_EQ(wordAtColumn("\xe9t\xe9 x", 2), "t") << "bytes above 127 separate";
}

TEST(EditorTextTest, NothingOutsideTheLine) {
  EXPECT_EQ(wordAtColumn("abc", 4), "") << "past the end";
  EXPECT_EQ(wordAtColumn("abc", 0), "");
  EXPECT_EQ(wordAtColumn("", 1), "");
  EXPECT_EQ(wordAtColumn("abc\r\n", 4), "abc") << "CR LF left in the line ends the word";
}

TEST(EditorTextTest, LongWordIsCutFromItsStart) {
  const std::string word(300, 'w');
  const std::string line = "x = " + word + ";";
  EXPECT_EQ(wordAtColumn(line, 5), word.substr(0, kMaxCursorWord));
  EXPECT_EQ(wordAtColumn(line, 5 + 299), word.substr(0, kMaxCursorWord)) << "even from its last character";
}
