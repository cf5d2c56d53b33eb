// The task list: the view and the counts.
#include "tasks/task_list.h"

#include "tasks/task_order.h"

TaskList::TaskList() {
  view.setOwns(false);
  loadSettings();
}

void TaskList::rebuildView() {
  view.clear();
  for (int32_t i = 0; i < count(); ++i) {
    Task* task = (*this)[i];
    if (task->state >= 0 && task->state < kTaskStateCount && showFlags[task->state]) view.append(task);
  }
  sortTasks(view, sortKey, reverse ? -1 : 1);
}

int32_t TaskList::countInState(int32_t state) const {
  int32_t n = 0;
  for (int32_t i = 0; i < count(); ++i)
    if ((*this)[i]->state == state) ++n;
  return n;
}

std::vector<std::string> TaskList::typeNames() const {
  std::vector<std::string> names;
  for (int32_t i = 0; i < types.count(); ++i) names.push_back(types[i]->str());
  return names;
}

void TaskList::setTypes(const std::vector<std::string>& names) {
  types.clear();
  for (const std::string& name : names) types.append(new String(name));
}
