// The open project, for both hosts: what opening, saving and closing it does,
// in one order. The features that keep state of the open project take part
// through the steps they are given; a step not given is skipped.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "project/host.h"
#include "project/project_options.h"

struct ProjectSteps {
  // The task file beside the project; false with err when it is damaged (the
  // project opens without it, and nothing may be saved over it).
  std::function<bool(const std::string& taskFile, std::string* err)> loadTasks;
  // Each feature takes its options: delivery groups, server, Make switches.
  std::function<void(const ProjectOptions& options)> takeOptions;
  std::function<void(const std::vector<std::string>& recipients)> takeRecipients;
  // Whether today's flash report is due, from the marker beside the project.
  std::function<void(const std::string& flashMarker)> decideFlash;
  // Before a save, each feature gives back what it changed (recipients, groups).
  std::function<void(ProjectOptions* options)> giveOptions;
  // The project closed: each feature forgets it.
  std::function<void()> forget;
};

class ProjectSession {
 public:
  // changeDirectory: the project's directory becomes the current one, as the
  // IDE's searches expect; the command-line host keeps the user's.
  ProjectSession(ProjectSteps steps, bool changeDirectory);

  // Opens host's project: the tasks are loaded, the current directory changed,
  // the options read, the mail recipients handed over and the flash decided,
  // in that order. False when the host has no project open (nothing done). A
  // damaged task file goes to *tasksErr and the rest still opens.
  bool open(Host& host, int32_t hierarchicalDefault, std::string* tasksErr);
  bool isOpen() const { return !projectFile_.empty(); }
  // The options as read at opening and changed since; null when none is open
  // or the host could not reach them.
  ProjectOptions* options() { return options_.get(); }
  const std::string& projectFile() const { return projectFile_; }

  // Writes every option into the project, in the save order, after the
  // features gave theirs back. False when none is open or a write failed.
  bool save(Host& host);
  // Forgets the project; nothing when none is open.
  void close();

 private:
  ProjectSteps steps_;
  bool changeDirectory_;
  std::unique_ptr<ProjectOptions> options_;
  std::string projectFile_;
};
