// The copy routine: exact bytes, the source's time, progress, and nothing half-written.
#include "delivery/file_copy.h"

#include <gtest/gtest.h>

#include "support/fake_host.h"
#include "support/fault_os.h"
#include "support/temp_dir.h"

namespace {

// Three full blocks and a tail, so that every block boundary is crossed.
std::string sampleData() {
  std::string data;
  for (size_t i = 0; i < 3 * kCopyBlockSize + 17; ++i) data += static_cast<char>(i * 7 + i / 251);
  return data;
}

TEST(FileCopyTest, CopiesEveryByteWithTheSourceTimeAndReportsEachBlock) {
  TempDir dir;
  std::string data = sampleData();
  dir.write("src/app.exe", data);
  dir.write("dest/app.exe", "an older delivery");
  ASSERT_TRUE(platformOs().setModified(dir.file("src/app.exe"), 820000000, nullptr));
  FakeHost host;
  {
    CopyProgress progress(host, data.size() + 100);
    std::string err;
    EXPECT_EQ(CopyFailure::None, copyFileWithProgress(dir.file("src/app.exe"), dir.file("dest/app.exe"), FinalMode::LikeTarget, progress, &err))
        << err;
    EXPECT_EQ(data.size(), progress.done());
  }
  EXPECT_EQ(data, dir.read("dest/app.exe"));
  FileAttributes copied;
  ASSERT_TRUE(platformOs().attributes(dir.file("dest/app.exe"), &copied, nullptr));
  EXPECT_EQ(820000000, copied.modified);
  ASSERT_EQ(4u, host.progress.size());
  EXPECT_EQ(kCopyBlockSize, host.progress[0].done);
  EXPECT_EQ(data.size(), host.progress[3].done);
  EXPECT_EQ(data.size() + 100, host.progress[3].total);
  EXPECT_EQ("app.exe", host.progress[3].item);
  EXPECT_EQ(1, host.progressEnds);
  EXPECT_EQ("", dir.temporariesLeft());
}

TEST(FileCopyTest, EachFailingCallKeepsTheOldTargetNamesTheFailureAndCountsTheWholeFile) {
  TempDir dir;
  std::string data = sampleData();
  dir.write("src/app.exe", data);
  dir.write("dest/app.exe", "an older delivery");
  bool succeeded = false;
  for (int failAt = 1; !succeeded; ++failAt) {
    ASSERT_LT(failAt, 30) << "the copy never succeeded";
    FaultOs faults;
    faults.failAt = failAt;
    ScopedOs scoped(faults);
    FakeHost host;
    CopyProgress progress(host, data.size());
    std::string err;
    CopyFailure failure = copyFileWithProgress(dir.file("src/app.exe"), dir.file("dest/app.exe"), FinalMode::LikeTarget, progress, &err);
    succeeded = failure == CopyFailure::None;
    std::string target = dir.read("dest/app.exe");
    if (succeeded) {
      EXPECT_EQ(data, target);
    } else {
      EXPECT_EQ("an older delivery", target) << "failure at OS call " << failAt;
      EXPECT_NE(std::string(copyFailureText(failure)).find("Error in "), std::string::npos);
      EXPECT_NE(err.find("injected fault"), std::string::npos) << err;
    }
    // The first call learns the size: failing there leaves nothing to count.
    EXPECT_EQ(failAt == 1 ? 0 : data.size(), progress.done()) << "failure at OS call " << failAt;
    EXPECT_EQ("", dir.temporariesLeft()) << "failure at OS call " << failAt;
  }
}

TEST(FileCopyTest, AMissingSourceIsAnOpeningErrorAndCreatesNothing) {
  TempDir dir;
  FakeHost host;
  CopyProgress progress(host, 0);
  std::string err;
  EXPECT_EQ(CopyFailure::OpenSource, copyFileWithProgress(dir.file("none.exe"), dir.file("out.exe"), FinalMode::LikeTarget, progress, &err));
  EXPECT_STREQ("Error in opening file ", copyFailureText(CopyFailure::OpenSource));
  EXPECT_FALSE(platformOs().exists(dir.file("out.exe")));
}

}  // namespace
