// The recent headers list: what enters it, its order, its bound and its storage.
#include <gtest/gtest.h>

#include <memory>

#include "foundation/settings.h"
#include "foundation/settings_file.h"
#include "support/temp_dir.h"
#include "topbar/recent_headers.h"

namespace {

class RecentHeadersTest : public ::testing::Test {
 protected:
  void SetUp() override {
    backend_ = std::make_unique<SettingsFile>(dir_.file("settings.reg"));
    settings().setBackend(backend_.get());
  }
  void TearDown() override { settings().setBackend(nullptr); }

  TempDir dir_;
  std::unique_ptr<SettingsFile> backend_;
};

}  // namespace

TEST_F(RecentHeadersTest, HeadersMoveToTheFrontAndOthersStayOut) {
  RecentHeaders headers;
  headers.record("C:\\INC\\A.H");
  headers.record("C:\\INC\\B.h");
  headers.record("C:\\SRC\\MAIN.CPP");
  headers.record("c:\\inc\\a.h:12");
  EXPECT_EQ(headers.entries(), (std::vector<std::string>{"c:\\inc\\a.h", "C:\\INC\\B.h"}))
      << "other case and a line suffix name the same header";
}

TEST_F(RecentHeadersTest, FullListDropsItsOldest) {
  settings().writeInteger("TopBar", "MaxINC", 2);
  RecentHeaders headers;
  headers.load();
  for (const char* path : {"A.H", "B.H", "C.H"}) headers.record(path);
  EXPECT_EQ(headers.entries(), (std::vector<std::string>{"C.H", "B.H"}));
}

TEST_F(RecentHeadersTest, SavedListLoadsBackUpToItsFirstMissingEntry) {
  RecentHeaders saved;
  for (const char* path : {"A.H", "B.H", "C.H"}) saved.record(path);
  saved.save();
  settings().writeInteger("TopBar", "NbINC", 5);
  RecentHeaders loaded;
  loaded.load();
  EXPECT_EQ(loaded.entries(), (std::vector<std::string>{"C.H", "B.H", "A.H"}));
  EXPECT_EQ(loaded.maximum(), 50);
}
