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

namespace {

std::vector<std::string> linesOf(std::string_view text, size_t limit) {
  std::vector<std::string> lines;
  TextModeLines reader(text, limit);
  std::string_view line;
  while (reader.next(&line)) lines.emplace_back(withoutLineEnd(line));
  return lines;
}

}  // namespace

TEST(RcLineFieldsTest, TextModeLinesJoinCrLfAndCutAtTheLimit) {
  using Lines = std::vector<std::string>;
  EXPECT_EQ(linesOf("a\r\nb\nc", kNoLineLimit), (Lines{"a", "b", "c"}));
  EXPECT_EQ(linesOf("a\rb\r", kNoLineLimit), (Lines{"a", "b"})) << "old Mac line ends";
  EXPECT_EQ(linesOf("abcdefg\nh", 3), (Lines{"abc", "def", "g", "h"}));
  EXPECT_EQ(linesOf("ab\r\ncd", 3), (Lines{"ab", "cd"})) << "CR LF counts as one character of the piece";
  EXPECT_EQ(linesOf("", kNoLineLimit), Lines{});

  EXPECT_EQ(withoutLineEnd("x\t"), "x") << "one control character goes, whatever it is";
  EXPECT_EQ(withoutLineEnd("x\t\r\n"), "x\t") << "a line end, and only it";
  EXPECT_EQ(withoutLineEnd("caf\xe9"), "caf\xe9");
}
