// What happens when a public task ends: a mail now, or a note kept for the next delivery.
#pragma once

#include <string>

#include "delivery/mail.h"
#include "project/host.h"
#include "tasks/task.h"
#include "tasks/task_list.h"

// "End of task \"NAME\" (project PROJECT)".
std::string taskEndSubject(const std::string& taskName, const std::string& projectName);

// The project's name in mail subjects: its file name without the extension.
std::string projectNameOf(const std::string& projectFile);

// Appends one ended-task note to the notification file, with the two-line
// header when the file did not exist. Lines end as text files end on the platform.
bool appendTaskNotification(const std::string& path, const Task& task, std::string* err);

// Mails the end of the task (KeyIsDelivery 0) or appends it to the project's
// notification file (KeyIsDelivery 1), and shows the failure boxes; false after one.
bool notifyTaskEnd(const Task& task, const TaskList& tasks, Mail& mail, Host& host);
