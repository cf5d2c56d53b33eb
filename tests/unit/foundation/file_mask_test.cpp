// Windows-style name matching and ordering, the same on every host.
#include <gtest/gtest.h>

#include "foundation/file_mask.h"

TEST(FileMaskTest, MatchesWithoutCaseWithStarAndQuestionMark) {
  EXPECT_TRUE(matchesMask("Main.CPP", "*.cpp"));
  EXPECT_TRUE(matchesMask("VERSION.RC", "version.rc"));
  EXPECT_TRUE(matchesMask("a b.h", "? ?.h"));
  EXPECT_TRUE(matchesMask("noext", "*.*"));
  EXPECT_TRUE(matchesMask("noext", "noext.*"));
  EXPECT_FALSE(matchesMask("main.cpp.bak", "*.cpp"));
  EXPECT_FALSE(matchesMask("main.c", "*.cpp"));
  EXPECT_TRUE(matchesMask("aaaaaaaaaaaaaaaaaaaaaaaaaaaaab", "*a*a*a*a*a*a*b"));
}

TEST(FileMaskTest, MaskListsSplitAtSemicolons) {
  EXPECT_EQ(splitMasks("*.cpp;;*.h;"), (std::vector<std::string>{"*.cpp", "*.h"}));
  EXPECT_TRUE(matchesAnyMask("x.H", "*.cpp;*.h"));
  EXPECT_FALSE(matchesAnyMask("x.hpp", "*.cpp;*.h"));
  EXPECT_FALSE(matchesAnyMask("x.cpp", ""));
}

TEST(FileMaskTest, NamesOrderAsTheWindowsFileSystemListsThem) {
  EXPECT_TRUE(lessFileName("apple", "Banana"));
  EXPECT_TRUE(lessFileName("B", "b"));
  EXPECT_FALSE(lessFileName("b", "B"));
  EXPECT_TRUE(lessFileName("ab", "abc"));
}
