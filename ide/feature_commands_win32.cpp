// The features' bar commands, each on the add-on's objects and the IDE's windows.
#include "ide/feature_commands_win32.h"

#include <shellapi.h>

#include "completion/completion_command.h"
#include "completion/completion_engine.h"
#include "foundation/os.h"
#include "groupware/groupware_settings.h"
#include "groupware/gw_dialogs_win32.h"
#include "groupware/gw_list_presenter.h"
#include "groupware/gw_reports.h"
#include "html/ht_generation.h"
#include "html/ht_thread_win32.h"
#include "ide/addon_slots_win32.h"
#include "project/editor_title.h"
#include "ide/ide_host_win32.h"
#include "ide/ide_services_win32.h"
#include "win32/ide_windows_win32.h"
#include "ide/project_client_win32.h"
#include "tasks/flash.h"
#include "tasks/flash_window_win32.h"
#include "project/project_files.h"
#include "tasks/task_list_dialog_win32.h"
#include "topbar/bar_commands.h"

namespace {

// The last send or get; kept for the menu's report and mail until another replaces it.
GwActionReport gLastGroupwareAction;

HINSTANCE instance() { return addon().environment ? addon().environment->instance : nullptr; }

// The groupware settings, whose server directory the project client and the
// options page keep in step with the open project; null without a project.
const GroupwareSettings* groupwareOfProject() {
  if (!addon().groupware || !addon().mail || !openProjectOptions()) return nullptr;
  return addon().groupware.get();
}

}  // namespace

void taskCommand(UINT id) {
  TaskList* tasks = addon().tasks.get();
  const std::string projectFile = ideHost().projectFile();
  if (!tasks || projectFile.empty()) return;
  if (id == kTaskListCommand) {
    if (addon().mail) openTaskListDialog(instance(), ideFrame(), *tasks, *addon().mail, ideHost());
    return;
  }
  const std::string text = id == kAutomaticFlashCommand ? automaticFlashText(*tasks) : flashOnDemandText(*tasks);
  if (!text.empty()) showFlashWindow(instance(), ideFrame(), flashMarkerPath(projectFile), text);
}

void groupwareGetCommand() {
  if (const GroupwareSettings* settings = groupwareOfProject())
    runGroupwareGetDialog(instance(), ideFrame(), ideHost(), *addon().mail, *settings, &gLastGroupwareAction);
}

void groupwareSendCommand() {
  if (const GroupwareSettings* settings = groupwareOfProject())
    runGroupwareSendDialog(instance(), ideFrame(), ideHost(), *addon().mail, *settings, &gLastGroupwareAction);
}

void groupwareReportCommand() {
  if (groupwareOfProject()) showGroupwareReport(ideHost(), gLastGroupwareAction);
}

void groupwareServerReportCommand() {
  const GroupwareSettings* settings = groupwareOfProject();
  GwRoots roots;
  if (settings && groupwareRoots(ideHost(), *settings, &roots)) showServerLocks(ideHost(), roots, settings->filters.str());
}

void groupwareMailCommand() {
  if (groupwareOfProject()) mailGroupwareReportAgain(ideHost(), *addon().mail, gLastGroupwareAction);
}

void generateHtmlCommand() {
  const ProjectOptions* options = openProjectOptions();
  const std::string projectFile = ideHost().projectFile();
  if (!options || projectFile.empty()) return;
  startHtmlGenerationThread(directoryOf(projectFile), options->htmlFilters, htProjectName(projectFile), addon().bar);
}

void openHtmlCommand() {
  const std::string projectFile = ideHost().projectFile();
  if (projectFile.empty()) return;
  const std::string directory = directoryOf(projectFile);
  const std::string site = htSiteDirectory(directory);
  const std::string frameset = htFramesetPath(directory, htProjectName(projectFile));
  HINSTANCE result = ShellExecuteA(GetActiveWindow(), "open", frameset.c_str(), nullptr, site.c_str(), SW_SHOWMAXIMIZED);
  if (reinterpret_cast<INT_PTR>(result) <= 32)
    ideHost().showStatus("ShellExecuteA " + frameset + ": error " + std::to_string(reinterpret_cast<INT_PTR>(result)));
}

void completionKeyCommand() {
  HWND editor = activeEditor();
  if (!addon().completion || !editor) return;
  char title[kEditorFileNameLimit + 1] = {};
  GetWindowTextA(editor, title, sizeof title);
  EditorSession session(editorFileName(title));
  if (!session.open()) return;
  long column = 0;
  long line = 0;
  session.cursor(&column, &line);
  const CaretCompletion outcome = completeAtCaret(*addon().completion, session.line(line), static_cast<int32_t>(column));
  if (!outcome.insertText.empty()) session.insert(outcome.insertText, true);
  if (!outcome.statusText.empty()) showStatusText(outcome.statusText.c_str());
}
