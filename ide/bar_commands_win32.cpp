// The table of the bar's command ranges and their owners.
#include "ide/bar_commands_win32.h"

#include "ide/hook_set_win32.h"
#include "navigation/navigation_commands_win32.h"
#include "navigation/navigation_menus.h"

namespace {

struct BarCommand {
  UINT first;
  UINT last;
  bool (*run)(HWND bar, UINT id, LPARAM lParam);
};

const BarCommand kCommands[] = {
    {kPaintButtonsCommand, kPaintButtonsCommand, paintButtonsCommand},
    {kEditDocumentationId, kEditDocumentationId, editDocumentationCommand},
    {kMethodResultsId, kMethodResultsId, methodResultsCommand},
    {kIncludesButtonCommand, kFunctionsButtonCommand, titleBarPopupCommand},
    {kFindFunctionId, kCrossReferenceId, quickFindCommand},
    {kCaptionRightClickCommand, kCaptionRightClickCommand, titleBarPopupCommand},
    {kFirstIncludeId, kFirstIncludeId + 99, includeChosenCommand},
    {kFirstResultId, kFirstResultId + 99, resultChosenCommand},
    {kFirstFunctionId, 9999, functionChosenCommand},
};

}  // namespace

bool dispatchBarCommand(HWND bar, UINT id, LPARAM lParam) {
  for (const BarCommand& command : kCommands)
    if (id >= command.first && id <= command.last) return command.run(bar, id, lParam);
  return false;
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
