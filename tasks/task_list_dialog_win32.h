// The "Task list" dialog: a modeless view over the task list presenter.
#pragma once

#include <windows.h>

#include "delivery/mail.h"
#include "project/host.h"
#include "tasks/task_list.h"

// Creates the dialog under parent, or brings the open one to the top. The
// task list is saved to its file when the dialog goes, if it was changed.
void openTaskListDialog(HINSTANCE instance, HWND parent, TaskList& tasks, Mail& mail, Host& host);
// The open dialog; null when none is open.
HWND taskListDialog();
