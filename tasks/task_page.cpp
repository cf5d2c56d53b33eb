// The task management page's controls and storing.
#include "tasks/task_page.h"

std::vector<PageControl> TaskPage::controls() {
  return {
      checkControl(1010, "Show ToDo tasks in flash", &flash_[0]),
      checkControl(1011, "Show Coded tasks in flash", &flash_[1]),
      checkControl(1012, "Show Tested tasks in flash", &flash_[2]),
      checkControl(1013, "Show Ended tasks in flash", &flash_[3]),
      checkControl(1014, "Mail ended public tasks to other users", &mainOn_),
      radioControl(1015, "Send mail when task ends", &keyIsDelivery_, 0),
      radioControl(1016, "Send mail with the next delivery", &keyIsDelivery_, 1),
      checkControl(1017, "Set ended task to read-only mode", &endedReadOnly_),
      checkControl(1018, "Open Quick Flash when project opens (only once a day)", &autoFlash_),
      textControl(1019, "Set task types", &types_, kMaxTypesLength),
  };
}

void TaskPage::show() {
  for (int32_t state = 0; state < kTaskStateCount; ++state) flash_[state] = tasks_.flashFlags[state];
  mainOn_ = tasks_.mainOn;
  keyIsDelivery_ = tasks_.keyIsDelivery;
  endedReadOnly_ = tasks_.endedReadOnly;
  autoFlash_ = tasks_.autoFlash;
  types_ = joinTypes(tasks_.typeNames());
}

void TaskPage::store() {
  for (int32_t state = 0; state < kTaskStateCount; ++state) tasks_.flashFlags[state] = flash_[state];
  tasks_.mainOn = mainOn_;
  tasks_.keyIsDelivery = keyIsDelivery_;
  tasks_.endedReadOnly = endedReadOnly_;
  tasks_.autoFlash = autoFlash_;
  tasks_.setTypes(splitTypes(types_));
  tasks_.saveSettings();
}
