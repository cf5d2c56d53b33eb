// What every kesto command works with: the global options, the open project,
// the settings file and the host.
#pragma once

#include <memory>
#include <string>

#include "cli/cli_host.h"
#include "cli/kpj_project.h"
#include "delivery/delivery_run.h"
#include "delivery/mail.h"
#include "foundation/os.h"
#include "foundation/settings_file.h"
#include "project/project_session.h"
#include "tasks/task_list.h"

// Exit statuses of every command.
enum ExitStatus { kExitOk = 0, kExitNothing = 1, kExitUsage = 2 };

// Update: the command saves the project, so the project file's lock is taken
// before it is read and held until the run ends, and a parallel run's change
// is never lost.
enum class ProjectUse { Read, Update };

// Loaded: the task file is read as the project opens, its lock held until the
// run ends; a damaged one stops the command.
enum class ProjectTasks { Skipped, Loaded };

class CliSession {
 public:
  CliSession();
  ~CliSession();
  CliSession(const CliSession&) = delete;
  CliSession& operator=(const CliSession&) = delete;

  // Global options, filled by the parser.
  std::string projectOption;  // --project FILE

  // Opens the project named by --project, else the one *.kpj of the current
  // directory, and hands each feature its part. With no project file at all,
  // returns true and project() stays null. A project that cannot be read is
  // reported on standard error.
  bool openProject(ProjectUse use = ProjectUse::Read, ProjectTasks tasks = ProjectTasks::Skipped);
  // Like openProject, but a project is required: reports "no project" otherwise.
  bool requireProject(ProjectUse use = ProjectUse::Read, ProjectTasks tasks = ProjectTasks::Skipped);
  KpjProject* project() { return project_.get(); }
  // The open project's options as read at opening; null without a project.
  ProjectOptions* options() { return projectSession_.options(); }
  // Writes the options (recipients and delivery groups taken back from mail()
  // and delivery()) and saves the project file; false with err otherwise.
  bool saveProject(std::string* err);

  // The features' state of the open project, given when it opened.
  Mail& mail() { return mail_; }            // its settings and the project's recipients
  Delivery& delivery() { return delivery_; }  // the project's delivery groups
  TaskList& tasks() { return tasks_; }      // read only with ProjectTasks::Loaded
  // The project's directory, or the current directory without a project.
  std::string projectDirectory();

  SettingsFile& settingsFile() { return settingsFile_; }
  CliHost& host() { return host_; }

  // The status the process ends with; commands set it.
  int exitStatus = kExitOk;

 private:
  ProjectSteps projectSteps();

  SettingsFile settingsFile_;
  CliHost host_;
  std::unique_ptr<OsLock> projectLock_;  // before project_: released after it
  std::unique_ptr<OsLock> tasksLock_;
  std::unique_ptr<KpjProject> project_;
  Mail mail_;
  Delivery delivery_;
  TaskList tasks_;
  ProjectTasks tasksUse_ = ProjectTasks::Skipped;
  bool tasksLockRefused_ = false;
  ProjectSession projectSession_;
  bool opened_ = false;
};

// Where the settings file lives: $KESTO_SETTINGS, else
// $XDG_CONFIG_HOME/kesto/settings.reg, else ~/.config/kesto/settings.reg.
std::string settingsFilePath();

// path taken from the current directory; an empty or absolute path as it is.
std::string absolutePath(const std::string& path);

// Reports an error of kesto itself on standard error: "kesto: TEXT".
void reportError(const std::string& text);
