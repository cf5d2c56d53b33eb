// The view's orders and the today report of the flash.
#include <gtest/gtest.h>

#include "delivery/mail.h"
#include "foundation/settings.h"
#include "foundation/settings_file.h"
#include "support/temp_dir.h"
#include "tasks/task_clock.h"
#include "tasks/task_list.h"
#include "tasks/task_order.h"

namespace {

class TaskViewTest : public ::testing::Test {
 protected:
  ClockOs clock;
  ScopedOs scoped{clock};
  TaskList list;

  std::vector<std::string> viewNames() const {
    std::vector<std::string> names;
    for (int32_t i = 0; i < list.view.count(); ++i) names.push_back(list.view[i]->name.str());
    return names;
  }
  std::string report(int expectedResult) {
    String out;
    EXPECT_EQ(list.todayReport(out), expectedResult);
    return out.str();
  }
};

TEST_F(TaskViewTest, SortsByPriorityAndReversesToHighestFirst) {
  list.append(makeTask("low", 0, 0, 1));
  list.append(makeTask("high", 0, 0, 30));
  list.append(makeTask("mid", 2, 0, 10));
  list.sortKey = kByPriority;
  list.rebuildView();
  EXPECT_EQ(viewNames(), (std::vector<std::string>{"low", "mid", "high"}));
  list.reverse = 1;
  list.showFlags[2] = 0;
  list.rebuildView();
  EXPECT_EQ(viewNames(), (std::vector<std::string>{"high", "low"}));
}

TEST_F(TaskViewTest, TasksEqualInEveryKeyKeepTheFileOrder) {
  // Enough tasks for a quicksort to shuffle equal ones.
  std::vector<std::string> texts;
  for (int i = 0; i < 40; ++i) {
    Task* task = makeTask(i % 2 ? "same" : "other", 0);
    task->text = "task " + std::to_string(i);
    list.append(task);
    if (i % 2) texts.push_back(task->text.str());
  }
  list.showFlags[0] = 1;
  for (int32_t key = 0; key < kTaskSortKeyCount; ++key) {
    for (int32_t reverse : {0, 1}) {
      list.sortKey = key;
      list.reverse = reverse;
      list.rebuildView();
      std::vector<std::string> seen;
      for (int32_t i = 0; i < list.view.count(); ++i)
        if (list.view[i]->name.str() == "same") seen.push_back(list.view[i]->text.str());
      EXPECT_EQ(seen, texts) << "key " << key << " reverse " << reverse;
    }
  }
}

TEST_F(TaskViewTest, ComparatorsWalkTheirKeysAndIgnoreTimeOfDay) {
  Task a;
  Task b;
  a.start = makeDate(1996, 5, 1, 8);
  b.start = makeDate(1996, 5, 1, 23);
  a.end = b.end;
  for (int32_t key = 0; key < kTaskSortKeyCount; ++key) EXPECT_EQ(compareTasks(a, b, key, 1), 0) << key;
  b.type = "\xc9tude";  // unsigned bytes: above 127 sorts after ASCII
  EXPECT_LT(compareTasks(a, b, kByType, 1), 0);
  EXPECT_GT(compareTasks(a, b, kByType, -1), 0);
  b.type = a.type;
  b.state = 1;
  a.start = makeDate(1997, 1, 1);
  EXPECT_LT(compareTasks(a, b, kByEndDate, 1), 0) << "the state decides before the start date";
  EXPECT_GT(compareTasks(a, b, kByStartDate, 1), 0);
}

TEST_F(TaskViewTest, ReportListsCurrentTasksIgnoringYears) {
  clock.utc = makeDate(1996, 5, 15);
  list.append(makeTask("May", 0, 0, 3, makeDate(1995, 5, 1), makeDate(1995, 5, 31)));
  list.append(makeTask("turn of year", 0, 0, 1, makeDate(1995, 12, 30), makeDate(1996, 1, 2)));
  list.append(makeTask("later", 1, 0, 2, makeDate(1996, 5, 16), makeDate(1996, 5, 20)));
  EXPECT_EQ(report(1), "May (5/1/1995 to 5/31/1995)\r\nType : Bug, Priority : 3, State : to do\r\nabout May\r\n" +
                           std::string(58, '-') + "\r\nThat's all folks !");
  for (SystemTime day : {makeDate(1996, 12, 30), makeDate(1996, 12, 31), makeDate(1997, 1, 1)}) {
    clock.utc = day;
    EXPECT_EQ(report(0), "No task today !") << day.month << "/" << day.day;
  }
}

TEST_F(TaskViewTest, ReportUsesTheUtcDayAndFlashStatesThenRestoresTheView) {
  clock.local = makeDate(1996, 5, 16, 1);
  clock.utc = makeDate(1996, 5, 15, 23);
  list.append(makeTask("ended today", 3, 0, 1, makeDate(1996, 5, 15), makeDate(1996, 5, 15)));
  list.append(makeTask("tested today", 2, 0, 1, makeDate(1996, 5, 15), makeDate(1996, 5, 15)));
  list.showFlags[2] = 0;
  list.rebuildView();
  std::string text = report(1);
  EXPECT_EQ(text.find("ended today"), std::string::npos);
  EXPECT_NE(text.find("tested today"), std::string::npos);
  EXPECT_EQ(viewNames(), (std::vector<std::string>{"ended today"}));
  list.flashFlags[2] = 0;
  EXPECT_EQ(report(0), "No task today !");
}

TEST(TaskSettingsTest, TypesSplitKeepingInnerEmptyNamesAndEveryValueRoundTrips) {
  EXPECT_EQ(splitTypes("a;;b;"), (std::vector<std::string>{"a", "", "b"}));
  EXPECT_EQ(splitTypes(""), std::vector<std::string>{});
  TempDir dir;
  SettingsFile file(dir.file("settings.reg"));
  settings().setBackend(&file);
  TaskList saved;
  EXPECT_EQ(joinTypes(saved.typeNames()), "Design;Evolution;Bug;Documentation");
  saved.flashFlags[3] = 1;
  saved.mainOn = saved.keyIsDelivery = saved.endedReadOnly = saved.autoFlash = 0;
  saved.setTypes({"x", "", "y"});
  saved.saveSettings();
  Mail mail;
  mail.control = 1;
  mail.saveSettings();
  TaskList loaded;
  Mail reloaded;
  reloaded.loadSettings();
  settings().setBackend(nullptr);
  EXPECT_EQ(loaded.flashFlags[3] + loaded.mainOn + loaded.keyIsDelivery + loaded.endedReadOnly + loaded.autoFlash, 1);
  EXPECT_EQ(loaded.typeNames(), (std::vector<std::string>{"x", "", "y"}));
  EXPECT_EQ(reloaded.control, 1);
}

}  // namespace
