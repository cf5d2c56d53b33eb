// The add-on's option pages: which presenter each page gets from the add-on's
// objects, and what the add-on does when a page is stored or asks for a dialog.
#include <windows.h>
#include <commdlg.h>

#include <new>

#include "completion/completion_page.h"
#include "delivery/deliv_tool_win32.h"
#include "delivery/delivery_directory_prompt_win32.h"
#include "delivery/delivery_page.h"
#include "delivery/delivery_run.h"
#include "delivery/mail_option_page.h"
#include "groupware/groupware_page.h"
#include "html/html_page.h"
#include "ide/addon_slots_win32.h"
#include "ide/general_behaviours_win32.h"
#include "project/general_page.h"
#include "ide/ide_host_win32.h"
#include "win32/ide_windows_win32.h"
#include "rcgen/make_sequence.h"
#include "ide/option_chapter_win32.h"
#include "ide/project_client_win32.h"
#include "navigation/editor_option_page.h"
#include "navigation/quickfind.h"
#include "navigation/source_scanner.h"
#include "rcgen/kesto_windows_page.h"
#include "tasks/task_page.h"
#include "topbar/top_bar_win32.h"

namespace {

// A presenter of type Page; callers check first that the objects it edits exist.
template <typename Page, typename... Args>
std::unique_ptr<OptionPage> makePage(Args&&... args) {
  return std::unique_ptr<OptionPage>(new (std::nothrow) Page(std::forward<Args>(args)...));
}

// The full path the user chose in a file-open dialog titled title; false when cancelled.
bool askFileToOpen(HWND owner, const char* title, std::string* path) {
  char file[MAX_PATH] = {};
  OPENFILENAMEA dialog = {};
  dialog.lStructSize = sizeof dialog;
  dialog.hwndOwner = owner;
  dialog.lpstrFilter = "Any file\0*.*\0";
  dialog.lpstrFile = file;
  dialog.nMaxFile = sizeof file;
  dialog.lpstrTitle = title;
  dialog.Flags = OFN_FILEMUSTEXIST | OFN_PATHMUSTEXIST | OFN_HIDEREADONLY;
  if (!GetOpenFileNameA(&dialog)) return false;
  *path = file;
  return true;
}

// The editors' frames are painted again, and with them the title-bar buttons.
void repaintEditorFrames() {
  for (HWND window = GetWindow(ideDocuments(), GW_CHILD); window; window = GetWindow(window, GW_HWNDNEXT))
    if (hasClass(window, "BCW5Editor"))
      SetWindowPos(window, nullptr, 0, 0, 0, 0,
                   SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

// The project's switches changed: the Make follows them, the bar's menus too.
void projectSwitchesStored(OptionPage&) {
  if (addon().makeSequence && openProjectOptions()) addon().makeSequence->setOptions(*openProjectOptions());
  if (addon().topBar) addon().topBar->rebuildMenu();
}

PageBehaviour firstPage() {
  return {[] {
            const char* system = addon().environment ? addon().environment->osDescription : "";
            return makePage<FirstOptionPage>(std::string(system));
          },
          nullptr, nullptr};
}

PageBehaviour generalPage() {
  return {[] { return addon().general ? makePage<GeneralPage>(addon().general->options) : nullptr; }, nullptr,
          nullptr};
}

PageBehaviour editorPage() {
  return {[] {
            if (!addon().navigation || !addon().quickFind) return std::unique_ptr<OptionPage>();
            return makePage<EditorOptionPage>(addon().navigation->settings(), addon().quickFind->settings());
          },
          [](OptionPage& page) {
            if (static_cast<EditorOptionPage&>(page).repaintNeeded()) repaintEditorFrames();
          },
          nullptr};
}

PageBehaviour topBarPage() {
  return {[] {
            if (!addon().topBar || !addon().recentFiles) return std::unique_ptr<OptionPage>();
            return makePage<TopBarPage>(addon().topBar->settings, *addon().recentFiles, openProjectOptions());
          },
          [](OptionPage& page) {
            saveProjectOptions();
            if (addon().topBar) addon().topBar->applyStoredPage(static_cast<TopBarPage&>(page).changes());
          },
          nullptr};
}

PageBehaviour completionPage() {
  return {[] { return addon().completion ? makePage<CompletionPage>(*addon().completion) : nullptr; }, nullptr,
          [](OptionPage& page, HWND window, int32_t id) {
            auto& completion = static_cast<CompletionPage&>(page);
            std::string path;
            if (id == CompletionPage::kAddButton) {
              if (askFileToOpen(window, "Open a keyword file...", &path)) completion.addFile(path);
              return true;
            }
            if (id == CompletionPage::kExtractButton) {
              if (askFileToOpen(window, "Open a source file...", &path)) completion.extractFrom(path);
              return true;
            }
            return false;
          }};
}

PageBehaviour deliveryPage() {
  return {[] {
            if (!addon().delivery) return std::unique_ptr<OptionPage>();
            ProjectOptions* project = openProjectOptions();
            return makePage<DeliveryPage>(addon().delivery->groups, project, project ? ideHost().projectRoot() : nullptr);
          },
          [](OptionPage& page) {
            saveProjectOptions();
            if (!addon().delivTool || !openProjectOptions()) return;
            if (static_cast<DeliveryPage&>(page).toolEnabled()) addon().delivTool->registerTool();
            else addon().delivTool->unregisterTool();
          },
          [](OptionPage& page, HWND window, int32_t id) {
            auto& delivery = static_cast<DeliveryPage&>(page);
            std::string directory;
            bool active = true;
            if (id != DeliveryPage::kGroupList || !delivery.selectedGroup(&directory, &active)) return false;
            if (promptDeliveryDirectory(addon().environment->instance, window, &directory, &active))
              delivery.setSelectedGroup(directory, active);
            return true;
          }};
}

PageBehaviour mailPage() {
  return {[] {
            if (!addon().mail) return std::unique_ptr<OptionPage>();
            return makePage<MailOptionPage>(*addon().mail, [] { return openProjectOptions() != nullptr; });
          },
          [](OptionPage&) { saveProjectOptions(); }, nullptr};
}

PageBehaviour taskPage() {
  return {[] { return addon().tasks ? makePage<TaskPage>(*addon().tasks) : nullptr; }, nullptr, nullptr};
}

PageBehaviour groupwarePage() {
  return {[] {
            return addon().groupware ? makePage<GroupwarePage>(*addon().groupware, openProjectOptions()) : nullptr;
          },
          [](OptionPage&) {
            if (addon().topBar) addon().topBar->rebuildMenu();
          },
          nullptr};
}

PageBehaviour htmlPage() {
  return {[] { return makePage<HtmlPage>(openProjectOptions()); }, projectSwitchesStored, nullptr};
}

PageBehaviour kestoWindowsPage() {
  return {[] { return makePage<KestoWindowsPage>(openProjectOptions()); }, projectSwitchesStored, nullptr};
}

}  // namespace

std::vector<PageBehaviour> addonPageBehaviours() {
  return {firstPage(),   generalPage(), editorPage(),     topBarPage(), completionPage(),  deliveryPage(),
          mailPage(),    taskPage(),    groupwarePage(), htmlPage(),   kestoWindowsPage()};
}
