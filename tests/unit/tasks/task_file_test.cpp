// The task file: its exact bytes, and what a damaged file leaves in memory.
#include <gtest/gtest.h>

#include "support/golden.h"
#include "support/temp_dir.h"
#include "tasks/task_list.h"
#include "tasks/task_clock.h"

namespace {

Task* makeTask(const char* name, const char* type, int32_t state, int32_t isPublic, int32_t priority,
               SystemTime start, SystemTime end, const char* text) {
  Task* task = new Task();
  task->name = name;
  task->type = type;
  task->state = state;
  task->isPublic = isPublic;
  task->priority = priority;
  task->start = start;
  task->end = end;
  task->text = text;
  return task;
}

SystemTime withWeekdayAndTime(SystemTime date, uint16_t dayOfWeek, uint16_t hour, uint16_t minute) {
  date.dayOfWeek = dayOfWeek;
  date.hour = hour;
  date.minute = minute;
  return date;
}

// The list that tests/data/tasks/two_tasks/expected.tsk holds.
void fillTwoTasks(TaskList& list) {
  list.showFlags[1] = 0;
  list.reverse = 1;
  list.sortKey = 3;
  list.setTypes({"Design", "Bug fix", "\xc9volution"});
  list.append(makeTask("Write the report", "Design", 1, 1, 7, withWeekdayAndTime(makeDate(1995, 5, 1), 1, 9, 30),
                       withWeekdayAndTime(makeDate(1995, 5, 31), 3, 18, 0), "Line one\r\nLine two"));
  list.append(makeTask("Caf\xe9 menu", "Bug", 3, 0, -2, withWeekdayAndTime(makeDate(1996, 12, 30), 1, 0, 0),
                       withWeekdayAndTime(makeDate(1997, 1, 2), 4, 0, 0), ""));
}

std::string int32Bytes(int32_t value) {
  std::string bytes(4, '\0');
  for (int i = 0; i < 4; ++i) bytes[static_cast<size_t>(i)] = static_cast<char>(static_cast<uint32_t>(value) >> (8 * i));
  return bytes;
}

class TaskFileTest : public ::testing::Test {
 protected:
  TempDir dir;
  std::string path = dir.file("my project.kpj.tsk");
  TaskList list;
  TaskFileTest() { list.filePath = path; }
  std::vector<std::string> names() const {
    std::vector<std::string> out;
    for (int32_t i = 0; i < list.count(); ++i) out.push_back(list[i]->name.str());
    return out;
  }
};

TEST_F(TaskFileTest, WritesTheCheckedInBytesAndReadsThemBack) {
  fillTwoTasks(list);
  std::string err;
  ASSERT_TRUE(list.save(&err)) << err;
  std::string expected = readGolden("tasks", "two_tasks", "expected.tsk");
  ASSERT_FALSE(expected.empty());
  EXPECT_EQ(dir.read("my project.kpj.tsk"), expected)
      << goldenDifference("tasks", "two_tasks", "expected.tsk", expected, dir.read("my project.kpj.tsk"));
  EXPECT_FALSE(platformOs().exists(path + ".kesto-tmp"));

  TaskList reread;
  reread.filePath = path;
  reread.load();
  ASSERT_EQ(reread.count(), 2);
  EXPECT_EQ(reread.typeNames(), (std::vector<std::string>{"Design", "Bug fix", "\xc9volution"}));
  EXPECT_EQ(reread.sortKey, 3);
  EXPECT_EQ(reread[1]->name.str(), "Caf\xe9 menu");
  EXPECT_EQ(reread[0]->text.str(), "Line one\r\nLine two");
  EXPECT_EQ(reread[0]->start.minute, 30);
  // The view follows the loaded flags: the coded task is hidden.
  ASSERT_EQ(reread.view.count(), 1);
  EXPECT_EQ(reread.view[0]->name.str(), "Caf\xe9 menu");
  reread.filePath = dir.file("again.tsk");
  ASSERT_TRUE(reread.save(&err));
  EXPECT_EQ(dir.read("again.tsk"), expected);
}

TEST_F(TaskFileTest, EverySavedRecordHoldsThePublicFlagTwice) {
  fillTwoTasks(list);
  std::string err;
  ASSERT_TRUE(list.save(&err));
  std::string bytes = dir.read("my project.kpj.tsk");
  // state, public, public, priority of each record, in order.
  EXPECT_NE(bytes.find(int32Bytes(1) + int32Bytes(1) + int32Bytes(1) + int32Bytes(7)), std::string::npos);
  EXPECT_NE(bytes.find(int32Bytes(3) + int32Bytes(0) + int32Bytes(0) + int32Bytes(-2)), std::string::npos);
}

TEST_F(TaskFileTest, BadHeaderOrMissingFileKeepsWhatWasInMemory) {
  list.append(new Task());
  std::string expected = readGolden("tasks", "two_tasks", "expected.tsk");
  for (const std::string& content : {std::string(), int32Bytes(1) + expected.substr(4), int32Bytes(-1),
                                     expected.substr(0, 10)}) {
    dir.write("my project.kpj.tsk", content);
    list.load();
    EXPECT_EQ(list.count(), 1) << "file of " << content.size() << " bytes";
  }
  list.filePath = dir.file("absent.tsk");
  list.load();
  EXPECT_EQ(list.count(), 1);
}

TEST_F(TaskFileTest, BadRecordKeepsTheTasksReadBeforeIt) {
  for (const char* name : {"one", "two", "three", "four"}) list.append(makeTask(name, "Bug", 0, 0, 1, {}, {}, ""));
  std::string err;
  ASSERT_TRUE(list.save(&err));
  std::string bytes = dir.read("my project.kpj.tsk");
  size_t third = bytes.find(std::string("\x05\x00three", 7)) - 4;
  bytes.replace(third, 4, int32Bytes(5));
  dir.write("my project.kpj.tsk", bytes);

  TaskList reread;
  reread.filePath = path;
  reread.load();
  EXPECT_EQ((std::vector<std::string>{reread[0]->name.str(), reread[1]->name.str()}),
            (std::vector<std::string>{"one", "two"}));
  EXPECT_EQ(reread.count(), 2);

  // A record cut short is dropped too.
  dir.write("my project.kpj.tsk", bytes.substr(0, third - 3));
  reread.load();
  EXPECT_EQ(reread.count(), 1);
}

TEST_F(TaskFileTest, FailedSaveLeavesTheOldFile) {
  dir.write("my project.kpj.tsk", "old");
  list.append(new Task());
  FaultOs faults;
  faults.failAt = 1;  // the rename into place
  ScopedOs scoped(faults);
  std::string err;
  EXPECT_FALSE(list.save(&err));
  EXPECT_EQ(err, "injected fault at call 1");
  EXPECT_EQ(dir.read("my project.kpj.tsk"), "old");
  EXPECT_FALSE(platformOs().exists(path + ".kesto-tmp"));

  list.filePath = dir.file("no such dir/x.tsk");
  EXPECT_FALSE(list.save(&err));
  EXPECT_NE(err.find("cannot create"), std::string::npos);
}

}  // namespace
