// The "today" report of the flash: the tasks of the flash states current on the UTC date.
#include "tasks/task_list.h"

bool dayNotAfter(const SystemTime& a, const SystemTime& b) {
  return a.month < b.month || (a.month == b.month && a.day <= b.day);
}

int TaskList::todayReport(String& out) {
  int32_t kept[kTaskStateCount];
  for (int32_t i = 0; i < kTaskStateCount; ++i) {
    kept[i] = showFlags[i];
    showFlags[i] = flashFlags[i];
  }
  rebuildView();
  // Task dates are local but today is the UTC date; years play no part.
  SystemTime today = os().systemTime();
  std::string report;
  for (int32_t i = 0; i < view.count(); ++i) {
    const Task& task = *view[i];
    if (!dayNotAfter(task.start, today) || !dayNotAfter(today, task.end)) continue;
    report += task.name.str() + " (" + shortDate(task.start) + " to " + shortDate(task.end) + ")\r\nType : " +
              task.type.str() + ", Priority : " + std::to_string(task.priority) +
              ", State : " + stateWord(task.state, false) + "\r\n" + task.text.str() + "\r\n" +
              std::string(58, '-') + "\r\n";
  }
  bool any = !out.empty() || !report.empty();
  out += String(report);
  out += any ? "That's all folks !" : "No task today !";
  for (int32_t i = 0; i < kTaskStateCount; ++i) showFlags[i] = kept[i];
  rebuildView();
  return any ? 1 : 0;
}
