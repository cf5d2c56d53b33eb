// The task list dialog's behaviour through its presenter.
#include <gtest/gtest.h>

#include "support/fake_host.h"
#include "support/temp_dir.h"
#include "tasks/date_entry.h"
#include "tasks/task_clock.h"
#include "tasks/task_list_presenter.h"

namespace {

class PresenterTest : public ::testing::Test {
 protected:
  TempDir dir;
  ClockOs clock;
  ScopedOs scoped{clock};
  FakeHost host;
  RecordingAlerts alerts;
  Mail mail;
  TaskList list;
  TaskListPresenter presenter{list, mail, host};

  PresenterTest() { host.projectPath = dir.file("demo app.kpj"); }

  Task* add(const char* name, int32_t state, int32_t isPublic = 0) {
    Task* task = makeTask(name, state, isPublic);
    list.append(task);
    return task;
  }
  void openWith(Task* selectedTask) {
    list.rebuildView();
    presenter.open();
    presenter.selectRow(list.viewIndexOf(selectedTask));
  }
  // Applies a state; notified says whether the end of a task reached its reader.
  void applyState(int32_t state, bool notified = true) {
    presenter.edit.state = state;
    EXPECT_EQ(notified, presenter.apply());
  }
};

TEST_F(PresenterTest, CreateTurnsTheToDoBoxBackOnAndSelectsTheNewTask) {
  add("coded", 1);
  list.showFlags[0] = 0;
  list.rebuildView();
  presenter.open();
  EXPECT_FALSE(presenter.modified());
  presenter.create();
  EXPECT_EQ(list.showFlags[0], 1);
  ASSERT_EQ(presenter.rows().size(), 2u);
  EXPECT_EQ(presenter.rows()[static_cast<size_t>(presenter.selectedRow())],
            "New task\tBug\tto do\t10\t5/15/1996\t5/15/1996");
  EXPECT_EQ(presenter.edit.name, "New task");
  EXPECT_TRUE(presenter.modified());
}

TEST_F(PresenterTest, CaptionsCountHiddenTasksAndSelectionFollowsTheTask) {
  add("a", 0);
  Task* b = add("b", 2);
  add("c", 3);
  list.showFlags[3] = 0;
  openWith(b);
  presenter.setShowFlag(0, false);
  EXPECT_EQ(presenter.caption(0), "to &Do : 1");
  EXPECT_EQ(presenter.caption(2), "&Tested : 1");
  EXPECT_EQ(presenter.caption(3), "&Ended: 1");
  EXPECT_EQ(presenter.rows().size(), 1u);
  EXPECT_EQ(presenter.edit.name, "b");
  // The selected task leaves the view: row 0 is selected instead.
  presenter.setShowFlag(0, true);
  presenter.edit.state = 3;
  presenter.apply();
  EXPECT_EQ(presenter.selectedRow(), 0);
  EXPECT_EQ(presenter.edit.name, "a");
  // An empty view clears the edit area and disables editing.
  presenter.setShowFlag(0, false);
  EXPECT_FALSE(presenter.editingEnabled());
  EXPECT_EQ(presenter.edit.name, "");
  EXPECT_EQ(presenter.edit.priority, "0");
}

TEST_F(PresenterTest, EndedTaskIsReadOnlyUnlessEndedReadOnlyIsClear) {
  Task* ended = add("done", 3, 1);
  openWith(ended);
  EXPECT_FALSE(presenter.editingEnabled());
  presenter.edit.name = "renamed";
  EXPECT_FALSE(presenter.apply());
  EXPECT_FALSE(presenter.remove());
  ASSERT_EQ(alerts.boxes.size(), 1u);
  EXPECT_EQ(alerts.boxes[0].text, "You cannot modify an ended task (read-only) !");
  EXPECT_EQ(alerts.boxes[0].caption, "Warning");
  EXPECT_EQ(alerts.boxes[0].style, static_cast<unsigned>(kAlertIconExclamation));
  EXPECT_EQ(presenter.edit.name, "done") << "the edits are discarded";
  EXPECT_EQ(ended->name.str(), "done");
}

TEST_F(PresenterTest, EndingAPublicTaskTwiceNotifiesTwice) {
  list.endedReadOnly = 0;
  list.keyIsDelivery = 0;
  mail.setRecipients({"ann@example.org"});
  Task* task = add("Ship \"it\"", 2, 1);
  openWith(task);
  applyState(3);
  applyState(2);
  applyState(3);
  ASSERT_EQ(host.mails.size(), 2u);
  EXPECT_EQ(host.mails[1].subject, "End of task \"Ship \"it\"\" (project demo app)");
  EXPECT_EQ(host.mails[1].note, "about Ship \"it\"");
  EXPECT_EQ(host.mails[1].recipients, std::vector<std::string>{"ann@example.org"});

  host.mailResult = MailResult::Failed;
  applyState(2);
  applyState(3, false);
  ASSERT_EQ(alerts.boxes.size(), 1u);
  EXPECT_EQ(alerts.boxes[0].text, "MAPI SendMail missed !");
  EXPECT_EQ(alerts.boxes[0].caption, "Kesto AddOn error");
  EXPECT_EQ(alerts.boxes[0].style, static_cast<unsigned>(kAlertIconHand));
}

TEST_F(PresenterTest, PrivateTasksAndMainOffSendNothingAndDeliveryKeepsANote) {
  list.keyIsDelivery = 0;
  Task* task = add("private", 0, 0);
  openWith(task);
  applyState(3);
  list.mainOn = 0;
  Task* shown = add("public", 0, 1);
  openWith(shown);
  presenter.edit.isPublic = true;
  applyState(3);
  EXPECT_TRUE(host.mails.empty());

  list.mainOn = 1;
  list.keyIsDelivery = 1;
  Task* kept = add("kept", 0, 1);
  openWith(kept);
  applyState(3);
  EXPECT_TRUE(host.mails.empty());
  EXPECT_NE(dir.read("demo app.kpj.tsk.txt").find("*** Task : kept ***"), std::string::npos);

  host.projectPath = dir.file("no such dir/x.kpj");
  Task* lost = add("lost", 0, 1);
  openWith(lost);
  applyState(3, false);
  ASSERT_EQ(alerts.boxes.size(), 1u);
  EXPECT_EQ(alerts.boxes[0].text, "Impossible to store informations for future mail");
  EXPECT_EQ(alerts.boxes[0].style, static_cast<unsigned>(kAlertIconExclamation));
}

TEST_F(PresenterTest, RemoveAsksAndSelectsTheSameRowOrTheLast) {
  add("a", 0);
  add("b", 0);
  Task* c = add("c d", 0);
  openWith(c);
  alerts.answer = kAnswerNo;
  EXPECT_FALSE(presenter.remove());
  EXPECT_EQ(list.count(), 3);
  alerts.answer = kAnswerYes;
  EXPECT_TRUE(presenter.remove());
  ASSERT_EQ(alerts.boxes.size(), 2u);
  EXPECT_EQ(alerts.boxes[1].text, "Remove c d ?");
  EXPECT_EQ(alerts.boxes[1].caption, "Warning");
  EXPECT_EQ(alerts.boxes[1].style, static_cast<unsigned>(kAlertYesNo | kAlertIconQuestion));
  EXPECT_EQ(list.count(), 2);
  EXPECT_EQ(presenter.selectedRow(), 1);
  presenter.selectRow(0);
  EXPECT_TRUE(presenter.remove());
  EXPECT_EQ(presenter.selectedRow(), 0);
  EXPECT_TRUE(presenter.remove());
  EXPECT_EQ(presenter.selectedRow(), -1);
  EXPECT_FALSE(presenter.remove());
}

TEST_F(PresenterTest, ApplyReadsFieldsAsTheDialogDoes) {
  Task* task = add("t", 0);
  openWith(task);
  presenter.edit.name = std::string(100, 'n');
  presenter.edit.priority = " 4294967295 ";
  presenter.edit.start = "12/25/95";
  presenter.edit.end = "13/40/2001";
  presenter.edit.text = std::string(2000, 'x');
  EXPECT_TRUE(presenter.apply());
  EXPECT_EQ(task->name.length(), 79);
  EXPECT_EQ(task->text.length(), 1022);
  EXPECT_EQ(task->priority, -1);
  EXPECT_EQ(presenter.edit.priority, "4294967295");
  EXPECT_EQ(task->start.year, 1995);
  EXPECT_EQ(task->start.month, 12);
  EXPECT_EQ(task->start.hour, 10) << "time of day is today's";
  EXPECT_EQ(task->end.month, 13) << "no range check";
  EXPECT_EQ(task->end.year, 1901);
  for (const char* unreadable : {"-5", "4294967296", "12a"}) EXPECT_EQ(readUnsignedField(unreadable), 0);
}

TEST(DateEntryTest, DayOrMonthFirstByTheUsersFormat) {
  ClockOs clock;
  ScopedOs scoped(clock);
  SystemTime date = readUserDate("3/4/1995");
  EXPECT_EQ(date.month, 3);
  EXPECT_EQ(date.day, 4);
  clock.dayFirst = true;
  date = readUserDate("3/4/95");
  EXPECT_EQ(date.month, 4);
  EXPECT_EQ(date.day, 3);
  EXPECT_EQ(date.year, 1995);
  // Fields not typed keep today's date, year included.
  date = readUserDate("7");
  EXPECT_EQ(date.day, 7);
  EXPECT_EQ(date.month, 5);
  EXPECT_EQ(date.year, 1996);
}

TEST(DateEntryTest, CheckedDateTakesIsoAndFullYearsAsWritten) {
  SystemTime date = makeDate(1996, 5, 15, 10);
  EXPECT_EQ(readCheckedDate("2026-02-28", false, &date), CheckedDate::AsWritten);
  EXPECT_EQ(date.year, 2026);
  EXPECT_EQ(date.month, 2);
  EXPECT_EQ(date.day, 28);
  EXPECT_EQ(date.hour, 10) << "only the date is set";
  EXPECT_EQ(readCheckedDate("31/12/2026", true, &date), CheckedDate::AsWritten);
  EXPECT_EQ(date.month, 12);
  EXPECT_EQ(date.day, 31);
  EXPECT_EQ(readCheckedDate("2/29/2000", false, &date), CheckedDate::AsWritten);
  EXPECT_EQ(date.month, 2);
  EXPECT_EQ(date.day, 29);
}

TEST(DateEntryTest, CheckedDateKeepsTheDialogsShortYear) {
  SystemTime date;
  EXPECT_EQ(readCheckedDate("12/1/26", false, &date), CheckedDate::CenturyAdded);
  EXPECT_EQ(date.year, 1926);
  EXPECT_EQ(date.month, 12);
  EXPECT_EQ(date.day, 1);
}

TEST(DateEntryTest, CheckedDateRefusesWhatIsNoDate) {
  for (const char* text : {"31/12/2026", "2026-02-30", "2/29/1900", "13/1/2026", "0/1/2026", "tomorrow", "",
                           "1/2", "1/2/3/4", "1/2/026", "26-12-01", "2026-12-1x", "1//2026", "1/2/1600"}) {
    SystemTime date = makeDate(1996, 5, 15);
    EXPECT_EQ(readCheckedDate(text, false, &date), CheckedDate::Refused) << text;
    EXPECT_EQ(date.year, 1996) << text;
  }
}

}  // namespace
