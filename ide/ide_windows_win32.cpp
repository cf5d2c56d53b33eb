// The lookups of the IDE's windows.
#include "ide/ide_windows_win32.h"

#include <cstring>
#include <string>

#include "ide/editor_title.h"

namespace {

struct Search {
  const char* windowClass;
  std::string upperName;
  bool byName;
  HWND found;
};

BOOL CALLBACK visit(HWND window, LPARAM lParam) {
  auto* search = reinterpret_cast<Search*>(lParam);
  char className[80] = {};
  char title[280] = {};
  GetClassNameA(window, className, sizeof className);
  GetWindowTextA(window, title, sizeof title);
  if (search->windowClass && std::strcmp(className, search->windowClass) != 0) return TRUE;
  if (search->byName && !titleNamesFile(title, search->upperName)) return TRUE;
  search->found = window;
  return FALSE;
}

}  // namespace

HWND findChildWindow(HWND parent, const char* windowClass, const char* fileName) {
  Search search{windowClass, fileName ? asciiUpper(fileName) : std::string(), fileName != nullptr, nullptr};
  if (parent) EnumChildWindows(parent, visit, reinterpret_cast<LPARAM>(&search));
  return search.found;
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
