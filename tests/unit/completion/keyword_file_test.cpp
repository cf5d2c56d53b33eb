// Keyword file lines: ends, limits, ignored lines and descriptions.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "completion/keyword_file.h"

using namespace std::string_literals;

namespace {

std::vector<std::string> entries(const std::string& bytes) {
  std::vector<KeywordEntry> parsed;
  parseKeywordFile(bytes, &parsed);
  std::vector<std::string> out;
  for (const KeywordEntry& entry : parsed) out.push_back(std::string(entry.keyword) + "=" + std::string(entry.description));
  return out;
}

}  // namespace

TEST(KeywordFileTest, SplitsAtFirstBarAndSkipsEmptyAndSectionLines) {
  EXPECT_EQ(entries("printf|formatted | output\r\n\r\n[C library]\r\nputs\r\n \r\n"),
            (std::vector<std::string>{"printf=formatted | output", "puts=", " ="}));
  EXPECT_TRUE(entries("").empty());
  EXPECT_TRUE(entries("\n\n[x\n").empty());
}

TEST(KeywordFileTest, DropsTrailingControlCodesButKeepsBlanksAndHighBytes) {
  EXPECT_EQ(entries("tab\t\x0b\x0c\r\nblank  \ncaf\xe9\x0e\nlast"),
            (std::vector<std::string>{"tab=", "blank  =", "caf\xe9\x0e=", "last="}));
  EXPECT_EQ(entries("a\0b\nc:\\dir\\x y.h|path\n"s), (std::vector<std::string>{"a=", "c:\\dir\\x y.h=path"}));
}

TEST(KeywordFileTest, LongLinesArriveInPiecesOfTheReadBuffer) {
  std::string atLimit(398, 'a');
  std::string past = std::string(398, 'b') + "tail";
  EXPECT_EQ(entries(atLimit + "\r\n" + past + "\n"), (std::vector<std::string>{atLimit + "=", std::string(398, 'b') + "=", "tail="}));
}

TEST(KeywordFileTest, DamageIsNamedWithItsLine) {
  size_t line = 0;
  std::string reason;
  EXPECT_TRUE(keywordFileIsSound("printf|out\r\n[C]\r\n\r\nx|\n", &line, &reason));
  EXPECT_FALSE(keywordFileIsSound("a\nb\n|no keyword\n", &line, &reason));
  EXPECT_EQ(line, 3u);
  EXPECT_EQ(reason, "an entry with no keyword before \"|\"");
  EXPECT_FALSE(keywordFileIsSound("MZ\x90\0\x03\nx"s, &line, &reason));
  EXPECT_EQ(line, 1u);
  EXPECT_EQ(reason, "a zero byte: this is not a text file");
}
