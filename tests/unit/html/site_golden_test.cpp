// Golden sites: each case's sources give exactly its pages, in the order of writing, byte for byte.
#include <gtest/gtest.h>

#include <algorithm>
#include <cinttypes>
#include <cstdio>
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

// FNV-1a over every golden page, names and bytes, in case and name order.
uint64_t goldenPagesDigest() {
  uint64_t digest = 14695981039346656037ull;
  auto add = [&digest](const std::string& bytes) {
    for (unsigned char c : bytes) digest = (digest ^ c) * 1099511628211ull;
  };
  for (const std::string& name : goldenCases("html")) {
    std::vector<DirectoryEntry> pages;
    platformOs().listDirectory(joinPath(goldenPath("html", name), "out"), &pages, nullptr);
    std::sort(pages.begin(), pages.end(), [](const DirectoryEntry& a, const DirectoryEntry& b) { return a.name < b.name; });
    for (const DirectoryEntry& page : pages) {
      add(name + "/" + page.name);
      add(readGolden("html", name, joinPath("out", page.name)));
    }
  }
  return digest;
}

// An unchanged site is kept when its record carries the same page format, so
// golden pages that change under the same format number would leave users'
// sites stale. The last line of pages_format pairs the number with the pages.
TEST(HtmlSiteGolden, NewPageBytesComeWithANewFormatNumber) {
  char expected[64];
  std::snprintf(expected, sizeof expected, "%" PRIu64 " %016" PRIx64, kHtPagesFormat, goldenPagesDigest());
  std::string recorded;
  platformOs().readFile(joinPath(goldenPath("html"), "pages_format"), &recorded, nullptr);
  std::string last = recorded.substr(recorded.rfind('\n', recorded.size() - 2) + 1);
  EXPECT_EQ(last, std::string(expected) + "\n")
      << "The golden pages or kHtPagesFormat changed: when the pages changed, raise kHtPagesFormat in "
         "html/ht_pages.h and append the line \"" << expected << "\" to tests/data/html/pages_format.";
}

}  // namespace
