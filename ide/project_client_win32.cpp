// Opening, closing and saving a project: the per-project options, the task
// file, the mail recipients and the make client follow the open project.
#include "ide/project_client_win32.h"

#include <memory>
#include <new>

#include "delivery/deliv_tool_win32.h"
#include "delivery/delivery_run.h"
#include "delivery/mail.h"
#include "foundation/alert.h"
#include "foundation/os.h"
#include "foundation/settings.h"
#include "groupware/groupware_settings.h"
#include "html/ht_generation.h"
#include "html/ht_thread_win32.h"
#include "ide/addon_slots_win32.h"
#include "win32/ide_access_win32.h"
#include "ide/ide_host_win32.h"
#include "ide/general_behaviours_win32.h"
#include "ide/make_client_win32.h"
#include "rcgen/make_sequence.h"
#include "topbar/recent_files.h"
#include "topbar/top_bar_win32.h"
#include "tasks/flash.h"
#include "project/project_files.h"
#include "tasks/task_list.h"
#include "tasks/task_list_dialog_win32.h"

namespace {

std::unique_ptr<ProjectOptions> gOpenProject;
std::string gProjectFile;  // the open project's, for the recent list when it closes

void readOpenProject(const std::string& projectFile);

void emptyTasks() {
  if (!addon().tasks) return;
  addon().tasks->view.removeRange(0, 0);
  addon().tasks->removeRange(0, 0);
}

void makeStarted() {
  if (addon().general) addon().general->makeStarted();
  if (addon().makeSequence) addon().makeSequence->started(ideHost());
}

void makeEnded(bool succeeded) {
  if (addon().general) addon().general->makeEnded();
  if (!addon().makeSequence) return;
  const std::string projectFile = ideHost().projectFile();
  addon().makeSequence->ended(ideHost(), succeeded, [&projectFile](const std::string& directory, const std::string& filters) {
    startHtmlGenerationThread(directory, filters, htProjectName(projectFile), addon().bar);
  });
}

}  // namespace

ProjectOptions* openProjectOptions() { return gOpenProject.get(); }

void saveProjectOptions() {
  ProjectOptionStore* store = ideHost().projectOptions();
  if (!gOpenProject || !store) return;
  if (addon().mail) gOpenProject->mailRecipients = addon().mail->recipientTexts();
  if (addon().delivery) storeDeliveryGroups(addon().delivery->groups, gOpenProject.get());
  writeProjectOptions(*store, *gOpenProject);
}

void __stdcall ProjectClientImpl::ProjectOpened(IIdeString*) {
  emptyTasks();
  const std::string projectFile = ideHost().projectFile();
  // The IDE may tell of a project that it did not load.
  if (projectFile.empty()) return;
  gProjectFile = projectFile;
  if (addon().topBar) addon().topBar->collapse();
  // The open project is never offered as a recent one.
  if (addon().recentFiles) addon().recentFiles->forgetProject(projectFile);
  readOpenProject(projectFile);
  if (addon().topBar) addon().topBar->rebuildMenu();
}

void __stdcall ProjectClientImpl::ProjectClosed() {
  if (addon().topBar) addon().topBar->collapse();
  // The dialog saves its changes into the closing project's task file.
  if (HWND dialog = taskListDialog()) DestroyWindow(dialog);
  if (!gOpenProject) return;
  unregisterMakeClient();
  if (addon().delivTool) addon().delivTool->unregisterTool();
  if (addon().delivery) addon().delivery->groups.clear();
  if (addon().mail) addon().mail->setRecipients({});
  if (addon().groupware) addon().groupware->server = "";
  if (addon().recentFiles) addon().recentFiles->rememberProject(gProjectFile);
  gOpenProject.reset();
  if (addon().topBar) addon().topBar->rebuildMenu();
}

namespace {

void readOpenProject(const std::string& projectFile) {
  if (addon().tasks) {
    addon().tasks->filePath = projectFile + ".tsk";
    std::string err;
    if (!addon().tasks->load(&err)) alert(err, "Kesto AddOn error", kAlertIconExclamation);
    // The report is built once the project has finished opening.
    if (addon().bar && shouldFlashAtProjectOpen(*addon().tasks, flashMarkerPath(projectFile)))
      PostMessageA(addon().bar, WM_COMMAND, kAutomaticFlashCommand, 0);
  }
  std::string directory = directoryOf(projectFile);
  os().setCurrentDirectory(directory.empty() ? os().currentDirectory() : directory, nullptr);
  if (addon().general) addon().general->projectOpened();
  registerMakeClient([] { return new (std::nothrow) MakeClient(makeStarted, makeEnded); });
  ProjectOptionStore* store = ideHost().projectOptions();
  if (!store) return;
  gOpenProject = std::make_unique<ProjectOptions>(
      readProjectOptions(*store, settings().readInteger("TopBar", "Hierarchical", 0)));
  if (addon().makeSequence) addon().makeSequence->setOptions(*gOpenProject);
  if (gOpenProject->withDelivery && addon().delivTool) addon().delivTool->registerTool();
  if (addon().delivery) addon().delivery->load(*gOpenProject);
  if (addon().groupware) addon().groupware->server = gOpenProject->groupwareServer;
  if (addon().mail) addon().mail->setRecipients(gOpenProject->mailRecipients);
}

}  // namespace

// A renamed node shows under its new name: the menus are built again from the tree.
void __stdcall ProjectClientImpl::NodeChanged(IdeHandle) {
  if (gOpenProject && addon().topBar) addon().topBar->rebuildMenu();
}

void __stdcall ProjectClient2Impl::ProjectSaving() { saveProjectOptions(); }

ProjectTestA::~ProjectTestA() { unregisterClients(); }

void ProjectTestA::registerClients() {
  project_ = getService<IIdeProject>(ide_iid::kProject);
  projectSave_ = getService<IIdeProjectSave>(ide_iid::kProjectSave);
  if (project_ && (client_ = new (std::nothrow) ProjectClientImpl())) {
    client_->AddRef();
    project_->AddClient(client_);
  }
  if (projectSave_ && (saveClient_ = new (std::nothrow) ProjectClient2Impl())) {
    saveClient_->AddRef();
    projectSave_->AddClient(saveClient_);
  }
}

void ProjectTestA::unregisterClients() {
  // Each service drops the reference it was given; ours goes last.
  if (client_) {
    if (project_) project_->RemoveClient(client_);
    client_->Release();
    client_ = nullptr;
  }
  if (saveClient_) {
    if (projectSave_) projectSave_->RemoveClient(saveClient_);
    saveClient_->Release();
    saveClient_ = nullptr;
  }
  if (project_) project_->Release();
  if (projectSave_) projectSave_->Release();
  project_ = nullptr;
  projectSave_ = nullptr;
  gOpenProject.reset();
}
