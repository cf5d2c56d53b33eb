// The view's orders and the today report of the flash.
#include <gtest/gtest.h>

#include "tasks/task_clock.h"
#include "tasks/task_list.h"
#include "tasks/task_order.h"

namespace {

class TaskViewTest : public ::testing::Test {
 protected:
  ClockOs clock;
  ScopedOs scoped{clock};
  TaskList list;

  Task* add(const char* name, int32_t state, int32_t priority, SystemTime start, SystemTime end,
            const char* type = "Bug") {
    Task* task = new Task();
    task->name = name;
    task->type = type;
    task->state = state;
    task->priority = priority;
    task->start = start;
    task->end = end;
    task->text = std::string("about ") + name;
    list.append(task);
    return task;
  }
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
  SystemTime day = makeDate(1996, 5, 1);
  add("low", 0, 1, day, day);
  add("high", 0, 30, day, day);
  add("mid", 2, 10, day, day);
  list.sortKey = kByPriority;
  list.rebuildView();
  EXPECT_EQ(viewNames(), (std::vector<std::string>{"low", "mid", "high"}));
  list.reverse = 1;
  list.rebuildView();
  EXPECT_EQ(viewNames(), (std::vector<std::string>{"high", "mid", "low"}));
  list.showFlags[2] = 0;
  list.rebuildView();
  EXPECT_EQ(viewNames(), (std::vector<std::string>{"high", "low"}));
}

TEST_F(TaskViewTest, ComparatorsWalkTheirKeysAndIgnoreTimeOfDay) {
  Task a;
  Task b;
  a.start = b.start = makeDate(1996, 5, 1, 8);
  a.end = b.end = makeDate(1996, 6, 1);
  b.start.hour = 23;
  b.start.dayOfWeek = 4;
  for (int32_t key = 0; key < kTaskSortKeyCount; ++key) EXPECT_EQ(compareTasks(a, b, key, 1), 0) << key;
  // Types compare as unsigned bytes: a byte above 127 sorts after ASCII.
  b.type = "\xc9tude";
  EXPECT_LT(compareTasks(a, b, kByType, 1), 0);
  EXPECT_GT(compareTasks(a, b, kByType, -1), 0);
  // By end date, the state decides before the start date.
  b.type = a.type;
  b.state = 1;
  a.start = makeDate(1997, 1, 1);
  EXPECT_LT(compareTasks(a, b, kByEndDate, 1), 0);
  EXPECT_GT(compareTasks(a, b, kByStartDate, 1), 0);
}

TEST_F(TaskViewTest, ReportListsCurrentTasksIgnoringYears) {
  clock.utc = makeDate(1996, 5, 15);
  add("May", 0, 3, makeDate(1995, 5, 1), makeDate(1995, 5, 31));
  add("turn of year", 0, 1, makeDate(1995, 12, 30), makeDate(1996, 1, 2));
  add("later", 1, 2, makeDate(1996, 5, 16), makeDate(1996, 5, 20));
  EXPECT_EQ(report(1),
            "May (5/1/1995 to 5/31/1995)\r\nType : Bug, Priority : 3, State : to do\r\nabout May\r\n" +
                std::string(58, '-') + "\r\nThat's all folks !");
  for (SystemTime day : {makeDate(1996, 12, 31), makeDate(1997, 1, 1), makeDate(1996, 12, 30)}) {
    clock.utc = day;
    EXPECT_EQ(report(0), "No task today !") << day.month << "/" << day.day;
  }
}

TEST_F(TaskViewTest, ReportUsesTheUtcDayAndFlashStatesThenRestoresTheView) {
  clock.local = makeDate(1996, 5, 16, 1);
  clock.utc = makeDate(1996, 5, 15, 23);
  add("ended today", 3, 1, makeDate(1996, 5, 15), makeDate(1996, 5, 15));
  add("tested today", 2, 1, makeDate(1996, 5, 15), makeDate(1996, 5, 15));
  list.showFlags[2] = 0;
  list.rebuildView();
  EXPECT_EQ(report(1).find("ended today"), std::string::npos);
  EXPECT_EQ(viewNames(), (std::vector<std::string>{"ended today"}));
  EXPECT_EQ(list.showFlags[2], 0);
  list.flashFlags[2] = 0;
  EXPECT_EQ(report(0), "No task today !");
  list.flashFlags[3] = 1;
  EXPECT_NE(report(1).find("State : ended"), std::string::npos);
}

TEST(TaskTypesTest, SplitKeepsInnerEmptyNamesButNotTheLastOne) {
  EXPECT_EQ(splitTypes("a;;b;"), (std::vector<std::string>{"a", "", "b"}));
  EXPECT_EQ(splitTypes(""), std::vector<std::string>{});
  EXPECT_EQ(joinTypes({"a", "", "b"}), "a;;b");
  TaskList defaults;
  EXPECT_EQ(defaults.typeNames(), (std::vector<std::string>{"Design", "Evolution", "Bug", "Documentation"}));
  EXPECT_EQ(defaults.flashFlags[3], 0);
}

}  // namespace
