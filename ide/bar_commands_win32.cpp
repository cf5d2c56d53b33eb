// The bar's commands handed to their owners, by the portable command table.
#include "ide/bar_commands_win32.h"

#include "html/ht_thread_win32.h"
#include "ide/addon_slots_win32.h"
#include "ide/feature_commands_win32.h"
#include "ide/general_behaviours_win32.h"
#include "ide/project_client_win32.h"
#include "ide/help_file_win32.h"
#include "ide/hook_set_win32.h"
#include "ide/ide_host_win32.h"
#include "ide/open_file_win32.h"
#include "topbar/top_bar_win32.h"

#include "ide/navigation_commands_win32.h"
#include "navigation/navigation_menus.h"
#include "topbar/bar_commands.h"

namespace {

bool titleBarPopupOpen() { return addon().hooks && addon().hooks->target().popupOpen; }

// Whether the last menu opened on the bar was a title-bar popup: its command
// arrives after the popup closed, and 177 is "Edit Documentation" there but the
// groupware "Report..." in the bar's own menu.
bool gLastMenuWasTitleBarPopup = false;

}  // namespace

bool dispatchBarCommand(HWND bar, UINT id, LPARAM lParam) {
  uint32_t index = 0;
  const BarCommand command = barCommandFor(id, &index);
  // Painting the buttons comes from the hooks while a menu may be open.
  if (addon().topBar && command != BarCommand::PaintButtons) addon().topBar->collapse();
  if (addon().topBar && addon().topBar->runCommand(command, index)) return true;
  switch (command) {
    case BarCommand::EditorOpened:
      editorOpened(reinterpret_cast<HWND>(lParam));
      return true;
    case BarCommand::PaintButtons:
      return paintButtonsCommand(bar, id, lParam);
    case BarCommand::ActiveEditorTitle:
      completionKeyCommand();
      return true;
    case BarCommand::Tasks:
      taskCommand(id);
      return true;
    case BarCommand::GroupwareGet:
      groupwareGetCommand();
      return true;
    case BarCommand::GroupwareSend:
      groupwareSendCommand();
      return true;
    case BarCommand::GroupwareServerReport:
      groupwareServerReportCommand();
      return true;
    case BarCommand::GroupwareMail:
      groupwareMailCommand();
      return true;
    case BarCommand::GenerateHtml:
      generateHtmlCommand();
      return true;
    case BarCommand::OpenHtml:
      openHtmlCommand();
      return true;
    case BarCommand::Help:
      if (addon().helpFile) addon().helpFile->showContents();
      return true;
    case BarCommand::TitleBarPopup:
      if (id != kEditDocumentationId) return titleBarPopupCommand(bar, id, lParam);
      if (gLastMenuWasTitleBarPopup) return editDocumentationCommand(bar, id, lParam);
      groupwareReportCommand();
      return true;
    case BarCommand::MethodResults:
      return methodResultsCommand(bar, id, lParam);
    case BarCommand::QuickFind:
      return quickFindCommand(bar, id, lParam);
    case BarCommand::Include:
      return includeChosenCommand(bar, id, lParam);
    case BarCommand::QuickFindResult:
      return resultChosenCommand(bar, id, lParam);
    case BarCommand::Function:
      return functionChosenCommand(bar, id, lParam);
    default:
      // The other features' commands reach them as they come.
      return false;
  }
}

bool dispatchBarMessage(HWND bar, UINT message, WPARAM wParam, LPARAM lParam) {
  const int line = static_cast<int>(wParam);
  const char* path = reinterpret_cast<const char*>(lParam);
  switch (message) {
    case WM_TIMER:
      if (wParam == kBarTimer && addon().general) addon().general->timerTick(openProjectOptions() != nullptr);
      return wParam == kBarTimer;
    case WM_INITMENU:
      gLastMenuWasTitleBarPopup = titleBarPopupOpen();
      if (addon().topBar && !gLastMenuWasTitleBarPopup) addon().topBar->expand();
      return false;
    case WM_MENUSELECT:
      // Popups, separators and the title-bar popups have no status text.
      if (addon().topBar && !titleBarPopupOpen() && !(HIWORD(wParam) & (MF_POPUP | MF_SEPARATOR)) &&
          !(HIWORD(wParam) == 0xFFFF && lParam == 0))
        addon().topBar->showItemStatus(LOWORD(wParam));
      return false;
    case WM_ACTIVATE:
      // The bar never keeps the focus: a click hands activation back.
      if (LOWORD(wParam) == WA_CLICKACTIVE && lParam) SetActiveWindow(reinterpret_cast<HWND>(lParam));
      if (LOWORD(wParam) == WA_INACTIVE && addon().topBar) addon().topBar->collapse();
      return false;
    case kGoToLineMessage:
      goToFoundLine(line, path);
      return true;
    case kOpenFoundFileMessage:
      openFoundFile(bar, line, path);
      return true;
    case kHtmlReportMessage:
      ideHost().showStatus(*takeHtmlReport(lParam));
      return true;
    default:
      return false;
  }
}
