// Task comparators: each order is a list of keys compared in turn.
#include "tasks/task_order.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace {

enum Key { kState, kStart, kEnd, kPriority, kType, kName };

// The keys of each order, as the sort list of the dialog names them.
const Key kOrders[kTaskSortKeyCount][6] = {
    {kState, kStart, kEnd, kPriority, kType, kName},  {kStart, kState, kEnd, kPriority, kType, kName},
    {kEnd, kState, kStart, kPriority, kType, kName},  {kPriority, kState, kStart, kEnd, kType, kName},
    {kType, kState, kStart, kEnd, kPriority, kName},
};

const char* const kSortTexts[kTaskSortKeyCount] = {"by state", "by start date", "by end date", "by priority",
                                                   "by type"};

// The sign of a minus b, computed in 64 bits so that extreme priorities cannot wrap.
int difference(int64_t a, int64_t b) {
  int64_t d = a - b;
  return d < 0 ? -1 : d > 0 ? 1 : 0;
}

int compareKey(const Task& a, const Task& b, Key key) {
  switch (key) {
    case kState: return difference(a.state, b.state);
    case kStart: return compareDates(a.start, b.start);
    case kEnd: return compareDates(a.end, b.end);
    case kPriority: return difference(a.priority, b.priority);
    case kType: return std::strcmp(a.type.c_str(), b.type.c_str());
    case kName: return std::strcmp(a.name.c_str(), b.name.c_str());
  }
  return 0;
}

}  // namespace

const char* sortKeyText(int32_t sortKey) {
  return sortKey >= 0 && sortKey < kTaskSortKeyCount ? kSortTexts[sortKey] : "";
}

int compareDates(const SystemTime& a, const SystemTime& b) {
  if (a.year != b.year) return a.year - b.year;
  if (a.month != b.month) return a.month - b.month;
  return a.day - b.day;
}

int compareTasks(const Task& a, const Task& b, int32_t sortKey, int direction) {
  if (sortKey < 0 || sortKey >= kTaskSortKeyCount) sortKey = kByStartDate;
  for (Key key : kOrders[sortKey])
    if (int result = compareKey(a, b, key)) return result * direction;
  return 0;
}

void sortTasks(Tableau<Task>& tasks, int32_t sortKey, int direction) {
  // Stable, so that tasks equal in every key keep the file's order and a row
  // number stays the same from one listing to the next; the C library's qsort
  // promises no order for them.
  std::vector<Task*> sorted;
  for (int32_t i = 0; i < tasks.count(); ++i) sorted.push_back(tasks[i]);
  std::stable_sort(sorted.begin(), sorted.end(), [sortKey, direction](const Task* a, const Task* b) {
    return compareTasks(*a, *b, sortKey, direction) < 0;
  });
  for (int32_t i = 0; i < tasks.count(); ++i) tasks.set(i, sorted[static_cast<size_t>(i)]);
}
