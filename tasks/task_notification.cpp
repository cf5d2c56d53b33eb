// Ended-task notifications.
#include "tasks/task_notification.h"

#include "foundation/alert.h"
#include "foundation/os.h"
#include "tasks/project_files.h"

namespace {

const std::string kRule(70, '-');

// The notification file is appended in text mode: on Windows every line feed
// becomes CR LF, also the one of each CR LF inside a description.
std::string textModeLines(const std::string& text) {
#ifdef _WIN32
  std::string out;
  for (char c : text) {
    if (c == '\n') out += '\r';
    out += c;
  }
  return out;
#else
  return text;
#endif
}

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
  std::string text;
  if (!os().exists(path)) text += kRule + "\n  NOTIFICATIONS FOR ENDED TASKS\n";
  text += kRule + "\n*** Task : " + task.name.str() + " ***\n" + task.text.str() + "\n";
  return os().appendFile(path, textModeLines(text), err);
}

void notifyTaskEnd(const Task& task, const TaskList& tasks, Mail& mail, Host& host) {
  std::string projectFile = host.projectFile();
  if (tasks.keyIsDelivery == 0) {
    std::string subject = taskEndSubject(task.name.str(), projectNameOf(projectFile));
    if (!mail.send(host, subject, task.text.str(), ""))
      alert("MAPI SendMail missed !", "Kesto AddOn error", kAlertIconHand);
    return;
  }
  std::string err;
  if (!appendTaskNotification(notificationFilePath(projectFile), task, &err)) {
    if (!err.empty()) host.showStatus(err);
    alert("Impossible to store informations for future mail", "Kesto AddOn error", kAlertIconExclamation);
  }
}
