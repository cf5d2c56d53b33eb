// The once-a-day marker of the flash and the ended-task notification file.
#include <gtest/gtest.h>

#include "support/fault_os.h"
#include "support/temp_dir.h"
#include "tasks/flash.h"
#include "project/project_files.h"
#include "tasks/task_clock.h"
#include "tasks/task_notification.h"

namespace {

class FlashTest : public ::testing::Test {
 protected:
  TempDir dir;
  ClockOs clock;
  ScopedOs scoped{clock};
  TaskList list;
  std::string marker = flashMarkerPath(dir.file("my app.kpj"));
};

TEST_F(FlashTest, MarkerOfTodayStopsTheAutomaticFlashAndYesterdaysLetsItRun) {
  EXPECT_TRUE(shouldFlashAtProjectOpen(list, marker)) << "no marker yet";
  dir.write("my app.kpj.fltme", "5/14/1996\n");
  EXPECT_TRUE(shouldFlashAtProjectOpen(list, marker));
  dir.write("my app.kpj.fltme", "");
  EXPECT_TRUE(shouldFlashAtProjectOpen(list, marker));
  dir.write("my app.kpj.fltme", "  5/15/1996\r\n");
  EXPECT_FALSE(shouldFlashAtProjectOpen(list, marker));
  list.autoFlash = 0;
  dir.write("my app.kpj.fltme", "");
  EXPECT_FALSE(shouldFlashAtProjectOpen(list, marker));
}

TEST_F(FlashTest, EveryShowingWritesTheUtcDayAndKeepsOneWindow) {
  clock.local = makeDate(1996, 5, 16, 0);  // past midnight locally, still the 15th in UTC
  FlashWindow window;
  EXPECT_TRUE(window.show(marker, "first"));
  std::string written;
  platformOs().readTextFile(marker, &written, nullptr);
  EXPECT_EQ(written, "5/15/1996\n");
  EXPECT_FALSE(shouldFlashAtProjectOpen(list, marker));
  EXPECT_FALSE(window.show(marker, "second"));
  EXPECT_EQ(window.text(), "second");
  window.closed();
  EXPECT_TRUE(window.show(marker, "third"));
  EXPECT_EQ(flashTitle(), "Flash : long 1996-5-15");
}

TEST_F(FlashTest, AutomaticFlashShowsNothingWithoutCurrentTask) {
  EXPECT_EQ(automaticFlashText(list), "");
  EXPECT_EQ(flashOnDemandText(list), "No task today !");
  Task* task = new Task();
  task->start = task->end = makeDate(1996, 5, 15);
  list.append(task);
  EXPECT_NE(automaticFlashText(list).find("New task (5/15/1996 to 5/15/1996)"), std::string::npos);
}

TEST_F(FlashTest, NotificationFileGetsItsHeaderOnce) {
  std::string path = notificationFilePath(dir.file("my app.kpj"));
  Task task;
  task.name = "Fix \xe9t\xe9";
  task.text = "line 1\r\nline 2";
  std::string err;
  ASSERT_TRUE(appendTaskNotification(path, task, &err)) << err;
  task.name = "Second";
  task.text = "";
  ASSERT_TRUE(appendTaskNotification(path, task, &err)) << err;
  std::string rule(70, '-');
#ifdef _WIN32
  const char* eol = "\r\n";
  const char* inner = "\r\r\n";
#else
  const char* eol = "\n";
  const char* inner = "\r\n";
#endif
  EXPECT_EQ(dir.read("my app.kpj.tsk.txt"), rule + eol + "  NOTIFICATIONS FOR ENDED TASKS" + eol + rule + eol +
                                                "*** Task : Fix \xe9t\xe9 ***" + eol + "line 1" + inner + "line 2" +
                                                eol + rule + eol + "*** Task : Second ***" + eol + eol);
}

TEST_F(FlashTest, EveryFailingCallKeepsTheNotificationsWholeAndLeavesNoTemporary) {
  std::string path = notificationFilePath(dir.file("my app.kpj"));
  Task task;
  task.name = "First";
  ASSERT_TRUE(appendTaskNotification(path, task, nullptr));
  const std::string before = dir.read("my app.kpj.tsk.txt");
  task.name = "Second";
  for (int failAt = 1;; ++failAt) {
    FaultOs faults;
    faults.failAt = failAt;
    ScopedOs scoped(faults);
    std::string err;
    bool appended = appendTaskNotification(path, task, &err);
    std::string after = dir.read("my app.kpj.tsk.txt");
    EXPECT_EQ("", dir.temporariesLeft()) << "failing call " << failAt;
    if (appended) {
      EXPECT_EQ(0u, after.find(before)) << "the earlier notes are kept in front";
      EXPECT_NE(std::string::npos, after.find("*** Task : Second ***"));
      break;
    }
    EXPECT_EQ(before, after) << "failing call " << failAt;
    EXPECT_EQ("injected fault at call " + std::to_string(failAt), err);
  }
}

TEST(ProjectNameTest, DropsDirectoryAndExtension) {
  EXPECT_EQ(projectNameOf(joinPath("my dir", "demo app.kpj")), "demo app");
  EXPECT_EQ(projectNameOf("noext"), "noext");
  EXPECT_EQ(taskEndSubject("Fix", "demo"), "End of task \"Fix\" (project demo)");
}

}  // namespace
