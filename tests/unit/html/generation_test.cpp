// A generation on disk: the site directory, pages that cannot be created, and the one-at-a-time guard.
#include <gtest/gtest.h>

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
    EXPECT_EQ(result.pagesWritten, pages.size());
    // Pages are text files: CR LF ends their lines on Windows.
    const std::string end = kPathSeparator == '\\' ? "</html>\r\n" : "</html>\n";
    for (const DirectoryEntry& page : pages) {
      std::string text = dir.read(joinPath("kHTML", page.name));
      EXPECT_EQ(end, text.substr(text.size() > end.size() ? text.size() - end.size() : 0)) << page.name;
    }
  }
}

}  // namespace
