// The lists built from the two trees, and the lock file.
#include "groupware/gw_lists.h"
#include "groupware/lock_file.h"
#include "groupware/tree_scan.h"
#include "gw_trees.h"

using namespace std::string_literals;

namespace {

class GwScanTest : public GwTrees {
 protected:
  GwRoots roots() { return GwRoots{normalizeRoot(dir.file("proj")), normalizeRoot(dir.file("srv"))}; }
  std::vector<std::string> sendRows(const std::string& filters) {
    GWsendList list;
    fillSendList(list, roots(), filters);
    std::vector<std::string> rows;
    for (int32_t i = 0; i < list.count(); ++i) rows.push_back(sendRowText(*list[i], roots()));
    return rows;
  }
};

TEST_F(GwScanTest, SendListHoldsWritableFilesOnceSortedByPath) {
  put(local("b.cpp"), "b", kOld, false);
  put(local("A.cpp"), "a", kOld, false);
  put(local("sub dir/z.h"), "z", kOld, false);
  put(local("ref.cpp"), "r", kOld, true);
  put(local(".git/x.cpp"), "x", kOld, false);
  put(local("notes.txt"), "n", kOld, false);
  std::vector<std::string> expected = {"A.cpp\tNEW!\t ", "b.cpp\tNEW!\t ", native("sub dir/z.h") + "\tNEW!\t "};
  // "*.cpp" and "*.c*" both match the sources: each is listed once.
  EXPECT_EQ(sendRows("*.cpp;*.c*;;*.H;"), expected);
}

TEST_F(GwScanTest, SendListComparesWithTheServerCopy) {
  put(local("same.cpp"), "1", kOld, false);
  put(server("same.cpp"), "1", kOld, true);
  put(local("newer.cpp"), "1", kOld, false);
  put(server("newer.cpp"), "2", kNew, true);
  put(local("edited.cpp"), "1", kNew, false);
  put(server("edited.cpp"), "1", kOld, false);
  std::vector<std::string> expected = {"edited.cpp\tOlder\tCONFLICT", "newer.cpp\tNewer\t ", "same.cpp\tSame\t "};
  EXPECT_EQ(sendRows("*.cpp"), expected);
}

TEST_F(GwScanTest, GetListShowsLocksAgesAndAdvice) {
  put(server("locked.h"), "1", kNew, true);
  put(local("locked.h"), "1", kOld, true);
  put(server("free.cpp"), "1", kOld, false);
  put(local("free.cpp"), "1", kOld, true);
  put(server("src/new.c"), "1", kOld, false);
  platformOs().writeFile(lockFilePath(server("locked.h")), "ann", nullptr);
  GWgetList list;
  fillGetList(list, roots(), GroupwareSettings::kDefaultFilters);
  std::vector<std::string> rows;
  for (int32_t i = 0; i < list.count(); ++i) rows.push_back(getRowText(*list[i], roots()));
  std::vector<std::string> expected = {"free.cpp\tNo\tSame\t \t ", "locked.h\tYes\tNewer\tRefresh\t ",
                                       native("src/new.c") + "\tNo\tNEW!\tRefresh\t "};
  EXPECT_EQ(rows, expected);
}

TEST(GwLockFile, HolderIsTheFirstLineCutToTheNameBuffer) {
  EXPECT_EQ(lockHolderOf("ann"), "ann");
  EXPECT_EQ(lockHolderOf("ann\r\nbob"), "ann");
  EXPECT_EQ(lockHolderOf(std::string("j\xe9r\0x", 5)), "j\xe9r");
  EXPECT_EQ(lockHolderOf(""), "");
  EXPECT_EQ(lockHolderOf(std::string(150, 'u')), std::string(99, 'u'));
}

TEST(GwLockFile, ARecordIsOneLineHoldingAName) {
  size_t line = 0;
  std::string reason;
  for (const std::string& sound : {"ann"s, "ann\r\n"s, "j\xe9r\0"s})
    EXPECT_TRUE(lockRecordIsSound(sound, &line, &reason)) << sound;
  const std::pair<std::string, std::string> damaged[] = {
      {"ann\r\nbob\r\n", "2: a lock record holds one line, the user's name"},
      {"ann\n\n\nbob", "4: a lock record holds one line, the user's name"},
      {"", "1: no user name"},
      {"\r\nann", "2: a lock record holds one line, the user's name"},
      {"a\x07" "b", "1: control code 0x07 in the user name"},
      {std::string(100, 'u'), "1: a user name of 100 bytes, over the 99 a record holds"},
  };
  for (const auto& [bytes, fault] : damaged) {
    EXPECT_FALSE(lockRecordIsSound(bytes, &line, &reason)) << bytes;
    EXPECT_EQ(std::to_string(line) + ": " + reason, fault);
  }
}

TEST(GwRoots, ListedNamesFollowTheRootAndOneSeparator) {
  std::string root = normalizeRoot(std::string("top") + kPathSeparator + kPathSeparator);
  EXPECT_EQ(root, "top");
  EXPECT_EQ(listedName(root, joinPath("top", "a.cpp")), "a.cpp");
  EXPECT_EQ(listedName(normalizeRoot(std::string(1, kPathSeparator)), std::string(1, kPathSeparator) + "a.cpp"),
            "a.cpp");
}

}  // namespace
