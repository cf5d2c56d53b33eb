// Transfers when the OS fails under them, refuses a chmod or finds links
// planted at its temporaries, and locks taken by two users.
#include "groupware/gw_get_presenter.h"
#include "groupware/gw_send_presenter.h"
#include "groupware/lock_file.h"
#include "gw_trees.h"
#include "support/fault_os.h"

namespace {

// Fails the write of the second block of one file's copy: the copy opens the
// target's temporary, then reads and writes block by block.
class SecondBlockFault : public FaultOs {
 public:
  std::string target;
  std::unique_ptr<OsFile> createNewFile(const std::string& p, const std::string& l, FinalMode m, bool r, bool* x,
                                        std::string* e) override {
    if (l == target) failAt = calls + 1 + 4;
    return FaultOs::createNewFile(p, l, m, r, x, e);
  }
};

class GwFaultTest : public GwTrees {
 protected:
  SecondBlockFault faults;
  ScopedOs scoped{faults};
};

TEST_F(GwFaultTest, CopyFailingHalfwayKeepsTheOldCopyAppliesTheAttributesAndGoesOn) {
  put(local("a.cpp"), "a", kOld, false);
  std::string big(3 * kCopyBlockSize - 10, 'n');
  put(local("b.cpp"), big, kNew, false);
  put(server("b.cpp"), "old", kOld, true);  // this user's lock
  put(local("c.cpp"), "c", kOld, false);
  faults.target = server("b.cpp");
  GwSendPresenter presenter(host, mail, settings);
  ASSERT_TRUE(presenter.open());
  presenter.sendAndUnlock();
  ASSERT_TRUE(presenter.send());

  ASSERT_EQ(alerts.boxes.size(), 1u);
  EXPECT_EQ(alerts.boxes[0].text, "Error in writing file " + server("b.cpp"));
  EXPECT_EQ(alerts.boxes[0].caption, "Kesto Addon error");
  EXPECT_EQ(read(server("b.cpp")), "old");
  EXPECT_EQ("", dir.temporariesLeft());
  // The lock moves all the same: the server copy is free, the local one read-only.
  EXPECT_FALSE(readOnly(server("b.cpp")));
  EXPECT_TRUE(readOnly(local("b.cpp")));
  for (const char* other : {"a.cpp", "c.cpp"}) {
    EXPECT_EQ(read(server(other)), read(local(other)));
    EXPECT_FALSE(readOnly(server(other)));
    EXPECT_TRUE(readOnly(local(other)));
  }
  EXPECT_EQ(presenter.report(), "a.cpp is delivered and unlocked\nc.cpp is delivered and unlocked\n");
  ASSERT_FALSE(host.progress.empty());
  EXPECT_EQ(host.progress.back().done, host.progress.back().total);
  EXPECT_EQ(host.progressEnds, 1);
}

TEST_F(GwFaultTest, EveryFailedCallLeavesWholeFilesAndNoTemporary) {
  put(server("a.cpp"), std::string(2 * kCopyBlockSize, 's'), kNew, false);
  put(local("a.cpp"), "local", kOld, true);
  for (int failAt = 1;; ++failAt) {
    put(local("a.cpp"), "local", kOld, true);
    platformOs().setReadOnly(server("a.cpp"), false, nullptr);
    GwGetPresenter presenter(host, mail, settings);
    faults.calls = 0;
    faults.failAt = 0;
    ASSERT_TRUE(presenter.open());
    presenter.getAndLock();
    faults.calls = 0;
    faults.failAt = failAt;
    presenter.get();
    std::string got = read(local("a.cpp"));
    EXPECT_TRUE(got == "local" || got == read(server("a.cpp"))) << "failing call " << failAt;
    EXPECT_EQ("", dir.temporariesLeft()) << "failing call " << failAt;
    if (faults.calls < failAt) break;  // the action ran clean: every call has failed once
  }
}

TEST_F(GwFaultTest, SecondUserToTakeTheLockLeavesHisName) {
  put(server("a.cpp"), "v1", kOld, false);
  auto takeLock = [&](const std::string& user, const std::string& projectDirectory) {
    faults.user = user;
    host.projectPath = joinPath(projectDirectory, "demo.kpj");
    GwGetPresenter presenter(host, mail, settings);
    ASSERT_TRUE(presenter.open());
    presenter.getAndLock();
    ASSERT_TRUE(presenter.get());
    EXPECT_EQ(presenter.rows()[0], "a.cpp\tYes\tSame\t \t ");
  };
  takeLock("ann", dir.file("proj"));
  // Ann sends her edit and releases the lock; Bob then takes it.
  put(local("a.cpp"), "v2", kNew, false);
  GwSendPresenter send(host, mail, settings);
  ASSERT_TRUE(send.open());
  send.sendAndUnlock();
  ASSERT_TRUE(send.send());
  platformOs().makeDirectory(dir.file("bob"), nullptr);
  takeLock("bob", dir.file("bob"));

  std::string holder;
  ASSERT_EQ(readLockFile(server("a.cpp"), &holder, nullptr), LockRecord::Read);
  EXPECT_EQ(holder, "bob");
  EXPECT_EQ(read(lockFilePath(server("a.cpp"))), "bob");
  EXPECT_TRUE(readOnly(server("a.cpp")));
  EXPECT_EQ(read(joinPath(dir.file("bob"), "a.cpp")), "v2");
  EXPECT_FALSE(readOnly(joinPath(dir.file("bob"), "a.cpp")));
}

}  // namespace
