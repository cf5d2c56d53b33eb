// QuickFind and the cross reference on small trees: where each search looks,
// in which order, what it reports, and the prompt's history.
#include <gtest/gtest.h>

#include <cctype>

#include "foundation/os.h"
#include "foundation/settings.h"
#include "navigation/cross_reference.h"
#include "navigation/hit_list.h"
#include "navigation/include_search.h"
#include "navigation/quickfind.h"
#include "navigation/search_places.h"
#include "support/fake_host.h"
#include "support/fault_os.h"
#include "support/temp_dir.h"

namespace {

// Runs a test inside dir, as the IDE runs with no project open.
class ScopedCurrentDirectory {
 public:
  explicit ScopedCurrentDirectory(const std::string& dir) : previous_(os().currentDirectory()) {
    os().setCurrentDirectory(dir, nullptr);
  }
  ~ScopedCurrentDirectory() { os().setCurrentDirectory(previous_, nullptr); }

 private:
  std::string previous_;
};

// Dates and times as a fixed system locale gives them.
class FixedClockOs : public FaultOs {
 public:
  std::string formatDate(const SystemTime&, DateForm form, LocaleChoice locale) override {
    return form == DateForm::Short && locale == LocaleChoice::System ? "22/11/2026" : "wrong form";
  }
  std::string formatTime(const SystemTime&, LocaleChoice locale) override {
    return locale == LocaleChoice::System ? "12:34" : "wrong locale";
  }
};

// A first hit's path as the IDE is handed it: upper-cased on Windows.
std::string asFound(const std::string& path) {
  std::string found = nativePath(path);
#ifdef _WIN32
  for (char& c : found) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
#endif
  return found;
}

class QuickFindTest : public ::testing::Test {
 protected:
  void openProject() {
    host.projectPath = dir.file("demo.kpj");
    ProjectNode node;
    node.name = "app.cpp";
    node.includePath = "inc";
    node.sourcePath = "src";
    host.root.nodes.push_back(node);
  }
  TempDir dir;
  FakeHost host;
  QuickFind quickFind;
};

}  // namespace

TEST_F(QuickFindTest, FunctionSearchTakesFilesBeforeSubdirectoriesAndStopsAtTheFirstHit) {
  dir.write("sub/a.cpp", "void Paint(void)\n");
  dir.write("z.cpp", "\nvoid Frame::Paint(HDC dc)\n");
  dir.write(".hidden/b.cpp", "void Paint(void)\n");
  openProject();
  QuickHit hit;
  ASSERT_TRUE(quickFind.findFunction(host, "Paint", "app.cpp", &hit));
  EXPECT_EQ(hit.file, asFound(dir.file("z.cpp")));
  EXPECT_EQ(hit.line, 2);
  EXPECT_EQ(hit.text, "void Frame::Paint(HDC dc)");
  EXPECT_EQ(host.statusTexts, (std::vector<std::string>{"Searching Paint ...", "Searching Paint ... Found !",
                                                        asFound(dir.file("z.cpp")) + " : 2"}));
  EXPECT_TRUE(host.beeps.empty());
}

TEST_F(QuickFindTest, FunctionSearchReachesTheSourcePathAndTheEditorText) {
  TempDir elsewhere;
  dir.write("src/lib.c", "void Other(void)\n");
  openProject();
  host.root.nodes[0].sourcePath = "src;" + elsewhere.path();
  host.editors[elsewhere.file("x.cc")] = "void Paint(int unsaved)\n";
  elsewhere.write("x.cc", "");
  QuickHit hit;
  ASSERT_TRUE(quickFind.findFunction(host, "Paint", "app.cpp", &hit));
  EXPECT_EQ(hit.file, asFound(elsewhere.file("x.cc")));
  EXPECT_FALSE(quickFind.findFunction(host, "Nowhere", "app.cpp", &hit));
  EXPECT_EQ(host.statusTexts.back(), "Sorry, cannot find function...");
  EXPECT_EQ(host.beeps.size(), 1u);
}

TEST_F(QuickFindTest, ClassSearchWithoutProjectFindsNothing) {
  dir.write("frame.h", "class Frame : public Window\n");
  ScopedCurrentDirectory here(dir.path());
  QuickHit hit;
  EXPECT_FALSE(quickFind.findClass(host, "Frame", "", &hit)) << "its only directory is the doubled current directory";
  EXPECT_EQ(host.statusTexts, (std::vector<std::string>{"Searching Frame ...", "Searching Frame ... sorry !",
                                                        "Sorry, cannot find class ..."}));
  EXPECT_EQ(host.beeps.size(), 1u);
}

