// The navigation commands on the add-on's objects and the IDE.
#include "ide/navigation_commands_win32.h"

#include <string>

#include "ide/addon_slots_win32.h"
#include "ide/hook_set_win32.h"
#include "ide/ide_host_win32.h"
#include "win32/menu_model_win32.h"
#include "ide/open_file_win32.h"
#include "navigation/include_search.h"
#include "navigation/navigation_menus.h"
#include "navigation/quickfind.h"
#include "navigation/quickfind_prompt_win32.h"
#include "navigation/source_scanner.h"

namespace {

// The path that the private messages carry; it lives until the next search.
std::string gFoundPath;

EditorTarget& target() {
  static EditorTarget withoutHooks;
  return addon().hooks ? addon().hooks->target() : withoutHooks;
}

// Marks a title-bar popup as open while it is tracked, so that no click is taken meanwhile.
class PopupOpen {
 public:
  PopupOpen() { target().popupOpen = true; }
  ~PopupOpen() { target().popupOpen = false; }
  PopupOpen(const PopupOpen&) = delete;
  PopupOpen& operator=(const PopupOpen&) = delete;
};

void trackTitleBarPopup(const MenuModel& menu, POINT at, HWND bar) {
  PopupOpen open;
  trackPopupMenu(menu, at.x, at.y, bar);
}

void postFound(HWND bar, UINT message, const std::string& path, int32_t line) {
  gFoundPath = path;
  PostMessageA(bar, message, static_cast<WPARAM>(line), reinterpret_cast<LPARAM>(gFoundPath.c_str()));
}

// Opens the first hit of a function or class search and asks for its line.
void openHit(HWND bar, const QuickHit& hit) {
  if (openAndRecord(hit.file)) postFound(bar, kGoToLineMessage, hit.file, hit.line);
}

}  // namespace

TitleBarOptions addonTitleBarOptions() {
  const AddonEnvironment* environment = addon().environment.get();
  return {environment ? environment->instance : nullptr, environment && environment->newShell != 0,
          addon().quickFind && addon().quickFind->settings().leftSide};
}

bool paintButtonsCommand(HWND, UINT, LPARAM editor) {
  if (addon().navigation && addon().navigation->settings().enabled)
    paintTitleBarButtons(reinterpret_cast<HWND>(editor), addonTitleBarOptions());
  return true;
}

bool titleBarPopupCommand(HWND bar, UINT id, LPARAM) {
  SourceScanner* scanner = addon().navigation.get();
  QuickFind* quickFind = addon().quickFind.get();
  if (!scanner || !quickFind) return false;
  MenuModel menu;
  POINT at = target().popup;
  switch (id) {
    case kFunctionsButtonCommand:
      if (!scanner->functionsMenu(ideHost(), target().fileName, &menu)) return false;
      break;
    case kIncludesButtonCommand:
      if (!scanner->includesMenu(ideHost(), target().fileName, &menu)) return false;
      break;
    case kQuickFindButtonCommand:
      menu = quickFind->menu();
      break;
    default:
      menu = editDocumentationMenu();
      at = target().click;
      break;
  }
  trackTitleBarPopup(menu, at, bar);
  return true;
}

bool editDocumentationCommand(HWND, UINT, LPARAM) {
  activateIdeFrame();
  openAndRecord(target().documentationTitle + ".txt");
  return true;
}

bool functionChosenCommand(HWND, UINT id, LPARAM) {
  activateIdeFrame();
  const Fnc* function = addon().navigation ? addon().navigation->functionAt(id - kFunctionCommands.first) : nullptr;
  if (function) ideHost().goToLine(target().fileName, function->line());
  return true;
}

bool includeChosenCommand(HWND, UINT id, LPARAM) {
  activateIdeFrame();
  const String* name = addon().navigation ? addon().navigation->includeAt(id - kIncludeCommands.first) : nullptr;
  std::string path;
  if (name && findInclude(ideHost(), name->str(), target().fileName, &path)) openAndRecord(path);
  return true;
}

bool quickFindCommand(HWND bar, UINT id, LPARAM) {
  static const char* const kTitles[] = {"Find as function...", "Find as method...", "Find as class ...",
                                        "Cross reference ..."};
  QuickFind* quickFind = addon().quickFind.get();
  if (!quickFind || !addon().environment) return true;
  const UINT command = id - kFindFunctionId;
  const std::string text = promptSearchText(addon().environment->instance, bar, target().window, kTitles[command],
                                            &quickFind->history());
  if (text.empty()) return true;
  const std::string& file = target().fileName;
  QuickHit hit;
  switch (id) {
    case kFindFunctionId:
      if (quickFind->findFunction(ideHost(), text, file, &hit)) openHit(bar, hit);
      break;
    case kFindClassId:
      if (quickFind->findClass(ideHost(), text, file, &hit)) openHit(bar, hit);
      break;
    case kFindMethodId:
      if (!quickFind->findMethods(ideHost(), text, file)) break;
      // One result opens at once; several are offered in a popup.
      PostMessageA(bar, WM_COMMAND,
                   quickFind->methodResults().count() == 1 ? kQuickFindResultCommands.first : kMethodResultsId, 0);
      break;
    default:
      quickFind->crossReference(ideHost(), text);
      break;
  }
  return true;
}

bool methodResultsCommand(HWND bar, UINT, LPARAM) {
  if (!addon().quickFind) return true;
  POINT at = {};
  GetCursorPos(&at);
  trackTitleBarPopup(addon().quickFind->methodResultsMenu(), at, bar);
  return true;
}

bool resultChosenCommand(HWND bar, UINT id, LPARAM) {
  if (!addon().quickFind) return true;
  const Tableau<QuickResu>& results = addon().quickFind->methodResults();
  const int32_t index = static_cast<int32_t>(id - kQuickFindResultCommands.first);
  if (index < results.count()) postFound(bar, kOpenFoundFileMessage, results[index]->file(), results[index]->line());
  return true;
}

void goToFoundLine(int line, const char* path) {
  if (path) ideHost().goToLine(path, line);
}

void openFoundFile(HWND bar, int line, const char* path) {
  if (!path) return;
  const std::string file = path;  // path may be the very buffer that postFound refills
  if (openAndRecord(file)) postFound(bar, kGoToLineMessage, file, line);
}
