// Ended-task notifications.
#include "tasks/task_notification.h"

#include "foundation/alert.h"
#include "foundation/os.h"
#include "project/project_files.h"

namespace {

const std::string kRule(70, '-');

}  // namespace

std::string taskEndSubject(const std::string& taskName, const std::string& projectName) {
  return "End of task \"" + taskName + "\" (project " + projectName + ")";
}

std::string projectNameOf(const std::string& projectFile) {
  std::string name = fileNameOf(projectFile);
  size_t dot = name.rfind('.');
  return dot == std::string::npos || dot == 0 ? name : name.substr(0, dot);
}

bool appendTaskNotification(const std::string& path, const Task& task, std::string* err) {
  // Under the file's lock from the read to the rename, so that two tasks ended
  // at once by two processes are both kept.
  std::unique_ptr<OsLock> lock = os().lock(path, err);
  if (!lock) return false;
  std::string text;
  if (os().exists(path) && !os().readFile(path, &text, err)) return false;
  std::string added;
  if (text.empty()) added += kRule + "\n  NOTIFICATIONS FOR ENDED TASKS\n";
  added += kRule + "\n*** Task : " + task.name.str() + " ***\n" + task.text.str() + "\n";
  // Text mode on purpose: on Windows every line feed becomes CR LF, also the
  // one of each CR LF inside a description.
  return os().writeFileAtomic(path, text + platformText(added), err);
}

bool notifyTaskEnd(const Task& task, const TaskList& tasks, Mail& mail, Host& host) {
  std::string projectFile = host.projectFile();
  if (tasks.keyIsDelivery == 0) {
    std::string subject = taskEndSubject(task.name.str(), projectNameOf(projectFile));
    if (mail.send(host, subject, task.text.str(), "")) return true;
    alert("MAPI SendMail missed !", "Kesto AddOn error", kAlertIconHand);
    return false;
  }
  std::string err;
  if (!appendTaskNotification(notificationFilePath(projectFile), task, &err)) {
    if (!err.empty()) host.showStatus(err);
    alert("Impossible to store informations for future mail", "Kesto AddOn error", kAlertIconExclamation);
    return false;
  }
  return true;
}
