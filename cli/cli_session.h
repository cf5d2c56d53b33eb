// What every kesto command works with: the global options, the open project,
// the settings file and the host.
#pragma once

#include <memory>
#include <string>

#include "cli/cli_host.h"
#include "cli/kpj_project.h"
#include "foundation/settings_file.h"

// Exit statuses of every command.
enum ExitStatus { kExitOk = 0, kExitNothing = 1, kExitUsage = 2 };

class CliSession {
 public:
  CliSession();
  ~CliSession();
  CliSession(const CliSession&) = delete;
  CliSession& operator=(const CliSession&) = delete;

  // Global options, filled by the parser.
  std::string projectOption;  // --project FILE

  // Opens the project named by --project, else the one *.kpj of the current
  // directory. With no project file at all, returns true and project() stays
  // null. A project that cannot be read is reported on standard error.
  bool openProject();
  // Like openProject, but a project is required: reports "no project" otherwise.
  bool requireProject();
  KpjProject* project() { return project_.get(); }
  // The project's directory, or the current directory without a project.
  std::string projectDirectory();

  SettingsFile& settingsFile() { return settingsFile_; }
  CliHost& host() { return host_; }

  // The status the process ends with; commands set it.
  int exitStatus = kExitOk;

 private:
  SettingsFile settingsFile_;
  CliHost host_;
  std::unique_ptr<KpjProject> project_;
  bool opened_ = false;
};

// Where the settings file lives: $KESTO_SETTINGS, else
// $XDG_CONFIG_HOME/kesto/settings.reg, else ~/.config/kesto/settings.reg.
std::string settingsFilePath();

// Reports an error of kesto itself on standard error: "kesto: TEXT".
void reportError(const std::string& text);
