// The send dialog through its presenter.
#include "groupware/gw_send_presenter.h"
#include "gw_trees.h"

namespace {

class GwSendTest : public GwTrees {
 protected:
  GwSendPresenter presenter{host, mail, settings};

  // One row of each kind, in path order: conflict, new, newer, same.
  void fourKinds() {
    put(local("conflict.cpp"), "c", kNew, false);
    put(server("conflict.cpp"), "c", kOld, false);
    put(local("new.cpp"), "n", kOld, false);
    put(local("newer.cpp"), "mine", kOld, false);
    put(server("newer.cpp"), "theirs", kNew, true);
    put(local("same.cpp"), "s", kOld, false);
    put(server("same.cpp"), "s", kOld, true);
    ASSERT_TRUE(presenter.open());
  }
  std::string requests() const { return GwTrees::requests(presenter, sendRequestWord); }
};

TEST_F(GwSendTest, OpeningWithoutServerDirectoryShowsTheBoxAndListsNothing) {
  settings.server = "";
  put(local("a.cpp"), "a", kOld, false);
  EXPECT_FALSE(presenter.open());
  ASSERT_EQ(alerts.boxes.size(), 1u);
  EXPECT_EQ(alerts.boxes[0].text, "You must specify a server directory (options dialog)\nbefore calling this function !");
  EXPECT_EQ(alerts.boxes[0].caption, "Kesto AddOn error");
  EXPECT_EQ(alerts.boxes[0].style, unsigned(kAlertIconExclamation));
  EXPECT_TRUE(presenter.rows().empty());
}

TEST_F(GwSendTest, ButtonsKeepTheirAsymmetriesAndSpareConflicts) {
  fourKinds();
  EXPECT_EQ(requests(), "CONFLICT| | | |");
  presenter.update();
  EXPECT_EQ(requests(), "CONFLICT|Update|Update| |");
  // "Update" on selected rows clears them; a selected conflict stays.
  presenter.select(0, true);
  presenter.select(1, true);
  presenter.update();
  EXPECT_EQ(requests(), "CONFLICT| |Update| |");
  EXPECT_TRUE(presenter.isSelected(1));
  EXPECT_EQ(presenter.rows()[1], "new.cpp\tNEW!\t ");
  presenter.sendAndUnlock();
  EXPECT_EQ(requests(), "CONFLICT|Send|Update| |");
  presenter.clear();
  EXPECT_EQ(requests(), "CONFLICT| |Update| |");
  presenter.select(0, false);
  presenter.select(1, false);
  presenter.clear();
  EXPECT_EQ(requests(), " | | | |");
  presenter.sendAndUnlock();
  EXPECT_EQ(requests(), "Send|Send|Send| |");
}

TEST_F(GwSendTest, SendCopiesMovesTheLocksRefillsAndMails) {
  fourKinds();
  put(local("lib/deep.h"), "d", kOld, false);
  mail.setRecipients({"team@example.com"});
  ASSERT_TRUE(presenter.open());
  presenter.update();  // every row that differs
  presenter.select(3, true);  // newer.cpp
  presenter.sendAndUnlock();
  presenter.select(3, false);
  ASSERT_TRUE(presenter.send());

  // "Update": the server copy is the sender's and stays locked.
  EXPECT_EQ(read(server("new.cpp")), "n");
  EXPECT_TRUE(readOnly(server("new.cpp")));
  EXPECT_FALSE(readOnly(local("new.cpp")));
  EXPECT_EQ(read(server("lib/deep.h")), "d");
  // "Send": the lock is released and the local copy becomes a reference copy.
  EXPECT_EQ(read(server("newer.cpp")), "mine");
  EXPECT_FALSE(readOnly(server("newer.cpp")));
  EXPECT_TRUE(readOnly(local("newer.cpp")));
  EXPECT_EQ(read(server("conflict.cpp")), "c");

  std::vector<std::string> rows = {"conflict.cpp\tOlder\tCONFLICT", native("lib/deep.h") + "\tSame\t ",
                                   "new.cpp\tSame\t ", "same.cpp\tSame\t "};
  EXPECT_EQ(presenter.rows(), rows);
  std::string report =
      native("lib/deep.h") + " is refreshed\nnew.cpp is refreshed\nnewer.cpp is delivered and unlocked\n";
  EXPECT_EQ(presenter.report(), report);
  ASSERT_EQ(host.mails.size(), 1u);
  EXPECT_EQ(host.mails[0].subject, "Groupware SEND : project demo");
  EXPECT_EQ(host.mails[0].note, report);
  EXPECT_EQ(host.busyChanges, (std::vector<bool>{true, false}));
}

TEST_F(GwSendTest, NothingToDoWhenNoRowHasARequestOrEveryFileIsReadOnly) {
  put(local("a.cpp"), "a", kOld, true);
  ASSERT_TRUE(presenter.open());
  EXPECT_TRUE(presenter.rows().empty());
  EXPECT_FALSE(presenter.send());
  ASSERT_EQ(alerts.boxes.size(), 1u);
  EXPECT_EQ(alerts.boxes[0].text, "Nothing to do !");
  EXPECT_EQ(alerts.boxes[0].style, unsigned(kAlertIconHand));
  EXPECT_TRUE(host.mails.empty());
}

TEST_F(GwSendTest, NoMailWithoutRecipientsOrWithTheFlagOff) {
  put(local("a.cpp"), "a", kOld, false);
  ASSERT_TRUE(presenter.open());
  presenter.update();
  ASSERT_TRUE(presenter.send());
  settings.mailOnSend = 0;
  mail.setRecipients({"team@example.com"});
  put(local("a.cpp"), "b", kNew, false);
  platformOs().setReadOnly(server("a.cpp"), true, nullptr);
  ASSERT_TRUE(presenter.open());
  presenter.update();
  ASSERT_TRUE(presenter.send());
  EXPECT_EQ(read(server("a.cpp")), "b");
  EXPECT_TRUE(host.mails.empty());
}

}  // namespace
