// The task list dialog's behaviour.
#include "tasks/task_list_presenter.h"

#include <cstdio>

#include "foundation/alert.h"
#include "tasks/date_entry.h"
#include "tasks/task_notification.h"

namespace {

const char* const kCaptionPatterns[kTaskStateCount] = {"to &Do : %d", "&Coded : %d", "&Tested : %d", "&Ended: %d"};

}  // namespace

int32_t readUnsignedField(const std::string& text) {
  size_t from = text.find_first_not_of(" \t");
  size_t to = text.find_last_not_of(" \t");
  if (from == std::string::npos) return 0;
  uint64_t value = 0;
  for (size_t i = from; i <= to; ++i) {
    char c = text[i];
    if (c < '0' || c > '9') return 0;
    value = value * 10 + static_cast<uint64_t>(c - '0');
    if (value > UINT32_MAX) return 0;
  }
  return static_cast<int32_t>(static_cast<uint32_t>(value));
}

Task* TaskListPresenter::taskAt(int32_t row) const {
  return row >= 0 && row < tasks_.view.count() ? tasks_.view[row] : nullptr;
}

void TaskListPresenter::open() {
  modified_ = false;
  refresh(false);
  if (tasks_.view.count() == 0) {
    updateEnableState(-1, true);
  } else {
    selected_ = 0;
    showTask(0);
    updateEnableState(0, true);
  }
}

void TaskListPresenter::refresh(bool rebuild) {
  if (rebuild) tasks_.rebuildView();
  rows_.clear();
  selected_ = -1;
  for (int32_t i = 0; i < tasks_.view.count(); ++i) {
    std::string row;
    tasks_.view[i]->appendRowText(&row);
    rows_.push_back(row);
  }
  for (int32_t state = 0; state < kTaskStateCount; ++state) {
    char caption[40];
    std::snprintf(caption, sizeof caption, kCaptionPatterns[state], static_cast<int>(tasks_.countInState(state)));
    captions_[state] = caption;
  }
}

void TaskListPresenter::refreshKeepingSelection() {
  Task* selected = taskAt(selected_);
  refresh(true);
  selectTaskOrFirstRow(selected);
  modified_ = true;
}

void TaskListPresenter::selectTaskOrFirstRow(const Task* task) {
  int32_t row = task ? tasks_.viewIndexOf(task) : BasicTableau::kNotFound;
  if (row != BasicTableau::kNotFound)
    selectAndShow(row);
  else if (tasks_.view.count() > 0)
    selectAndShow(0);
  else
    updateEnableState(-1, false);
}

void TaskListPresenter::selectAndShow(int32_t row) {
  selected_ = row;
  showTask(row);
  updateEnableState(row, false);
}

void TaskListPresenter::showTask(int32_t row) {
  const Task* task = taskAt(row);
  if (!task) return;
  edit.name = task->name.str();
  edit.type = task->type.str();
  edit.state = task->state;
  edit.priority = std::to_string(static_cast<uint32_t>(task->priority));
  edit.isPublic = task->isPublic != 0;
  edit.start = shortDate(task->start);
  edit.end = shortDate(task->end);
  edit.text = task->text.str();
}

void TaskListPresenter::updateEnableState(int32_t row, bool force) {
  const Task* task = taskAt(row);
  bool allowed = tasks_.view.count() > 0 && !(tasks_.endedReadOnly && task && task->state == kEnded);
  if (force || allowed != enabled_) enabled_ = allowed;
  if (tasks_.view.count() == 0) clearEditArea();
}

void TaskListPresenter::clearEditArea() {
  edit = TaskEditArea();
  edit.priority = "0";
}

void TaskListPresenter::selectRow(int32_t row) {
  if (taskAt(row)) selectAndShow(row);
}

void TaskListPresenter::setSortKey(int32_t sortKey) {
  tasks_.sortKey = sortKey;
  refreshKeepingSelection();
}

void TaskListPresenter::setShowFlag(int32_t state, bool on) {
  if (state < 0 || state >= kTaskStateCount) return;
  tasks_.showFlags[state] = on ? 1 : 0;
  refreshKeepingSelection();
}

void TaskListPresenter::setReverse(bool on) {
  tasks_.reverse = on ? 1 : 0;
  refreshKeepingSelection();
}

void TaskListPresenter::create() {
  Task* task = new Task();
  tasks_.append(task);
  tasks_.rebuildView();
  // A new task is to do: its state must be visible.
  tasks_.showFlags[kToDo] = 1;
  refresh(true);
  selectAndShow(tasks_.viewIndexOf(task));
  modified_ = true;
}

bool TaskListPresenter::remove() {
  Task* task = taskAt(selected_);
  if (!task || !enabled_) return false;
  if (alert("Remove " + task->name.str() + " ?", "Warning", kAlertYesNo | kAlertIconQuestion) != kAnswerYes)
    return false;
  modified_ = true;
  int32_t row = selected_;
  tasks_.view.clear();  // no dangling pointer between the deletion and the rebuild
  tasks_.removeAndDelete(tasks_.indexOf(task));
  refresh(true);
  int32_t count = tasks_.view.count();
  if (count == 0) {
    updateEnableState(-1, false);
  } else {
    selectAndShow(row < count ? row : count - 1);
  }
  return true;
}

bool TaskListPresenter::apply() {
  Task* task = taskAt(selected_);
  if (!task) return false;
  modified_ = true;
  int32_t previous = task->state;
  if (previous == kEnded && tasks_.endedReadOnly) {
    alert("You cannot modify an ended task (read-only) !", "Warning", kAlertIconExclamation);
    showTask(selected_);
    return false;
  }
  task->name = edit.name.substr(0, kMaxFieldLength);
  task->type = edit.type.substr(0, kMaxFieldLength);
  task->state = edit.state;
  task->priority = readUnsignedField(edit.priority);
  task->isPublic = edit.isPublic ? 1 : 0;
  task->text = edit.text.substr(0, kMaxTextLength);
  if (edit.startDate)
    task->start = *edit.startDate;
  else if (edit.readStart)
    task->start = readUserDate(edit.start);
  if (edit.endDate)
    task->end = *edit.endDate;
  else if (edit.readEnd)
    task->end = readUserDate(edit.end);
  refresh(true);
  selectTaskOrFirstRow(task);
  if (previous != kEnded && task->state == kEnded && tasks_.mainOn && task->isPublic)
    return notifyTaskEnd(*task, tasks_, mail_, host_);
  return true;
}
