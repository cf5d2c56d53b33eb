// A generation on disk: the site directory, pages that cannot be created, and the one-at-a-time guard.
#include <gtest/gtest.h>

#include <algorithm>

#include "html/ht_generation.h"
#include "support/fake_host.h"
#include "support/fault_os.h"
#include "support/temp_dir.h"

namespace {

TEST(HtmlGeneration, WritesTheSiteUnderKHtmlSkipsAPageThatCannotBeCreatedAndLeavesSamePagesAlone) {
  TempDir dir;
  dir.write("src dir/main.cpp", "/** run Starts\n*/\nCALCUL_INT run(void)\n");
  dir.write("kHTML/Demo Contents.html", "stale");
  // A directory in the way of a page makes that one page impossible to create.
  dir.write("kHTML/Demo Title.html/keep", "");
  htGenerationResult result;
  ASSERT_TRUE(runHtmlGeneration(dir.path(), "*.cpp", "Demo", &result));
  EXPECT_EQ(1u, result.pagesSkipped);
  EXPECT_NE(std::string::npos, result.firstSkipped.find("Demo Title.html"));
  EXPECT_EQ(7u, result.pagesWritten);
  EXPECT_NE(std::string::npos, dir.read("kHTML/Demo Contents.html").find("Fnc run 0.html"));
  EXPECT_NE(std::string::npos, dir.read("kHTML/Fnc run 0.html").find("<h3>Fonction run</h3>"));
  htGenerationResult again;
  ASSERT_TRUE(runHtmlGeneration(dir.path(), "*.cpp", "Demo", &again));
  EXPECT_EQ(0u, again.pagesWritten);
  EXPECT_EQ(7u, again.pagesUnchanged);
  EXPECT_EQ(1u, again.pagesSkipped);
  EXPECT_EQ(joinPath(joinPath(dir.path(), "kHTML"), "Documentation Demo.html"), htFramesetPath(dir.path(), "Demo"));
  EXPECT_EQ("Demo", htProjectName(joinPath("projects", "Demo.kpj")));
}

TEST(HtmlGeneration, ASecondGenerationWhileOneRunsIsRefused) {
  TempDir dir;
  dir.write("a.cpp", "CALCUL_INT a(void)\n");
  RecordingAlerts alerts;
  bool refused = false;
  htGenerationResult result;
  EXPECT_FALSE(refuseWhileHtmlGenerationRuns());
  runHtmlGeneration(dir.path(), "*.cpp", "Demo", &result,
                    [&refused](const char*, size_t, size_t) { refused = refuseWhileHtmlGenerationRuns(); });
  EXPECT_TRUE(refused);
  EXPECT_FALSE(htmlGenerationRunning());
  ASSERT_FALSE(alerts.boxes.empty());
  EXPECT_EQ("HTML generation in progress", alerts.boxes[0].text);
  EXPECT_EQ("Warning", alerts.boxes[0].caption);
}

TEST(HtmlGeneration, AFailureOfAnyFileOperationLeavesOnlyWholePages) {
  FaultOs counting;
  {
    TempDir dir;
    dir.write("a.cpp", "/** a Does\nmore\n*/\nCALCUL_INT a(void)\n");
    ScopedOs scoped(counting);
    htGenerationResult result;
    ASSERT_TRUE(runHtmlGeneration(dir.path(), "*.cpp", "Demo", &result));
  }
  for (int failAt = 1; failAt <= counting.calls; ++failAt) {
    SCOPED_TRACE(failAt);
    TempDir dir;
    dir.write("a.cpp", "/** a Does\nmore\n*/\nCALCUL_INT a(void)\n");
    FaultOs faulty;
    faulty.failAt = failAt;
    htGenerationResult result;
    {
      ScopedOs scoped(faulty);
      EXPECT_TRUE(runHtmlGeneration(dir.path(), "*.cpp", "Demo", &result));
    }
    std::vector<DirectoryEntry> pages;
    platformOs().listDirectory(dir.file("kHTML"), &pages, nullptr);
    // The record of the site is no page.
    pages.erase(std::remove_if(pages.begin(), pages.end(),
                               [](const DirectoryEntry& entry) { return entry.name == ".kesto-site"; }),
                pages.end());
    EXPECT_EQ(result.pagesWritten, pages.size());
    // Pages are text files: CR LF ends their lines on Windows.
    const std::string end = kPathSeparator == '\\' ? "</html>\r\n" : "</html>\n";
    for (const DirectoryEntry& page : pages) {
      std::string text = dir.read(joinPath("kHTML", page.name));
      EXPECT_EQ(end, text.substr(text.size() > end.size() ? text.size() - end.size() : 0)) << page.name;
    }
  }
}

struct CreationCounting : FaultOs {
  int created = 0;
  int pagesRead = 0;
  bool readFile(const std::string& p, std::string* d, std::string* e) override {
    if (p.find("kHTML") != std::string::npos && p.find(".kesto-site") == std::string::npos) ++pagesRead;
    return FaultOs::readFile(p, d, e);
  }
  std::unique_ptr<OsFile> createNewFile(const std::string& p, const std::string& l, FinalMode m, bool r, bool* x,
                                        std::string* e) override {
    ++created;
    return FaultOs::createNewFile(p, l, m, r, x, e);
  }
};

// The site of the sources "*.cpp" of dir, as project Demo.
htGenerationResult generated(const TempDir& dir) {
  htGenerationResult result;
  EXPECT_TRUE(runHtmlGeneration(dir.path(), "*.cpp", "Demo", &result));
  return result;
}

TEST(HtmlGeneration, RewritesThePagesOfAChangedSourceOrAPageThatWentAndNothingElse) {
  TempDir dir;
  dir.write("a.cpp", "/** a Does\n*/\nCALCUL_INT a(void)\n");
  dir.write("b.cpp", "CALCUL_INT b(void)\n");
  htGenerationResult first = generated(dir);
  int created = 0;
  int pagesRead = 0;
  auto generate = [&]() {
    CreationCounting counting;
    ScopedOs scoped(counting);
    htGenerationResult result = generated(dir);
    created = counting.created;
    pagesRead = counting.pagesRead;
    return result;
  };
  htGenerationResult same = generate();
  EXPECT_EQ(0, created);
  EXPECT_EQ(0, pagesRead);
  EXPECT_EQ(first.pagesWritten, same.pagesUnchanged);
  // The same size, and likely the same second: the bytes tell the change.
  dir.write("a.cpp", "/** a Went\n*/\nCALCUL_INT a(void)\n");
  htGenerationResult changed = generate();
  EXPECT_EQ(2u, changed.pagesWritten);  // the function's page and its file's presentation
  EXPECT_NE(std::string::npos, dir.read("kHTML/Fnc a 0.html").find("Went"));
  EXPECT_NE(std::string::npos, dir.read("kHTML/a.cpp Presentation.html").find("Went"));
  ASSERT_TRUE(platformOs().removeFile(dir.file("kHTML/Fnc b 1.html"), nullptr));
  EXPECT_EQ(1u, generate().pagesWritten);
  EXPECT_TRUE(platformOs().exists(dir.file("kHTML/Fnc b 1.html")));
  dir.write("a.cpp.txt", "/** b Told apart\n*/\n");
  EXPECT_LT(0u, generate().pagesWritten);
  EXPECT_NE(std::string::npos, dir.read("kHTML/Fnc b 1.html").find("Told apart"));
}

TEST(HtmlGeneration, APageNamedTwiceIsWrittenOnceWithTheLastText) {
  TempDir dir;
  dir.write("one/x.cpp", "CALCUL_INT first(void)\n");
  dir.write("two/x.cpp", "CALCUL_INT second(void)\n");
  EXPECT_EQ(9u, generated(dir).pagesWritten);  // five of the project, two of x.cpp, two functions
  EXPECT_NE(std::string::npos, dir.read("kHTML/x.cpp Contents.html").find("second"));
  EXPECT_EQ(std::string::npos, dir.read("kHTML/x.cpp Contents.html").find("first"));
}

TEST(HtmlGeneration, ReadsUtf16SourcesAndNamesTheSourcesItCouldNotRead) {
  TempDir dir;
  std::string wide = "\xFF\xFE";
  for (char c : std::string("CALCUL_INT run(void)\r\n")) wide += std::string{c, '\0'};
  dir.write("wide.cpp", wide);
  dir.write("zlost.cpp", "CALCUL_INT lost(void)\n");
  FaultOs faults;
  faults.failAt = 3;  // the listing, wide.cpp, then zlost.cpp
  ScopedOs scoped(faults);
  htProjet project("Demo", dir.path(), "*.cpp");
  std::vector<SkippedPath> skipped;
  ASSERT_TRUE(buildHtProject(project, nullptr, &skipped));
  ASSERT_EQ(1, project.functions.count());
  EXPECT_EQ("run", project.functions[0]->name.str());
  ASSERT_EQ(1u, skipped.size());
  EXPECT_EQ(dir.file("zlost.cpp"), skipped[0].path);
}

}  // namespace
