// The five sort orders of the task view.
#pragma once

#include <cstdint>

#include "foundation/os.h"
#include "foundation/tableau.h"
#include "tasks/task.h"

enum TaskSortKey : int32_t { kByState = 0, kByStartDate = 1, kByEndDate = 2, kByPriority = 3, kByType = 4 };
constexpr int32_t kTaskSortKeyCount = 5;

// "by state", "by start date", "by end date", "by priority", "by type".
const char* sortKeyText(int32_t sortKey);

// Year, then month, then day, each as a minus b; the rest of the dates is ignored.
int compareDates(const SystemTime& a, const SystemTime& b);

// The first non-zero key difference times direction (+1 or -1), 0 when every
// key is equal. A sort key outside 0..4 sorts by start date.
int compareTasks(const Task& a, const Task& b, int32_t sortKey, int direction);

// Sorts a table of tasks; tasks equal in every key keep their order.
void sortTasks(Tableau<Task>& tasks, int32_t sortKey, int direction);
