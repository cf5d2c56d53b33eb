// Opening, closing and saving a project: the per-project options, the task
// file, the mail recipients and the make client follow the open project.
#include "ide/project_client_win32.h"

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
#include "topbar/top_bar_settings.h"
#include "topbar/top_bar_win32.h"
#include "tasks/flash.h"
#include "project/project_session.h"
#include "tasks/task_list.h"
#include "tasks/task_list_dialog_win32.h"

namespace {

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

// What each feature of the add-on does as the project opens, is saved and closes.
ProjectSteps addonProjectSteps() {
  ProjectSteps steps;
  steps.loadTasks = [](const std::string& taskFile, std::string* err) {
    if (!addon().tasks) return true;
    addon().tasks->filePath = taskFile;
    return addon().tasks->load(err);
  };
  steps.takeOptions = [](const ProjectOptions& options) {
    if (addon().makeSequence) addon().makeSequence->setOptions(options);
    if (options.withDelivery && addon().delivTool) addon().delivTool->registerTool();
    if (addon().delivery) addon().delivery->load(options);
    if (addon().groupware) addon().groupware->server = options.groupwareServer;
  };
  steps.takeRecipients = [](const std::vector<std::string>& recipients) {
    if (addon().mail) addon().mail->setRecipients(recipients);
  };
  steps.decideFlash = [](const std::string& flashMarker) {
    // The report is built once the project has finished opening.
    if (addon().tasks && addon().bar && shouldFlashAtProjectOpen(*addon().tasks, flashMarker))
      PostMessageA(addon().bar, WM_COMMAND, kAutomaticFlashCommand, 0);
  };
  steps.giveOptions = [](ProjectOptions* options) {
    if (addon().mail) options->mailRecipients = addon().mail->recipientTexts();
    if (addon().delivery) storeDeliveryGroups(addon().delivery->groups, options);
  };
  steps.forget = [] {
    if (addon().delivery) addon().delivery->groups.clear();
    if (addon().mail) addon().mail->setRecipients({});
    if (addon().groupware) addon().groupware->server = "";
  };
  return steps;
}

ProjectSession& projectSession() {
  static ProjectSession session(addonProjectSteps(), true);
  return session;
}

}  // namespace

ProjectOptions* openProjectOptions() { return projectSession().options(); }

void saveProjectOptions() { projectSession().save(ideHost()); }

void __stdcall ProjectClientImpl::ProjectOpened(IIdeString*) {
  emptyTasks();
  // The IDE may tell of a project that it did not load.
  if (ideHost().projectFile().empty()) return;
  const std::string projectFile = ideHost().projectFile();
  if (addon().topBar) addon().topBar->collapse();
  // The open project is never offered as a recent one.
  if (addon().recentFiles) addon().recentFiles->forgetProject(projectFile);
  std::string tasksErr;
  const bool newShell = addon().environment && addon().environment->newShell != 0;
  projectSession().open(ideHost(), TopBarSettings::read(newShell).construction, &tasksErr);
  if (!tasksErr.empty()) alert(tasksErr, "Kesto AddOn error", kAlertIconExclamation);
  if (addon().general) addon().general->projectOpened();
  registerMakeClient([] { return new (std::nothrow) MakeClient(makeStarted, makeEnded); });
  if (addon().topBar) addon().topBar->rebuildMenu();
}

void __stdcall ProjectClientImpl::ProjectClosed() {
  if (addon().topBar) addon().topBar->collapse();
  // The dialog saves its changes into the closing project's task file.
  if (HWND dialog = taskListDialog()) DestroyWindow(dialog);
  if (!projectSession().options()) return;
  unregisterMakeClient();
  if (addon().delivTool) addon().delivTool->unregisterTool();
  if (addon().recentFiles) addon().recentFiles->rememberProject(projectSession().projectFile());
  projectSession().close();
  if (addon().topBar) addon().topBar->rebuildMenu();
}

// A renamed node shows under its new name: the menus are built again from the tree.
void __stdcall ProjectClientImpl::NodeChanged(IdeHandle) {
  if (projectSession().options() && addon().topBar) addon().topBar->rebuildMenu();
}

void __stdcall ProjectClient2Impl::ProjectSaving() { saveProjectOptions(); }

ProjectTestA::~ProjectTestA() { unregisterClients(); }

void ProjectTestA::registerClients() {
  project_.reset(getService<IIdeProject>(ide_iid::kProject));
  projectSave_.reset(getService<IIdeProjectSave>(ide_iid::kProjectSave));
  // Each service takes a reference of its own.
  if (project_ && (client_.reset(new (std::nothrow) ProjectClientImpl()), client_)) {
    client_->AddRef();
    project_->AddClient(client_.get());
  }
  if (projectSave_ && (saveClient_.reset(new (std::nothrow) ProjectClient2Impl()), saveClient_)) {
    saveClient_->AddRef();
    projectSave_->AddClient(saveClient_.get());
  }
}

void ProjectTestA::unregisterClients() {
  // Each service drops the reference it was given; ours goes last.
  if (client_ && project_) project_->RemoveClient(client_.get());
  if (saveClient_ && projectSave_) projectSave_->RemoveClient(saveClient_.get());
  client_.reset();
  saveClient_.reset();
  project_.reset();
  projectSave_.reset();
  projectSession().close();
}
