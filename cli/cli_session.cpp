// The open project, the settings file and the host of one kesto run.
#include "cli/cli_session.h"

#include <algorithm>
#include <cstdlib>
#include <iostream>

#include "foundation/file_mask.h"
#include "foundation/os.h"
#include "foundation/settings.h"
#include "topbar/top_bar_settings.h"

namespace {

// The *.kpj files of directory, sorted.
std::vector<std::string> projectFilesIn(const std::string& directory) {
  std::vector<DirectoryEntry> entries;
  std::vector<std::string> found;
  if (!os().listDirectory(directory, &entries, nullptr)) return found;
  for (const DirectoryEntry& entry : entries)
    if (!entry.attributes.isDirectory && matchesMask(entry.name, "*.kpj")) found.push_back(joinPath(directory, entry.name));
  std::sort(found.begin(), found.end());
  return found;
}

// The one *.kpj of the current directory, else of the nearest parent that has
// any, as version control tools find their trees; the search stops below
// $KESTO_CEILING_DIRECTORY when it is set. Empty when no directory up to the
// root has one; false with err when the nearest has several.
bool findProjectUpward(std::string* path, std::string* err) {
  path->clear();
  const char* ceilingValue = std::getenv("KESTO_CEILING_DIRECTORY");
  const std::string ceiling = ceilingValue ? ceilingValue : "";
  std::string directory = os().currentDirectory();
  while (!directory.empty() && directory != ceiling) {
    std::vector<std::string> found = projectFilesIn(directory);
    if (found.size() == 1) {
      *path = found[0];
      return true;
    }
    if (found.size() > 1) {
      *err = "several project files in " + directory + ":";
      for (const std::string& file : found) *err += " " + fileNameOf(file);
      *err += "; give --project FILE";
      return false;
    }
    const std::string parent = directoryOf(directory);
    if (parent == directory) break;
    directory = parent;
  }
  return true;
}

}  // namespace

std::string absolutePath(const std::string& path) {
  if (path.empty() || isAbsolutePath(path)) return path;
  return joinPath(os().currentDirectory(), path);
}

std::string settingsFilePath() {
  if (const char* explicitPath = std::getenv("KESTO_SETTINGS"); explicitPath && *explicitPath) return explicitPath;
  if (const char* config = std::getenv("XDG_CONFIG_HOME"); config && *config)
    return joinPath(joinPath(config, "kesto"), "settings.reg");
  const char* home = std::getenv("HOME");
  return joinPath(joinPath(joinPath(home ? home : ".", ".config"), "kesto"), "settings.reg");
}

void reportError(const std::string& text) { std::cerr << "kesto: " << text << '\n'; }

CliSession::CliSession() : settingsFile_(settingsFilePath()), projectSession_(projectSteps(), false) {
  // $KESTO_LOCK_WAIT: the seconds a run waits for another one that holds a file it changes.
  if (const char* wait = std::getenv("KESTO_LOCK_WAIT"); wait && *wait) {
    char* end = nullptr;
    long seconds = std::strtol(wait, &end, 10);
    if (*end == 0 && seconds >= 0 && seconds <= 86400) os().lockWaitMilliseconds = static_cast<int>(seconds * 1000);
  }
  settings().setBackend(&settingsFile_);
  setAlertHandler(&host_);
  if (!settingsFile_.check()) reportError(settingsFile_.error() + " (defaults are used; the file is left as it is)");
}

CliSession::~CliSession() {
  setAlertHandler(nullptr);
  settings().setBackend(nullptr);
}

ProjectSteps CliSession::projectSteps() {
  ProjectSteps steps;
  steps.loadTasks = [this](const std::string& taskFile, std::string* err) {
    if (tasksUse_ == ProjectTasks::Skipped) return true;
    tasks_.filePath = taskFile;
    // Held from the read to the save, so that a parallel run's change is kept.
    if (!(tasksLock_ = os().lock(taskFile, err))) {
      tasksLockRefused_ = true;
      return false;
    }
    return tasks_.load(err);
  };
  steps.takeOptions = [this](const ProjectOptions& options) { delivery_.load(options); };
  steps.takeRecipients = [this](const std::vector<std::string>& recipients) { mail_.setRecipients(recipients); };
  steps.giveOptions = [this](ProjectOptions* options) {
    options->mailRecipients = mail_.recipientTexts();
    storeDeliveryGroups(delivery_.groups, options);
  };
  return steps;
}

bool CliSession::openProject(ProjectUse use, ProjectTasks tasks) {
  if (opened_) return true;
  opened_ = true;
  mail_.loadSettings();
  tasks_.loadSettings();
  std::string path = projectOption;
  std::string err;
  if (path.empty() && !findProjectUpward(&path, &err)) {
    reportError(err);
    exitStatus = kExitUsage;
    return false;
  }
  if (path.empty()) return true;
  path = absolutePath(path);
  auto project = std::make_unique<KpjProject>();
  if (use == ProjectUse::Update && !(projectLock_ = os().lock(path, &err))) {
    reportError(err);
    exitStatus = kExitNothing;
    return false;
  }
  if (!project->load(path, &err)) {
    reportError(err);
    exitStatus = kExitNothing;
    return false;
  }
  project_ = std::move(project);
  host_.setProject(project_.get());
  tasksUse_ = tasks;
  std::string tasksErr;
  projectSession_.open(host_, TopBarSettings::read(true).construction, &tasksErr);
  if (!tasksErr.empty()) {
    reportError(tasksErr);
    // A file another run holds is worth a retry; a damaged one needs a repair.
    exitStatus = tasksLockRefused_ ? kExitNothing : kExitUsage;
    return false;
  }
  return true;
}

bool CliSession::saveProject(std::string* err) {
  if (!project_) return false;
  if (!projectSession_.save(host_)) {
    *err = "cannot write the options into " + project_->path();
    return false;
  }
  return project_->save(err);
}

bool CliSession::requireProject(ProjectUse use, ProjectTasks tasks) {
  if (!openProject(use, tasks)) return false;
  if (project_) return true;
  reportError("no project: give --project FILE or run in or below a directory with one *.kpj file");
  exitStatus = kExitUsage;
  return false;
}

std::string CliSession::projectDirectory() {
  if (!project_) return os().currentDirectory();
  std::string dir = directoryOf(project_->path());
  return dir.empty() ? os().currentDirectory() : dir;
}
