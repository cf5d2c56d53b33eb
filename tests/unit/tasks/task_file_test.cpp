// The task file: its exact bytes, and what a damaged file leaves in memory.
#include <gtest/gtest.h>

#include "support/golden.h"
#include "support/temp_dir.h"
#include "tasks/task_clock.h"
#include "tasks/task_list.h"

namespace {

std::string int32Bytes(int32_t value) {
  std::string bytes(4, '\0');
  for (size_t i = 0; i < 4; ++i) bytes[i] = static_cast<char>(static_cast<uint32_t>(value) >> (8 * i));
  return bytes;
}

class TaskFileTest : public ::testing::Test {
 protected:
  TempDir dir;
  std::string path = dir.file("my project.kpj.tsk");
  std::string golden = readGolden("tasks", "two_tasks", "expected.tsk");
  TaskList list;
  TaskFileTest() { list.filePath = path; }

  // The list that tests/data/tasks/two_tasks/expected.tsk holds.
  void fillTwoTasks() {
    list.showFlags[1] = 0;
    list.reverse = 1;
    list.sortKey = 3;
    list.setTypes({"Design", "Bug fix", "\xc9volution"});
    Task* first = makeTask("Write the report", 1, 1, 7, makeDate(1995, 5, 1, 9), makeDate(1995, 5, 31, 18));
    first->type = "Design";
    first->start.dayOfWeek = 1;
    first->start.minute = 30;
    first->end.dayOfWeek = 3;
    first->text = "Line one\r\nLine two";
    Task* second = makeTask("Caf\xe9 menu", 3, 0, -2, makeDate(1996, 12, 30), makeDate(1997, 1, 2));
    second->start.dayOfWeek = 1;
    second->end.dayOfWeek = 4;
    second->text = "";
    list.append(first);
    list.append(second);
  }
};

TEST_F(TaskFileTest, WritesTheCheckedInBytesWithThePublicFlagTwiceAndReadsThemBack) {
  fillTwoTasks();
  std::string err;
  ASSERT_TRUE(list.save(&err)) << err;
  std::string bytes = dir.read("my project.kpj.tsk");
  ASSERT_FALSE(golden.empty());
  EXPECT_EQ(bytes, golden) << goldenDifference("tasks", "two_tasks", "expected.tsk", golden, bytes);
  EXPECT_EQ("", dir.temporariesLeft());
  // state, public, public, priority of each record.
  EXPECT_NE(bytes.find(int32Bytes(1) + int32Bytes(1) + int32Bytes(1) + int32Bytes(7)), std::string::npos);
  EXPECT_NE(bytes.find(int32Bytes(3) + int32Bytes(0) + int32Bytes(0) + int32Bytes(-2)), std::string::npos);

  TaskList reread;
  reread.filePath = path;
  reread.load();
  ASSERT_EQ(reread.count(), 2);
  EXPECT_EQ(reread.typeNames(), (std::vector<std::string>{"Design", "Bug fix", "\xc9volution"}));
  EXPECT_EQ(reread[0]->text.str(), "Line one\r\nLine two");
  ASSERT_EQ(reread.view.count(), 1) << "the coded task is hidden by the loaded flags";
  reread.filePath = dir.file("again.tsk");
  ASSERT_TRUE(reread.save(&err));
  EXPECT_EQ(dir.read("again.tsk"), golden);
}

TEST_F(TaskFileTest, BadHeaderOrMissingFileKeepsWhatWasInMemory) {
  list.append(new Task());
  for (const std::string& content : {std::string(), int32Bytes(1) + golden.substr(4), int32Bytes(-1),
                                     golden.substr(0, 10)}) {
    dir.write("my project.kpj.tsk", content);
    list.load();
    EXPECT_EQ(list.count(), 1) << "file of " << content.size() << " bytes";
  }
  list.filePath = dir.file("absent.tsk");
  list.load();
  EXPECT_EQ(list.count(), 1);
}

TEST_F(TaskFileTest, BadRecordKeepsTheTasksReadBeforeIt) {
  for (const char* name : {"one", "two", "three", "four"}) list.append(makeTask(name, 0));
  std::string err;
  ASSERT_TRUE(list.save(&err));
  std::string bytes = dir.read("my project.kpj.tsk");
  size_t third = bytes.find(std::string("\x05\x00three", 7)) - 4;
  bytes.replace(third, 4, int32Bytes(5));
  dir.write("my project.kpj.tsk", bytes);
  TaskList reread;
  reread.filePath = path;
  reread.load();
  ASSERT_EQ(reread.count(), 2);
  EXPECT_EQ(reread[1]->name.str(), "two");
  // A record cut short is dropped too.
  dir.write("my project.kpj.tsk", bytes.substr(0, third - 3));
  reread.load();
  EXPECT_EQ(reread.count(), 1);
}

TEST_F(TaskFileTest, ADamagedFileIsNamedAndNeverSavedOver) {
  for (const char* name : {"one", "two", "three"}) list.append(makeTask(name, 0));
  std::string err;
  ASSERT_TRUE(list.save(&err));
  const std::string damaged = dir.read("my project.kpj.tsk").substr(0, 60);
  dir.write("my project.kpj.tsk", damaged);
  TaskList reread;
  reread.filePath = path;
  EXPECT_FALSE(reread.load(&err));
  EXPECT_EQ(err, path + ": damaged task file, read as far as " + std::to_string(reread.count()) +
                     " task(s); it is left as it is and nothing is saved over it");
  reread.append(makeTask("added after", 0));
  EXPECT_FALSE(reread.save(&err)) << "what lies after the damage could still be recovered";
  EXPECT_EQ(err, path + " was damaged when it was read: it is not saved over");
  EXPECT_EQ(dir.read("my project.kpj.tsk"), damaged);

  dir.write("my project.kpj.tsk", "");
  EXPECT_TRUE(reread.load(&err)) << "an empty file is no damage";
  EXPECT_TRUE(reread.save(&err)) << err;
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
  EXPECT_EQ("", dir.temporariesLeft());
}

}  // namespace
