// The OS layer's replacement and lock primitives under attack: names someone
// planted, every failing call, a refused chmod and a lock that stays busy.
#include <gtest/gtest.h>

#include <fstream>
#include <memory>
#include <vector>

#include "foundation/os.h"
#include "support/fault_os.h"
#include "support/temp_dir.h"

namespace {

// Puts a file of its own at every other temporary name a replacement tries,
// as someone who can write the directory could.
class PlantingOs : public FaultOs {
 public:
  std::vector<std::string> planted;
  std::unique_ptr<OsFile> createNewFile(const std::string& p, const std::string& l, FinalMode m, bool r, bool* x,
                                        std::string* e) override {
    if (planted.size() % 2 == 0) {
      platformOs().writeFile(p, "planted", nullptr);
      planted.push_back(p);
    } else {
      planted.push_back("");
    }
    return FaultOs::createNewFile(p, l, m, r, x, e);
  }
};

// A lock that another process holds for the first `busyFor` attempts; the waits are counted, not slept.
class BusyLockOs : public FaultOs {
 public:
  int busyFor = 0;
  int attempts = 0;
  int slept = 0;
  LockAttempt tryLock(const std::string& p, std::unique_ptr<OsLock>* l, std::string* e) override {
    if (++attempts <= busyFor) return LockAttempt::Busy;
    return FaultOs::tryLock(p, l, e);
  }
  void sleepMilliseconds(int m) override { slept += m; }
};

// chmod refused, as POSIX refuses it to whoever does not own the file.
class NotOwnerOs : public FaultOs {
 public:
  bool setReadOnly(const std::string& p, bool, std::string* e) override {
    if (e) *e = "chmod " + p + ": Operation not permitted";
    return false;
  }
};

bool readOnly(const std::string& path) {
  FileAttributes attributes;
  return platformOs().attributes(path, &attributes, nullptr) && attributes.readOnly;
}

TEST(SafeReplaceTest, SkipsWhatWasPlantedAtATemporaryNameAndLeavesItAlone) {
  TempDir dir;
  dir.write("tasks.tsk", "old");
  PlantingOs planting;
  ScopedOs scoped(planting);
  std::string err;
  ASSERT_TRUE(os().writeFileAtomic(dir.file("tasks.tsk"), "new", &err)) << err;
  EXPECT_EQ("new", dir.read("tasks.tsk"));
  ASSERT_EQ(2u, planting.planted.size()) << "one name refused, the next one used";
  EXPECT_EQ("planted", dir.read(fileNameOf(planting.planted[0])));
  EXPECT_EQ(0u, fileNameOf(planting.planted[0]).rfind(".tasks.tsk.kesto-tmp-", 0)) << "hidden, beside the target";
  EXPECT_TRUE(isTemporaryName(fileNameOf(planting.planted[0])));
}

TEST(SafeReplaceTest, EveryFailingCallKeepsTheOldFileAndLeavesNoTemporary) {
  TempDir dir;
  dir.write("settings.reg", "old");
  for (int failAt = 1;; ++failAt) {
    FaultOs faults;
    faults.failAt = failAt;
    ScopedOs scoped(faults);
    std::string err;
    bool written = os().writeFileAtomic(dir.file("settings.reg"), "new", FinalMode::ReadOnly, &err);
    EXPECT_EQ(written ? "new" : "old", dir.read("settings.reg")) << "failing call " << failAt;
    EXPECT_EQ("", dir.temporariesLeft()) << "failing call " << failAt;
    if (written) {
      EXPECT_TRUE(readOnly(dir.file("settings.reg"))) << "the mode comes with the new contents";
      break;
    }
    EXPECT_NE(err.find("injected fault"), std::string::npos) << err;
  }
}

TEST(SafeReplaceTest, TheTargetKeepsItsReadOnlyFlagUnlessTheWriterChangesIt) {
  TempDir dir;
  dir.write("a.cpp", "v1");
  ASSERT_TRUE(platformOs().setReadOnly(dir.file("a.cpp"), true, nullptr));
  ASSERT_TRUE(os().writeFileAtomic(dir.file("a.cpp"), "v2", nullptr)) << "a read-only target is replaced";
  EXPECT_TRUE(readOnly(dir.file("a.cpp")));
  ASSERT_TRUE(os().writeFileAtomic(dir.file("a.cpp"), "v3", FinalMode::Writable, nullptr));
  EXPECT_FALSE(readOnly(dir.file("a.cpp")));
  EXPECT_EQ("v3", dir.read("a.cpp"));
}

TEST(SafeReplaceTest, ARefusedChmodReplacesTheFileWithTheModeContentsAndTimeKept) {
  TempDir dir;
  dir.write("a.cpp", "shared source");
  ASSERT_TRUE(platformOs().setModified(dir.file("a.cpp"), 1000000000, nullptr));
  NotOwnerOs notOwner;
  ScopedOs scoped(notOwner);
  std::string err;
  ASSERT_TRUE(os().setReadOnlyOrReplace(dir.file("a.cpp"), true, &err)) << err;
  EXPECT_TRUE(readOnly(dir.file("a.cpp")));
  EXPECT_EQ("shared source", dir.read("a.cpp"));
  FileAttributes attributes;
  ASSERT_TRUE(platformOs().attributes(dir.file("a.cpp"), &attributes, nullptr));
  EXPECT_EQ(1000000000, attributes.modified) << "the age rules compare times";
  ASSERT_TRUE(os().setReadOnlyOrReplace(dir.file("a.cpp"), false, &err)) << err;
  EXPECT_FALSE(readOnly(dir.file("a.cpp")));

  notOwner.failAt = 3;  // the replacement's own creation fails too: both reasons are told
  notOwner.calls = 0;
  EXPECT_FALSE(os().setReadOnlyOrReplace(dir.file("a.cpp"), true, &err));
  EXPECT_EQ("chmod " + dir.file("a.cpp") + ": Operation not permitted; injected fault at call 3", err);
  EXPECT_FALSE(readOnly(dir.file("a.cpp")));
  EXPECT_EQ("", dir.temporariesLeft());
}

TEST(SafeReplaceTest, ALockWaitsForItsHolderThenGivesUpNamingTheFile) {
  TempDir dir;
  BusyLockOs busy;
  busy.lockWaitMilliseconds = 1000;
  busy.busyFor = 3;
  ScopedOs scoped(busy);
  std::string err;
  EXPECT_NE(nullptr, os().lock(dir.file("demo.kpj"), &err)) << err;
  EXPECT_EQ(4, busy.attempts);
  EXPECT_TRUE(platformOs().exists(lockFilePathFor(dir.file("demo.kpj"))));
  EXPECT_TRUE(isLockFileName(fileNameOf(lockFilePathFor(dir.file("demo.kpj")))));

  busy.busyFor = 1 << 30;
  busy.slept = 0;
  EXPECT_EQ(nullptr, os().lock(dir.file("demo.kpj.tsk"), &err));
  EXPECT_EQ(dir.file("demo.kpj.tsk") +
                " is in use by another process; gave up after waiting 1 s (try again when it is done)",
            err);
  EXPECT_GE(busy.slept, 1000);
  EXPECT_LT(busy.slept, 1200);
}

TEST(SafeReplaceTest, ALockTakenAgainInTheSameProcessNestsInsteadOfWaitingForItself) {
  TempDir dir;
  std::string err;
  std::unique_ptr<OsLock> outer = os().lock(dir.file("demo.kpj"), &err);
  ASSERT_NE(nullptr, outer) << err;
  {
    BusyLockOs busy;
    busy.busyFor = 1 << 30;
    busy.lockWaitMilliseconds = 0;
    ScopedOs scoped(busy);
    EXPECT_NE(nullptr, os().lock(dir.file("demo.kpj"), &err)) << "held already: no attempt needed";
    EXPECT_EQ(0, busy.attempts);
  }
  outer.reset();
  std::unique_ptr<OsLock> again = os().lock(dir.file("demo.kpj"), &err);
  EXPECT_NE(nullptr, again) << "released when the outer holder let go";
}

}  // namespace

#ifndef _WIN32
// A streamed read ends at the size the file had when it was opened, so that a
// copy of a file that another process keeps growing ends, and ends whole.
TEST(OsFileTest, AReadEndsAtTheSizeSeenAtOpening) {
  TempDir dir;
  dir.write("log", "0123456789");
  std::unique_ptr<OsFile> file = platformOs().openFile(dir.file("log"), nullptr);
  ASSERT_TRUE(file);
  std::ofstream(dir.file("log"), std::ios::app) << "more and more";
  std::string read;
  char buffer[4];
  size_t got = 0;
  do {
    ASSERT_TRUE(file->read(buffer, sizeof buffer, &got, nullptr));
    read.append(buffer, got);
  } while (got > 0);
  EXPECT_EQ(read, "0123456789");
}
#endif
