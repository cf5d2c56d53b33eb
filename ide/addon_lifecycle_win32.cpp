// The add-on's start and shutdown. Each path is one table of steps, run in
// order; a step whose feature has not been built yet keeps its place with no
// action, so that the feature slots in where it belongs.
#include "ide/addon_lifecycle_win32.h"

#include <new>

#include "completion/completion_engine.h"
#include "delivery/deliv_tool_win32.h"
#include "delivery/delivery_dialog_win32.h"
#include "delivery/delivery_run.h"
#include "delivery/mail.h"
#include "foundation/alert.h"
#include "foundation/settings.h"
#include "foundation/settings_registry_win32.h"
#include "groupware/groupware_settings.h"
#include "groupware/quick_add_dialog_win32.h"
#include "html/ht_thread_win32.h"
#include "ide/addon_hook_client_win32.h"
#include "ide/addon_slots_win32.h"
#include "ide/bar_window_win32.h"
#include "ide/general_behaviours_win32.h"
#include "ide/help_file_win32.h"
#include "ide/hook_set_win32.h"
#include "ide/ide_host_win32.h"
#include "ide/open_file_win32.h"
#include "rcgen/make_sequence.h"
#include "ide/option_chapter_win32.h"
#include "ide/project_client_win32.h"
#include "navigation/quickfind.h"
#include "navigation/source_scanner.h"
#include "tasks/flash_window_win32.h"
#include "tasks/task_list.h"
#include "tasks/task_list_dialog_win32.h"
#include "topbar/recent_files.h"
#include "topbar/top_bar_win32.h"
#include "win32/active_dialog_win32.h"
#include "win32/ide_windows_win32.h"

