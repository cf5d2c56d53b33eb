// The bar's commands handed to their owners, by the portable command table.
#include "ide/bar_commands_win32.h"

#include "navigation/navigation_commands_win32.h"
#include "navigation/navigation_menus.h"
#include "topbar/bar_commands.h"

bool dispatchBarCommand(HWND bar, UINT id, LPARAM lParam) {
  switch (barCommandFor(id, nullptr)) {
    case BarCommand::PaintButtons:
      return paintButtonsCommand(bar, id, lParam);
    case BarCommand::TitleBarPopup:
      return id == kEditDocumentationId ? editDocumentationCommand(bar, id, lParam)
                                        : titleBarPopupCommand(bar, id, lParam);
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
    case kGoToLineMessage:
      goToFoundLine(line, path);
      return true;
    case kOpenFoundFileMessage:
      openFoundFile(bar, line, path);
      return true;
    default:
      return false;
  }
}
