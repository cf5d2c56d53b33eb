// The line filters of QuickFind and the cross reference, and the search that
// hands them only the lines holding the name.
#include <gtest/gtest.h>

#include "navigation/line_match.h"
#include "navigation/name_lines.h"
#include "navigation/text_lines.h"

TEST(LineMatchTest, FunctionNeedsTheWholeNameBeforeTheParen) {
  EXPECT_TRUE(matchesFunctionLine("void Frame::Paint(HDC dc)", "Paint")) << "':' separates";
  EXPECT_FALSE(matchesFunctionLine("void Frame::PaintAll(HDC dc)", "Paint"));
  EXPECT_TRUE(matchesFunctionLine("Paint(void)", "Paint")) << "a name at the line start";
  EXPECT_FALSE(matchesFunctionLine("int f(Paint p)", "Paint")) << "the name must come before '('";
  EXPECT_FALSE(matchesFunctionLine("  Paint(x)", "Paint"));
  EXPECT_FALSE(matchesFunctionLine("void Paint(void);", "Paint"));
  EXPECT_FALSE(matchesFunctionLine("::Paint(void)", "Paint"));
}

TEST(LineMatchTest, MethodNeedsColonsBeforeTheName) {
  std::string text;
  EXPECT_TRUE(matchesMethodLine("void Frame::Paint(HDC dc)", "Paint", &text));
  EXPECT_EQ(text, "Frame::Paint");
  EXPECT_TRUE(matchesMethodLine("Foo& Foo::operator=(const Foo&)", "operator", &text));
  EXPECT_EQ(text, "Foo::operator");
  EXPECT_FALSE(matchesMethodLine("void Paint(void)", "Paint", &text));
  EXPECT_FALSE(matchesMethodLine("void Frame::PaintAll(void)", "Paint", &text));
  EXPECT_FALSE(matchesMethodLine("Paint Frame::Get(void)", "Paint", &text)) << "\"::\" after the first occurrence";
}

TEST(LineMatchTest, ClassTriesOnlyTheFirstOccurrence) {
  EXPECT_TRUE(matchesClassLine("class Foo : public Bar", "Foo"));
  EXPECT_TRUE(matchesClassLine("class Foo", "Foo"));
  EXPECT_FALSE(matchesClassLine("class FooBar : public Foo", "Foo"));
  EXPECT_FALSE(matchesClassLine("class Foo;", "Foo"));
  EXPECT_FALSE(matchesClassLine("classy Foo", "Foo"));
  EXPECT_FALSE(matchesClassLine("Class Foo", "Foo"));
  EXPECT_FALSE(matchesClassLine(" class Foo", "Foo"));
}

TEST(LineMatchTest, ReferenceIsAnIndentedWholeWord) {
  EXPECT_TRUE(matchesReferenceLine("\tx = Paint(1);", "Paint"));
  EXPECT_TRUE(matchesReferenceLine("    Paint(dc); Paint(1);", "Paint"));
  EXPECT_FALSE(matchesReferenceLine("Paint(0);", "Paint")) << "column one is a definition, not a use";
  EXPECT_FALSE(matchesReferenceLine("  x = Painter + Paint;", "Paint")) << "only the first occurrence is tried";
  EXPECT_TRUE(matchesReferenceLine("\xe9 Paint", "Paint")) << "a byte above 127 counts as a blank";
  EXPECT_FALSE(matchesReferenceLine("", ""));
}

namespace {

// What the plain line reader gives for the lines holding the name.
std::vector<std::pair<int32_t, std::string>> slowLines(const std::string& text, const std::string& name) {
  std::vector<std::pair<int32_t, std::string>> out;
  LineReader reader(text);
  std::string_view line;
  int32_t number = 0;
  while (reader.next(&line, &number))
    if (line.find(name) != std::string_view::npos) out.emplace_back(number, std::string(line));
  return out;
}

std::vector<std::pair<int32_t, std::string>> fastLines(const std::string& text, const std::string& name) {
  std::vector<std::pair<int32_t, std::string>> out;
  NameLines finder(name);
  finder.visit(text, [&](std::string_view line, int32_t number) {
    out.emplace_back(number, std::string(line));
    return true;
  });
  return out;
}

}  // namespace

TEST(NameLinesTest, NumbersLinesAsTheLineReaderDoes) {
  const std::string texts[] = {
      "a\nb ab\n\nab ab\nx",
      "ab\r\nab\r\rab\n\rab",
      std::string("ab\0ab\r\n\0\nab", 12),
      "ab",
      "",
      "\n\n\nzab",
      "abababab\nba\nab",
  };
  for (const std::string& text : texts) {
    for (const char* name : {"ab", "b", "a", "zab", "abab", "x"}) EXPECT_EQ(fastLines(text, name), slowLines(text, name)) << name;
  }
  EXPECT_EQ(fastLines("a\nb\n", ""), (std::vector<std::pair<int32_t, std::string>>{{1, "a"}, {2, "b"}}));
  EXPECT_TRUE(fastLines("a\nb\n", "a\nb").empty()) << "no line holds a line end";
}

TEST(NameLinesTest, StopsWhenTheVisitorSaysSo) {
  NameLines finder("x");
  int visits = 0;
  EXPECT_FALSE(finder.visit("x\nx\nx\n", [&](std::string_view, int32_t) { return ++visits < 2; }));
  EXPECT_EQ(visits, 2);
}
