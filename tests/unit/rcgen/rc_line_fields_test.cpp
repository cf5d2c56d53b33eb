// Tokens, comma fields, member names and text-mode lines of the script reader.
#include <gtest/gtest.h>

#include "rcgen/rc_line_fields.h"

TEST(RcLineFieldsTest, CommaFieldsFollowQuotesAndSkipOnlyBlanksAndBackspaces) {
  const std::string line = " CONTROL \"Save, then quit\", IDC_SAVE, \"BUTTON\" , BS_PUSHBUTTON | WS_TABSTOP ,5";
  EXPECT_EQ(commaField(line, 0), "CONTROL \"Save, then quit\"") << "a field that does not open with a quote is raw";
  EXPECT_EQ(commaField(line, 1), "IDC_SAVE");
  EXPECT_EQ(commaField(line, 2), "BUTTON") << "text up to the last quote of the field";
  EXPECT_EQ(commaField(line, 3), "BS_PUSHBUTTON | WS_TABSTOP ") << "trailing blanks are kept";
  EXPECT_EQ(commaField(line, 4), "5");
  EXPECT_EQ(commaField(line, 5), "") << "past the end of the line";
  EXPECT_EQ(commaField("a,\tIDC_X", 1), "\tIDC_X") << "a tab is not skipped";
  EXPECT_EQ(commaField("a,\b \bIDC_X", 1), "IDC_X");
  EXPECT_EQ(commaField("a, \"x\" y\"z,b", 1), "x\" y") << "the last quote within the field closes the value";
  EXPECT_EQ(commaField("a, \"open", 1), "") << "a lone opening quote gives nothing";
  EXPECT_EQ(commaField("", 0), "");
}

TEST(RcLineFieldsTest, TokensStopAtControlCodesButKeepBytesAbove127) {
  std::string token;
  size_t end = firstToken("\t  IDD_CAF\xc9 DIALOG\r", 0, &token);
  EXPECT_EQ(token, "IDD_CAF\xc9");
  firstToken("\t  IDD_CAF\xc9 DIALOG\r", end, &token);
  EXPECT_EQ(token, "DIALOG");
  EXPECT_EQ(firstToken("   "), "");
  EXPECT_EQ(firstToken("\vX"), "") << "only blanks and tabs are skipped";
}

TEST(RcLineFieldsTest, MemberNamesDropAThreeLetterPrefix) {
  EXPECT_EQ(memberName("IDC_NAME"), "NAME");
  EXPECT_EQ(memberName("IDM_OPEN"), "OPEN");
  EXPECT_EQ(memberName("CM_FILEOPEN"), "CM_FILEOPEN");
  EXPECT_EQ(memberName("IDC_"), "IDC_") << "nothing would be left";
  EXPECT_EQ(memberName("IDC_X"), "X");
}

TEST(RcLineFieldsTest, TextModeLinesJoinCrLfAndCutAtTheLimit) {
  using Lines = std::vector<std::string>;
  EXPECT_EQ(textModeLines("a\r\nb\nc", kNoLineLimit), (Lines{"a\n", "b\n", "c"}));
  EXPECT_EQ(textModeLines("a\rb\r", kNoLineLimit), (Lines{"a\n", "b\n"})) << "old Mac line ends";
  EXPECT_EQ(textModeLines("abcdefg\nh", 3), (Lines{"abc", "def", "g\n", "h"}));
  EXPECT_EQ(textModeLines("", kNoLineLimit), Lines{});

  std::string line = "x\t";
  dropLineEnd(&line);
  EXPECT_EQ(line, "x") << "one control character goes, whatever it is";
  line = "caf\xe9";
  dropLineEnd(&line);
  EXPECT_EQ(line, "caf\xe9");
}
