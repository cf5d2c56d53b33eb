// Ended-task notifications.
#include "tasks/task_notification.h"

#include "foundation/alert.h"
#include "foundation/os.h"
#include "tasks/file_handle.h"
#include "tasks/project_files.h"

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
  std::string text;
  if (!os().exists(path)) text += kRule + "\n  NOTIFICATIONS FOR ENDED TASKS\n";
  text += kRule + "\n*** Task : " + task.name.str() + " ***\n" + task.text.str() + "\n";
  // Text mode on purpose: on Windows every line feed becomes CR LF, also the
  // one of each CR LF inside a description.
  FileHandle file(std::fopen(path.c_str(), "at"));
  bool written = file && std::fwrite(text.data(), 1, text.size(), file.get()) == text.size();
  if (file) written = std::fclose(file.release()) == 0 && written;
  if (!written && err) *err = "cannot append to " + path;
  return written;
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
