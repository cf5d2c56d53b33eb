// Opening, saving and closing a project in the order the add-on has always kept.
#include "project/project_session.h"

#include "foundation/os.h"
#include "project/project_files.h"

ProjectSession::ProjectSession(ProjectSteps steps, bool changeDirectory)
    : steps_(std::move(steps)), changeDirectory_(changeDirectory) {}

bool ProjectSession::open(Host& host, int32_t hierarchicalDefault, std::string* tasksErr) {
  close();
  const std::string projectFile = host.projectFile();
  if (projectFile.empty()) return false;
  projectFile_ = projectFile;
  if (steps_.loadTasks) steps_.loadTasks(taskFilePath(projectFile), tasksErr);
  if (changeDirectory_) {
    const std::string directory = directoryOf(projectFile);
    os().setCurrentDirectory(directory.empty() ? os().currentDirectory() : directory, nullptr);
  }
  // A project whose options cannot be reached opens without them.
  if (ProjectOptionStore* store = host.projectOptions()) {
    options_ = std::make_unique<ProjectOptions>(readProjectOptions(*store, hierarchicalDefault));
    if (steps_.takeOptions) steps_.takeOptions(*options_);
    if (steps_.takeRecipients) steps_.takeRecipients(options_->mailRecipients);
  }
  if (steps_.decideFlash) steps_.decideFlash(flashMarkerPath(projectFile));
  return true;
}

bool ProjectSession::save(Host& host) {
  ProjectOptionStore* store = host.projectOptions();
  if (!options_ || !store) return false;
  if (steps_.giveOptions) steps_.giveOptions(options_.get());
  return writeProjectOptions(*store, *options_);
}

void ProjectSession::close() {
  if (projectFile_.empty()) return;
  if (steps_.forget) steps_.forget();
  options_.reset();
  projectFile_.clear();
}
