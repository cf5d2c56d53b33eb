// The mail object's note and sending, and the mail options page's list operations.
#include <gtest/gtest.h>

#include "delivery/mail.h"
#include "delivery/mail_page.h"
#include "support/fake_host.h"
#include "support/temp_dir.h"

namespace {

const std::string kClosing = std::string(70, '-') + "\nThat's all folks !\n";

class MailTest : public ::testing::Test {
 protected:
  TempDir dir;
  FakeHost host;
  RecordingAlerts alerts;
  Mail mail;
  std::string notes = dir.file("my app.kpj.tsk.txt");
};

TEST_F(MailTest, SendWithoutRecipientsIsStillHandedToTheTransport) {
  EXPECT_EQ(mail.send(host, "Subject", "Body\n", ""), 1);
  ASSERT_EQ(host.mails.size(), 1u);
  EXPECT_TRUE(host.mails[0].recipients.empty());
  EXPECT_EQ(host.mails[0].note, "Body\n");
  EXPECT_FALSE(host.mails[0].showDialog);
}

TEST_F(MailTest, AbsentIncludedFileGivesTheBodyAlone) {
  mail.control = 1;
  mail.setRecipients({"ann", "bob@example.org"});
  EXPECT_EQ(mail.send(host, "S", "Report\n", notes), 1);
  EXPECT_EQ(host.mails[0].note, "Report\n");
  EXPECT_EQ(host.mails[0].recipients, (std::vector<std::string>{"ann", "bob@example.org"}));
  EXPECT_TRUE(host.mails[0].showDialog);
}

TEST_F(MailTest, IncludedFileIsAppendedAndDeletedOnlyAfterASuccessfulSend) {
  platformOs().writeTextFileAtomic(notes, "first \xe9\nlast line without end", nullptr);
  host.mailResult = MailResult::Failed;
  EXPECT_EQ(mail.send(host, "S", "Body\n", notes), 0);
  EXPECT_TRUE(alerts.boxes.empty()) << "the caller reports a failed sending";
  EXPECT_EQ(host.statusTexts, std::vector<std::string>{"mail refused by the fake"});
  EXPECT_TRUE(platformOs().exists(notes));
  host.mailResult = MailResult::Sent;
  EXPECT_EQ(mail.send(host, "S", "Body\n", notes), 1);
  EXPECT_EQ(host.mails[1].note, "Body\nfirst \xe9\nlast line without end" + kClosing);
  EXPECT_FALSE(platformOs().exists(notes));
}

TEST_F(MailTest, MissingTransportShowsItsOwnMessages) {
  host.mailResult = MailResult::TransportMissing;
  EXPECT_EQ(mail.send(host, "S", "B", ""), 0);
  host.mailResult = MailResult::TransportUnavailable;
  EXPECT_EQ(mail.send(host, "S", "B", ""), 0);
  ASSERT_EQ(alerts.boxes.size(), 2u);
  EXPECT_EQ(alerts.boxes[0].text, "MAPI not present !");
  EXPECT_EQ(alerts.boxes[1].text, "MAPI not available !");
  EXPECT_EQ(alerts.boxes[1].caption, "Kesto AddOn error");
  EXPECT_EQ(alerts.boxes[1].style, static_cast<unsigned>(kAlertIconHand));
}

TEST_F(MailTest, PageEditsTheListAndHandsItToTheMail) {
  MailPagePresenter page(mail);
  page.show(false);
  EXPECT_FALSE(page.listEnabled());
  page.show(true);
  page.createEntry();  // no selection: at the top
  page.changeEditText("ann " + std::string(400, 'x'));
  EXPECT_EQ(page.rows[0].size(), 299u);
  page.changeEditText("ann");
  page.createEntry();
  page.changeEditText("bob");
  page.selectRow(0);
  page.createEntry();
  EXPECT_EQ(page.rows, (std::vector<std::string>{"ann", "new entry", "bob"}));
  page.selectRow(2);
  page.deleteEntry();  // the last row: the one before it is selected
  EXPECT_EQ(page.selected, 1);
  EXPECT_EQ(page.editText, "new entry");

  EXPECT_FALSE(page.pasteEnabled());
  page.copyAll();
  page.selectRow(0);
  page.paste();
  EXPECT_EQ(page.rows, (std::vector<std::string>{"ann", "ann", "new entry", "new entry"}));
  EXPECT_EQ(page.selected, 2) << "the last pasted row";
  page.setControl(true);
  page.accept();
  EXPECT_EQ(mail.control, 1);
  EXPECT_EQ(mail.recipientTexts(), page.rows);
}

}  // namespace
