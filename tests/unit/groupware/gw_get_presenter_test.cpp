// The get dialog through its presenter.
#include "groupware/gw_get_presenter.h"
#include "groupware/lock_file.h"
#include "gw_trees.h"

namespace {

class GwGetTest : public GwTrees {
 protected:
  GwGetPresenter presenter{host, mail, settings};

  // In path order: edited without a lock, locked by another, new here, same.
  void fourKinds() {
    put(server("edited.cpp"), "s", kOld, false);
    put(local("edited.cpp"), "mine", kNew, false);
    put(server("locked.cpp"), "theirs", kNew, true);
    put(local("locked.cpp"), "old", kOld, true);
    put(server("new.cpp"), "n", kOld, false);
    put(server("same.cpp"), "s", kOld, false);
    put(local("same.cpp"), "s", kOld, true);
    ASSERT_TRUE(presenter.open());
  }
  std::string requests() const { return GwTrees::requests(presenter, getRequestWord); }
};

TEST_F(GwGetTest, ButtonsSkipErrorsAndLockedRows) {
  fourKinds();
  EXPECT_EQ(presenter.rows()[0], "edited.cpp\tNo\tOlder\tERROR\t ");
  presenter.getAndLock();
  EXPECT_EQ(requests(), " | |Get| |");
  presenter.refresh();
  EXPECT_EQ(requests(), " |Refresh|Refresh| |");
  presenter.clear();
  presenter.asAdvised();
  EXPECT_EQ(requests(), " |Refresh|Refresh| |");
  // Selected rows: "Get && lock" is refused on the locked one, "Refresh" clears.
  presenter.select(1, true);
  presenter.select(2, true);
  presenter.getAndLock();
  EXPECT_EQ(requests(), " |Refresh|Get| |");
  presenter.refresh();
  EXPECT_EQ(requests(), " | | | |");
  presenter.select(0, true);
  presenter.asAdvised();
  EXPECT_EQ(requests(), " |Refresh|Refresh| |");
  presenter.clear();
  EXPECT_EQ(requests(), " | | | |");
}

TEST_F(GwGetTest, GetRefreshesKeepingWritabilityAndTakesLocks) {
  fourKinds();
  put(server("lib/deep.h"), "d", kOld, false);
  settings.mailOnGet = 1;
  mail.setRecipients({"team@example.com"});
  ASSERT_TRUE(presenter.open());
  presenter.asAdvised();  // lib/deep.h, locked.cpp and new.cpp
  presenter.select(1, true);  // lib/deep.h
  presenter.getAndLock();
  presenter.select(1, false);
  presenter.select(3, true);  // new.cpp: "Refresh" on a selected row clears it
  presenter.refresh();
  presenter.select(3, false);
  ASSERT_TRUE(presenter.get());

  EXPECT_EQ(read(local("locked.cpp")), "theirs");
  EXPECT_TRUE(readOnly(local("locked.cpp")));
  EXPECT_FALSE(platformOs().exists(local("new.cpp")));
  EXPECT_EQ(read(local("lib/deep.h")), "d");
  EXPECT_FALSE(readOnly(local("lib/deep.h")));
  EXPECT_TRUE(readOnly(server("lib/deep.h")));
  std::string holder;
  ASSERT_EQ(readLockFile(server("lib/deep.h"), &holder, nullptr), LockRecord::Read);
  EXPECT_EQ(holder, platformOs().userName().substr(0, 99));
  EXPECT_EQ(read(local("edited.cpp")), "mine");

  EXPECT_EQ(presenter.report(), native("lib/deep.h") + " is locked\n");
  EXPECT_EQ(presenter.rows()[1], native("lib/deep.h") + "\tYes\tSame\t \t ");
  ASSERT_EQ(host.mails.size(), 1u);
  EXPECT_EQ(host.mails[0].subject, "Groupware GET : project demo");
}

TEST_F(GwGetTest, RefreshOnlyIsNotMailed) {
  put(server("a.cpp"), "a", kOld, false);
  settings.mailOnGet = 1;
  mail.setRecipients({"team@example.com"});
  ASSERT_TRUE(presenter.open());
  presenter.refresh();
  ASSERT_TRUE(presenter.get());
  EXPECT_TRUE(readOnly(local("a.cpp")));  // a new copy is a reference copy
  EXPECT_EQ(presenter.report(), "");
  EXPECT_TRUE(host.mails.empty());
  EXPECT_FALSE(presenter.get());
  EXPECT_EQ(alerts.boxes.back().text, "Nothing to do !");
}

}  // namespace
