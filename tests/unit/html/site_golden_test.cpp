// Golden sites: each case's sources give exactly its pages, in the order of writing, byte for byte.
#include <gtest/gtest.h>

#include <map>

#include "foundation/os.h"
#include "html/ht_build.h"
#include "html/ht_pages.h"
#include "support/golden.h"

namespace {

struct RecordedPages : htPageSink {
  void onPage(const std::string& fileName, const std::string& text) override {
    order += fileName + "\n";
    pages[fileName] = text;
  }
  std::string order;
  std::map<std::string, std::string> pages;  // the last text of each name, as on disk
};

TEST(HtmlSiteGolden, EveryCaseGivesItsPagesByteForByte) {
  std::vector<std::string> cases = goldenCases("html");
  ASSERT_FALSE(cases.empty());
  for (const std::string& name : cases) {
    SCOPED_TRACE(name);
    std::string filters = readGolden("html", name, "filters");
    htProjet project("Demo", joinPath(goldenPath("html", name), "in"), filters.empty() ? "*.cpp;*.h" : filters);
    ASSERT_TRUE(buildHtProject(project));
    RecordedPages recorded;
    ASSERT_TRUE(writeHtSite(project, recorded));

    std::string order = readGolden("html", name, "pages");
    EXPECT_EQ("", goldenDifference("html", name, "pages", order, recorded.order));
    std::vector<DirectoryEntry> expected;
    platformOs().listDirectory(joinPath(goldenPath("html", name), "out"), &expected, nullptr);
    EXPECT_EQ(expected.size(), recorded.pages.size());
    for (const DirectoryEntry& page : expected) {
      std::string file = joinPath("out", page.name);
      EXPECT_EQ("", goldenDifference("html", name, file, readGolden("html", name, file), recorded.pages[page.name]));
    }
  }
}

}  // namespace