TEST_F(QuickFindTest, ClassSearchLooksOnTheIncludeAndSourcePathsOnly) {
  dir.write("top.h", "class Frame\n");
  dir.write("inc/frame.h", "class FrameBar : public Frame\nclass Frame : public Window\n");
  openProject();
  QuickHit hit;
  ASSERT_TRUE(quickFind.findClass(host, "Frame", "app.cpp", &hit));
  EXPECT_EQ(hit.file, asFound(dir.file("inc/frame.h")));
  EXPECT_EQ(hit.line, 2);
}

TEST_F(QuickFindTest, MethodSearchCollectsEveryHitButWalksOnlyTheProjectDirectory) {
  dir.write("a.cpp", "void Frame::Paint(HDC dc)\nvoid View::Paint(void)\n");
  dir.write("deep/b.cpp", "int Doc::Paint(int)\n");
  dir.write("src/c.cpp", "void Skipped::Paint(void)\n");
  ScopedCurrentDirectory here(dir.path());
  ASSERT_TRUE(quickFind.findMethods(host, "Paint", ""));
  EXPECT_EQ(describeMenu(quickFind.methodResultsMenu()),
            "800 Frame::Paint\n801 View::Paint\n802 Doc::Paint\n803 Skipped::Paint\n")
      << "without a project the current directory and all below it";
  openProject();
  ASSERT_TRUE(quickFind.findMethods(host, "Paint", "app.cpp"));
  EXPECT_EQ(quickFind.methodResults().count(), 4) << "the source path is not walked, src/ is reached by recursion";
  quickFind.settings().recurse = false;
  ASSERT_TRUE(quickFind.findMethods(host, "Paint", "app.cpp"));
  EXPECT_EQ(quickFind.methodResults().count(), 2);
  EXPECT_EQ(quickFind.methodResults()[1]->line(), 2);
  EXPECT_FALSE(quickFind.findMethods(host, "Nothing", ""));
  EXPECT_EQ(host.statusTexts.back(), "Sorry, cannot find method ...");
}

TEST_F(QuickFindTest, CrossReferenceWritesAHeaderAndOneLocatedMessagePerUse) {
  FixedClockOs clock;
  ScopedOs scoped(clock);
  dir.write("a.cpp", "void Paint(void)\n{\n  Paint(); Paint();\n}\r\n\tx = Painter + Paint;\n");
  dir.write("b.c", "int f(void)\n{\n\treturn Paint ;\n}");
  dir.write("c.h", "  Paint();\n");
  openProject();
  ASSERT_TRUE(quickFind.crossReference(host, "Paint"));
  ASSERT_EQ(host.messages.size(), 3u);
  EXPECT_EQ(host.messages[0].text, "demo : cross reference \"Paint\"  (22/11/2026 , 12:34) : 2 founds");
  EXPECT_EQ(host.messages[0].group, "Cross reference");
  EXPECT_EQ(host.messages[0].parent, 0);
  const FakeHost::Message& second = host.messages[2];
  EXPECT_EQ(second.text, "\treturn Paint ;");
  EXPECT_EQ(second.file, dir.file("b.c"));
  EXPECT_EQ(second.line, 3);
  EXPECT_EQ(second.column, 1);
  EXPECT_EQ(second.kind, 5);
  EXPECT_EQ(second.parent, 1);
  EXPECT_EQ(host.statusTexts.back(), "References found, see Message Window");
  EXPECT_EQ(host.beeps.size(), 1u);
}

TEST_F(QuickFindTest, CrossReferenceFailureBeepsTwice) {
  openProject();
  EXPECT_FALSE(quickFind.crossReference(host, "Paint"));
  EXPECT_EQ(host.statusTexts, (std::vector<std::string>{"Searching Paint ...", "Sorry, nothing found !",
                                                        "Sorry, cannot cross reference ..."}));
  EXPECT_EQ(host.beeps.size(), 2u);
  EXPECT_TRUE(host.messages.empty());
}

TEST(CrossReferenceHeaderTest, ProjectNameCountAndPlural) {
  EXPECT_EQ(crossReferenceHeader("The IDE -  demo", "Paint", "d", "t", 1),
            "demo : cross reference \"Paint\"  (d , t) : 1 found");
  EXPECT_EQ(crossReferenceHeader("No dash here", "x", "d", "t", 3), " : cross reference \"x\"  (d , t) : 3 founds");
  EXPECT_EQ(crossReferenceHeader("a - b - c", "x", "d", "t", 2), "b - c : cross reference \"x\"  (d , t) : 2 founds");
}

TEST(SearchHistoryTest, KeepsTwentyDistinctTextsMostRecentFirst) {
  SearchHistory history;
  for (int i = 1; i <= 20; ++i) history.enter("t" + std::to_string(i));
  history.enter("t5");
  EXPECT_EQ(history.entries().size(), 20u);
  EXPECT_EQ(history.entries()[0], "t5");
  EXPECT_EQ(history.entries()[19], "t1");
  history.enter("t21");
  EXPECT_EQ(history.entries().size(), 20u);
  EXPECT_EQ(history.entries()[0], "t21");
  EXPECT_EQ(history.entries()[19], "t2") << "the 21st distinct text drops the oldest";
  EXPECT_EQ(boundedSearchText(std::string(300, 'x')).size(), 255u);
}

