// The lookups of the IDE's windows.
#include "win32/ide_windows_win32.h"

#include <cstring>
#include <string>

#include "project/editor_title.h"

namespace {

struct Search {
  const std::function<bool(HWND)>& matches;
  HWND found;
};

BOOL CALLBACK visit(HWND window, LPARAM lParam) {
  auto* search = reinterpret_cast<Search*>(lParam);
  if (!search->matches(window)) return TRUE;
  search->found = window;
  return FALSE;
}

}  // namespace

HWND findChildWindowWhere(HWND parent, const std::function<bool(HWND)>& matches) {
  Search search{matches, nullptr};
  if (parent) EnumChildWindows(parent, visit, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

HWND findChildWindow(HWND parent, const char* windowClass, const char* fileName) {
  const std::string upperName = fileName ? asciiUpper(fileName) : std::string();
  return findChildWindowWhere(parent, [&](HWND window) {
    if (windowClass && !hasClass(window, windowClass)) return false;
    char title[280] = {};
    GetWindowTextA(window, title, sizeof title);
    return !fileName || titleNamesFile(title, upperName);
  });
}

bool hasClass(HWND window, const char* windowClass) {
  char className[80] = {};
  return window && GetClassNameA(window, className, sizeof className) && std::strcmp(className, windowClass) == 0;
}

HWND ideFrame() { return FindWindowA("CPPFRAME", nullptr); }

HWND ideDocuments() {
  HWND frame = ideFrame();
  return frame ? FindWindowExA(frame, nullptr, "MDIClient", nullptr) : nullptr;
}

HWND activeEditor() {
  HWND documents = ideDocuments();
  HWND top = documents ? GetWindow(documents, GW_CHILD) : nullptr;
  return hasClass(top, "BCW5Editor") ? top : nullptr;
}
