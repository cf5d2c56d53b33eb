// The task management page as a presenter: the eight "Tasks" flags and the
// task types, joined with ";" in one field and split again when stored.
#pragma once

#include "project/option_page.h"
#include "tasks/task_list.h"

class TaskPage : public OptionPage {
 public:
  // The types are read back from a buffer of 512 characters.
  static constexpr size_t kMaxTypesLength = 511;

  explicit TaskPage(TaskList& tasks) : tasks_(tasks) {}

  std::vector<PageControl> controls() override;
  void show() override;
  void changed(int32_t) override { modified = true; }
  // The values take effect at once and are written to the settings.
  void store() override;

 private:
  TaskList& tasks_;
  int32_t flash_[kTaskStateCount] = {};
  int32_t mainOn_ = 0;
  int32_t keyIsDelivery_ = 0;
  int32_t endedReadOnly_ = 0;
  int32_t autoFlash_ = 0;
  std::string types_;
};