TEST_F(QuickFindTest, IncludeSearchTriesTheProjectTreeThenTheIncludePath) {
  TempDir outside;
  dir.write("deep/er/frame.h", "");
  dir.write(".git/view.h", "");
  outside.write("sys/view.h", "");
  openProject();
  host.root.nodes[0].includePath = outside.path();
  std::string path;
  ASSERT_TRUE(findInclude(host, "frame.h", "app.cpp", &path));
  EXPECT_EQ(path, nativePath(dir.file("deep/er/frame.h")));
  ASSERT_TRUE(findInclude(host, "sys\\view.h", "app.cpp", &path)) << "backslash paths from the source";
  EXPECT_EQ(path, joinPath(outside.path(), joinPath("sys", "view.h")));
  EXPECT_FALSE(findInclude(host, "my header.h", "other.cpp", &path)) << "the top node has no include path";
  EXPECT_EQ(std::vector<std::string>(host.statusTexts.end() - 2, host.statusTexts.end()),
            (std::vector<std::string>{"Pas trouve", "Cannot locate my header.h"}));
}

TEST_F(QuickFindTest, FailingFileCallsLoseHitsButNeverInventThem) {
  dir.write("a.cpp", "int f(void)\n{\n  Paint();\n}\n");
  dir.write("sub/b.c", "  Paint(1);\n");
  dir.write("sub/deeper/c.cc", "\tPaint(2);\n");
  openProject();
  FaultOs counting;
  {
    ScopedOs scoped(counting);
    ASSERT_TRUE(quickFind.crossReference(host, "Paint"));
  }
  ASSERT_EQ(quickFind.crossResults().count(), 3);
  for (int failAt = 1; failAt <= counting.calls; ++failAt) {
    FaultOs faulty;
    faulty.failAt = failAt;
    ScopedOs scoped(faulty);
    FakeHost quiet;
    quiet.projectPath = host.projectPath;
    QuickFind run;
    run.crossReference(quiet, "Paint");
    EXPECT_LT(run.crossResults().count(), 3) << "call " << failAt << " failed and yet nothing was lost";
    for (int32_t i = 0; i < run.crossResults().count(); ++i)
      EXPECT_EQ(run.crossResults()[i]->text().find("Paint"), run.crossResults()[i]->text().find_first_not_of(" \t"));
  }
}

namespace {

// Remembers the order in which values are written.
class WriteOrder : public SettingsBackend {
 public:
  bool read(const std::string&, const std::string&, size_t, std::string*) override { return false; }
  bool write(const std::string&, const std::string& name, const std::string& text) override {
    written.push_back(name + "=" + text);
    return true;
  }
  bool list(const std::string&, std::vector<SettingsValue>*) override { return false; }
  std::vector<std::string> subkeys(const std::string&) override { return {}; }
  std::vector<std::string> written;
};

}  // namespace

TEST(QuickFindSettingsTest, DefaultsAndTheOrderOfWriting) {
  WriteOrder backend;
  settings().setBackend(&backend);
  QuickFindSettings::read().write();
  settings().setBackend(nullptr);
  EXPECT_EQ(backend.written,
            (std::vector<std::string>{"FunctionMask=*.cpp;*.cc;*.c", "IncludeMask=*.h;*.rh", "TxtFunction=???",
                                      "TxtMethod=???", "TxtClass=???", "TxtCross=???", "Recurse=1", "LeftSide=1",
                                      "KeyFunction=0", "KeyMethod=0", "KeyClass=0", "KeyCross=0"}));
}

TEST(HitListTest, KeepsTextsAcrossBlocksAndBuildsTheTableInOrder) {
  HitList hits;
  std::string huge(3u << 20, 'x');
  hits.add("a.cpp", 1, "  first");
  hits.add("a.cpp", 2, huge);
  hits.add("b.cpp", 7, "  last");
  ASSERT_EQ(hits.size(), 3u);
  EXPECT_EQ(hits.text(0), "  first");
  EXPECT_EQ(hits.text(1), huge) << "a text longer than a block gets its own";
  EXPECT_EQ(hits.text(2), "  last");
  EXPECT_EQ(hits.file(1), "a.cpp");
  EXPECT_EQ(hits.file(2), "b.cpp");
  Tableau<QuickResu> table;
  table.append(new QuickResu(99, "old", "old"));
  hits.copyTo(&table);
  ASSERT_EQ(table.count(), 3);
  EXPECT_EQ(table[2]->line(), 7);
  EXPECT_EQ(table[2]->text(), "  last");
  EXPECT_EQ(table[1]->text().size(), 65535u) << "a persisted text keeps the string's 16-bit length";
}
