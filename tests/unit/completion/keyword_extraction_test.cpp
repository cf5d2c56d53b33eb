// Extraction: the golden sources, the keyword file's name and the failures.
#include <gtest/gtest.h>

#include "completion/completion_engine.h"
#include "completion/keyword_extraction.h"
#include "completion/keyword_file_commands.h"
#include "support/fake_host.h"
#include "support/fault_os.h"
#include "support/golden.h"
#include "support/temp_dir.h"

TEST(KeywordExtractionTest, GoldenSourcesGiveTheirKeywordFiles) {
  std::vector<std::string> cases = goldenCases("completion");
  ASSERT_FALSE(cases.empty());
  for (const std::string& name : cases) {
    std::string actual = extractKeywords(readGolden("completion", name, "source.cpp"));
    EXPECT_EQ(goldenDifference("completion", name, "expected.kwd", readGolden("completion", name, "expected.kwd"), actual), "");
  }
}

TEST(KeywordExtractionTest, DefinitionLinesNamedByTheIssue) {
  EXPECT_EQ(extractKeywords("int Stack::push(int v)\nint Stack::pop()\nvoid *alloc(size_t n)\n"), "Stack\npush\npop\nalloc\n");
  EXPECT_EQ(extractKeywords("char &Buffer::at(int i)\nchar **names(void)"), "Buffer\nat\nnames\n");
  EXPECT_EQ(extractKeywords("int Stack::push(int v);\n"), "");
  EXPECT_EQ(extractKeywords(""), "");
}

TEST(KeywordExtractionTest, LongSourceLinesAreReadInPieces) {
  // The second piece of an over-long line starts at column 0 and is read as a line of its own.
  std::string line = "int " + std::string(1018, 'x') + "f(int a)\n";
  EXPECT_EQ(extractKeywords(line), "f\n");
  EXPECT_EQ(extractKeywords("int " + std::string(1017, 'x') + "(int a)\n"), std::string(1017, 'x') + "\n");
}

TEST(KeywordExtractionTest, KeywordFileNameReplacesTheExtensionOfTheFileName) {
  std::string path;
  EXPECT_TRUE(keywordFilePathFor("c:\\my src\\stack.v2.cpp", &path));
  EXPECT_EQ(path, "c:\\my src\\stack.v2.kwd");
  EXPECT_TRUE(keywordFilePathFor("dir/a.", &path));
  EXPECT_EQ(path, "dir/a.kwd");
  EXPECT_FALSE(keywordFilePathFor("c:\\v1.0\\makefile", &path));
  EXPECT_FALSE(keywordFilePathFor("v1.0/makefile", &path));
  EXPECT_FALSE(keywordFilePathFor("makefile", &path));
}

TEST(KeywordExtractionTest, FailureWarnsAndLeavesListAndFilesAlone) {
  TempDir dir;
  dir.write("stack.cpp", "int Stack::push(int v)\n");
  RecordingAlerts alerts;
  CompletionEngine engine;
  engine.files = {"first.kwd"};
  std::string keywordPath;
  std::string err;
  EXPECT_FALSE(extractAndAddKeywordFile(engine, dir.file("missing.cpp"), &keywordPath, &err));
  EXPECT_FALSE(extractAndAddKeywordFile(engine, dir.file("makefile"), &keywordPath, &err));
  EXPECT_EQ(err, dir.file("makefile") + ": the file name has no extension to replace by .kwd");
  for (int failAt = 1;; ++failAt) {
    FaultOs faults;
    faults.failAt = failAt;
    ScopedOs scoped(faults);
    if (extractAndAddKeywordFile(engine, dir.file("stack.cpp"), &keywordPath, &err)) break;
    EXPECT_FALSE(platformOs().exists(dir.file("stack.kwd"))) << "fault at call " << failAt;
  }
  std::string written;
  ASSERT_TRUE(os().readTextFile(dir.file("stack.kwd"), &written, nullptr));
  EXPECT_EQ(written, "Stack\npush\n") << "written in text mode";
  EXPECT_EQ(engine.files, (std::vector<std::string>{"first.kwd", dir.file("stack.kwd")}));
  ASSERT_GE(alerts.boxes.size(), 3u);
  for (const RecordingAlerts::Box& box : alerts.boxes) {
    EXPECT_EQ(box.text, "Impossible to extract keywords");
    EXPECT_EQ(box.caption, "Warning");
  }
}