namespace {

struct Step {
  const char* what;
  void (*run)(IIdeRoot* ide);  // null: the feature is still to come
};

class MessageBoxAlerts : public AlertHandler {
 public:
  int show(const std::string& text, const std::string& caption, unsigned style) override {
    return MessageBoxA(activeDialog(addon().bar), text.c_str(), caption.c_str(), style);
  }
};

MessageBoxAlerts gMessageBoxAlerts;
SettingsRegistry gRegistry;
bool gOleStarted = false;
bool gBarClassRegistered = false;
HMENU gStartupMenu = nullptr;  // from its creation until the bar takes it

template <typename Slot>
void destroy(Slot& slot) {
  slot.reset();
}

// Feature objects read their settings when they are made and write them back
// when they are deleted.
template <typename T>
void create(std::unique_ptr<T>& slot, void (T::*readSettings)()) {
  slot.reset(new (std::nothrow) T());
  if (slot && readSettings) (slot.get()->*readSettings)();
}

template <typename T, typename Result>
void saveAndDestroy(std::unique_ptr<T>& slot, Result (T::*writeSettings)() const) {
  if (slot) (slot.get()->*writeSettings)();
  destroy(slot);
}

template <typename T>
void saveAndDestroy(std::unique_ptr<T>& slot, void (T::*writeSettings)()) {
  if (slot) (slot.get()->*writeSettings)();
  destroy(slot);
}

void createCompletion(IIdeRoot*) {
  create(addon().completion, &CompletionEngine::readSettings);
  // A keyword file that cannot be read is skipped without a word, as the add-on always did.
  std::string skipped;
  if (addon().completion) addon().completion->load(&skipped);
}

void registerBar(IIdeRoot*) { gBarClassRegistered = registerBarClass(addon().environment->instance); }

void createMenu(IIdeRoot*) { gStartupMenu = createStartupMenu(); }

void createBar(IIdeRoot*) {
  // A class of that name that is not ours must not get our bar.
  if (gBarClassRegistered)
    addon().bar = createBarWindow(addon().environment->instance, addon().environment->newShell != 0, gStartupMenu);
  if (!addon().bar && gStartupMenu) DestroyMenu(gStartupMenu);
  gStartupMenu = nullptr;
}

void destroyBar(IIdeRoot*) {
  if (addon().bar) DestroyWindow(addon().bar);
  addon().bar = nullptr;
  // A DLL's classes outlive it otherwise, with a window procedure that may be gone.
  if (gBarClassRegistered) unregisterBarClass(addon().environment->instance);
  gBarClassRegistered = false;
}

void createHelpFile(IIdeRoot*) {
  addon().helpFile.reset(new (std::nothrow) HelpFile(addon().environment->instance, addon().bar));
}

void createEditorHolder(IIdeRoot*) {
  addon().editor.reset(new (std::nothrow) ServiceHolder<IIdeEditor>(ide_iid::kEditor));
}

void createStatusLineHolder(IIdeRoot*) {
  addon().statusLine.reset(new (std::nothrow) ServiceHolder<IIdeStatusLine>(ide_iid::kStatusLine));
}

void createToolTable(IIdeRoot*) {
  addon().tools.reset(new (std::nothrow) Tableau<Tool>());
  if (addon().tools) fillToolTable(addon().tools.get());
}

void showBar(IIdeRoot*) {
  if (addon().topBar) ShowWindow(addon().bar, addon().topBar->settings.enabled ? SW_SHOW : SW_HIDE);
}

void createOptionsHolder(IIdeRoot*) {
  addon().options.reset(new (std::nothrow) ServiceHolder<IIdeNodeOptions>(ide_iid::kNodeOptions));
  if (addon().options && !addon().options->get())
    alert("Assertion failed: svr!=NULL, file koptions, line 13", "Erreur", kAlertIconHand);
  // The chapter goes into the IDE's options dialog with the holder's service.
  if (!addon().options || !addon().options->get()) return;
  addon().chapter.reset(new (std::nothrow) IMpdChapterAddon(addon().environment->instance));
  if (addon().chapter) addon().options->get()->AddChapter(addon().chapter.get());
}

void releaseChapter(IIdeRoot*) {
  addon().chapter.reset();
}

// The delivery tool's run: the open project with the confirmation dialog, and
// the task notes when the tasks' key is the delivery.
void runDelivery() {
  if (!addon().delivery || !addon().mail) return;
  const bool includeTaskNotes = addon().tasks && addon().tasks->mainOn && addon().tasks->keyIsDelivery;
  HINSTANCE instance = addon().environment ? addon().environment->instance : nullptr;
  addon().delivery->run(ideHost(), *addon().mail, includeTaskNotes, [instance](DeliveryConfirmation& confirmation) {
    return showDeliveryConfirmation(instance, GetActiveWindow(), confirmation);
  });
}

// The bar reaches the IDE and the other features only through these links.
TopBarLinks topBarLinks() {
  TopBarLinks links;
  links.host = &ideHost();
  links.tools = [] { return static_cast<const Tableau<Tool>*>(addon().tools.get()); };
  links.recentFiles = [] { return static_cast<const RecentFiles*>(addon().recentFiles.get()); };
  links.projectOptions = [] { return static_cast<const ProjectOptions*>(openProjectOptions()); };
  // As stored: the bar may be rebuilt before the groupware object is made.
  links.groupwareActive = [] {
    GroupwareSettings groupware;
    groupware.load();
    return groupware.enabled != 0;
  };
  links.openAndRecord = [](const std::string& path) { return openAndRecord(path); };
  links.activateFrame = activateIdeFrame;
  links.removeProjectNode = removeIdeProjectNode;
  links.quickAdd = [](const ProjectNode& root, const ProjectNode& node) {
    HINSTANCE instance = addon().environment ? addon().environment->instance : nullptr;
    return runQuickAddDialog(instance, ideFrame(), ideHost(), root, node);
  };
  return links;
}

void createTopBar(IIdeRoot*) {
  if (addon().bar)
    addon().topBar.reset(new (std::nothrow) TopBar(addon().bar, addon().environment->newShell != 0, topBarLinks()));
}

const Step kInitialisation[] = {
    {"store the IDE pointer", [](IIdeRoot* ide) { storeIdePointer(ide); }},
    {"probe the environment", [](IIdeRoot*) { probeEnvironment(addon().environment.get()); }},
    {"register the bar's window class", registerBar},
    {"create the start-up menu", createMenu},
    {"create the bar window", createBar},
    {"create QuickFind, given the bar", [](IIdeRoot*) { create<QuickFind>(addon().quickFind, nullptr); }},
    {"create the help file, given the bar", createHelpFile},
    {"create the editor navigation, given the bar and the new-shell flag",
     [](IIdeRoot*) { create<SourceScanner>(addon().navigation, nullptr); }},
    {"create the top bar settings, given the new-shell flag and the bar", createTopBar},
    {"create the completion engine", createCompletion},
    {"create the general behaviours",
     [](IIdeRoot*) {
       create<GeneralBehaviours>(addon().general, nullptr);
       create<MakeSequence>(addon().makeSequence, nullptr);
       if (addon().bar) SetTimer(addon().bar, kBarTimer, 1000, nullptr);
     }},
    {"create the delivery object", [](IIdeRoot*) { create<Delivery>(addon().delivery, nullptr); }},
    {"hold the editor service", createEditorHolder},
    {"hold the status line service", createStatusLineHolder},
    {"fill the tool table", createToolTable},
    {"show or hide the bar", showBar},
    {"install the hooks, given the bar",
     [](IIdeRoot*) {
       if (addon().bar) addon().hooks.reset(new (std::nothrow) HookSet(addon().bar, addonHookClient()));
     }},
    {"create and register the project clients",
     [](IIdeRoot*) {
       create<ProjectTestA>(addon().projectClients, nullptr);
       if (addon().projectClients) addon().projectClients->registerClients();
     }},
    {"create the delivery tool", [](IIdeRoot*) { addon().delivTool.reset(new (std::nothrow) DelivTool(runDelivery)); }},
    {"load the recent-file lists", [](IIdeRoot*) { create(addon().recentFiles, &RecentFiles::load); }},
    {"hold the options service", createOptionsHolder},
    {"create the mail options", [](IIdeRoot*) { create(addon().mail, &Mail::loadSettings); }},
    {"create the task manager", [](IIdeRoot*) { create<TaskList>(addon().tasks, nullptr); }},
    {"create the groupware settings", [](IIdeRoot*) { create(addon().groupware, &GroupwareSettings::load); }},
    {"create the HTML settings", nullptr},
    {"create the groupware project object, given the project service", nullptr},
    // The start-up menu stays until the IDE's message loop runs the first rebuild.
    {"ask the bar to build its menus",
     [](IIdeRoot*) {
       if (addon().bar) PostMessageA(addon().bar, WM_COMMAND, static_cast<WPARAM>(kRebuildMenuCommand), 0);
     }},
};

const Step kShutdown[] = {
    {"save the recent-file lists", [](IIdeRoot*) { saveAndDestroy(addon().recentFiles, &RecentFiles::save); }},
    {"delete the mail options", [](IIdeRoot*) { saveAndDestroy(addon().mail, &Mail::saveSettings); }},
    {"delete QuickFind", [](IIdeRoot*) { saveAndDestroy(addon().quickFind, &QuickFind::writeSettings); }},
    {"delete the delivery object", [](IIdeRoot*) { destroy(addon().delivery); }},
    {"delete the hooks", [](IIdeRoot*) { destroy(addon().hooks); }},
    {"delete the help file", [](IIdeRoot*) { destroy(addon().helpFile); }},
    {"delete the editor navigation",
     [](IIdeRoot*) { saveAndDestroy(addon().navigation, &SourceScanner::writeSettings); }},
    {"delete the top bar settings", [](IIdeRoot*) { destroy(addon().topBar); }},
    {"delete the completion engine",
     [](IIdeRoot*) { saveAndDestroy(addon().completion, &CompletionEngine::writeSettings); }},
    {"release the editor service", [](IIdeRoot*) { destroy(addon().editor); }},
    {"delete the general behaviours",
     [](IIdeRoot*) {
       if (addon().bar) KillTimer(addon().bar, kBarTimer);
       destroy(addon().makeSequence);
       destroy(addon().general);
     }},
    {"release the status line service", [](IIdeRoot*) { destroy(addon().statusLine); }},
    {"delete the tool table", [](IIdeRoot*) { destroy(addon().tools); }},
    {"close the task windows, save the tasks and delete the task manager",
     [](IIdeRoot*) {
       // Their window procedures leave with the DLL.
       if (HWND dialog = taskListDialog()) DestroyWindow(dialog);
       if (HWND flash = flashWindow()) DestroyWindow(flash);
       saveAndDestroy(addon().tasks, &TaskList::saveSettings);
     }},
    {"delete the groupware settings",
     [](IIdeRoot*) { saveAndDestroy(addon().groupware, &GroupwareSettings::save); }},
    {"delete the HTML settings", nullptr},
    {"wait for a running documentation generation", [](IIdeRoot*) { waitForHtmlGeneration(); }},
    {"delete the groupware project object", nullptr},
    {"destroy the bar window", destroyBar},
    {"unregister the project clients",
     [](IIdeRoot*) {
       if (addon().projectClients) addon().projectClients->unregisterClients();
     }},
    {"take the delivery tool out and release it",
     [](IIdeRoot*) {
       if (!addon().delivTool) return;
       addon().delivTool->unregisterTool();
       addon().delivTool.reset();
     }},
    {"release the chapter", releaseChapter},
    {"release the options service", [](IIdeRoot*) { destroy(addon().options); }},
    {"delete the project clients", [](IIdeRoot*) { destroy(addon().projectClients); }},
    {"release the IDE pointer", [](IIdeRoot*) { releaseIdePointer(); }},
};

template <size_t n>
void run(const Step (&steps)[n], IIdeRoot* ide) {
  for (const Step& step : steps)
    if (step.run) step.run(ide);
}

}  // namespace

bool attachAddon(HINSTANCE instance) {
  addon().environment.reset(new (std::nothrow) AddonEnvironment());
  if (!addon().environment) return false;
  settings().setRoot(SettingsStore::kAddOnRoot);
  settings().setBackend(&gRegistry);
  setAlertHandler(&gMessageBoxAlerts);
  addon().environment->instance = instance;
  probeEnvironment(addon().environment.get());
  if (FAILED(OleInitialize(nullptr))) return false;
  gOleStarted = true;
  return true;
}

void detachAddon() {
  // Unloaded without a shutdown, the add-on must not leave hooks into its unloaded code.
  destroy(addon().hooks);
  destroy(addon().environment);
  setAlertHandler(nullptr);
  settings().setBackend(nullptr);
  if (gOleStarted) OleUninitialize();
  gOleStarted = false;
}

void initialiseAddon(IIdeRoot* ide) { run(kInitialisation, ide); }

void shutDownAddon() { run(kShutdown, nullptr); }
