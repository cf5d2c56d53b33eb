// The test IDE as a program: loads the add-on, starts and stops it, and writes
// what it saw as "name=value" lines to a report file. One run per scenario:
//   kesto_test_ide probe REPORT         the add-on's view of the system
//   kesto_test_ide bar DLL REPORT       the bar window the add-on creates
//   kesto_test_ide load DLL REPORT      start and stop, answering any message box
//   kesto_test_ide buttons DLL REPORT   an editor's title-bar buttons, read back pixel by pixel
#include <windows.h>

#include <cstdio>
#include <string>

#include "addon_loader.h"
#include "ide/addon_environment_win32.h"
#include "navigation/title_bar_geometry.h"
#include "navigation/title_bar_win32.h"
#include "test_ide.h"
#include "ui_driver.h"

namespace {

FILE* gReport = nullptr;

// Each line is flushed: the add-on may end the process at any time. A line end
// inside the value is written as "\n" so that each value keeps one line.
void report(const std::string& name, const std::string& value) {
  std::string line = name + "=";
  for (char c : value) line += c == '\n' ? std::string("\\n") : std::string(1, c);
  std::fprintf(gReport, "%s\n", line.c_str());
  std::fflush(gReport);
}

void report(const std::string& name, long long value) { report(name, std::to_string(value)); }

// The program's file name without its folder and extension.
std::string programName(const std::string& program) {
  const std::string name = program.substr(program.find_last_of("\\/") + 1);
  return name.substr(0, name.find('.'));
}

void reportPlace(const std::string& prefix, HWND window) {
  RECT place = {};
  GetWindowRect(window, &place);
  report(prefix + "x", place.left);
  report(prefix + "y", place.top);
  report(prefix + "width", place.right - place.left);
  report(prefix + "height", place.bottom - place.top);
  RECT client = {};
  GetClientRect(window, &client);
  report(prefix + "client", client.bottom);
}

void reportBar(HMODULE module) {
  WNDCLASSA barClass = {};
  report("class", GetClassInfoA(module, "KADO", &barClass) ? 1 : 0);
  report("classStyle", barClass.style);
  report("blackBrush", barClass.hbrBackground == GetStockObject(BLACK_BRUSH) ? 1 : 0);
  report("cursor", barClass.hCursor ? 1 : 0);
  report("icon", barClass.hIcon ? 1 : 0);
  report("menuName", barClass.lpszMenuName ? 1 : 0);

  HWND bar = FindWindowA("KADO", nullptr);
  report("bar", bar ? 1 : 0);
  if (!bar) return;
  char title[64] = {};
  GetWindowTextA(bar, title, sizeof title);
  report("title", title);
  report("owner", GetWindow(bar, GW_OWNER) ? 1 : 0);
  report("style", static_cast<long long>(GetWindowLongA(bar, GWL_STYLE) & 0xFFFFFFFFll));
  report("exStyle", static_cast<long long>(GetWindowLongA(bar, GWL_EXSTYLE) & 0xFFFFFFFFll));
  report("visible", IsWindowVisible(bar) ? 1 : 0);
  reportPlace("", bar);
  report("screenWidth", GetSystemMetrics(SM_CXSCREEN));
  report("menuHeight", GetSystemMetrics(SM_CYMENU));
  report("captionHeight", GetSystemMetrics(SM_CYCAPTION));
  HMENU menu = GetMenu(bar);
  char item[128] = {};
  if (menu) GetMenuStringA(menu, 99, item, sizeof item, MF_BYCOMMAND);
  report("menuItems", menu ? GetMenuItemCount(menu) : -1);
  report("menuItem99", item);
}

// The bar once its menus are built: while a menu opens, then put back at its
// normal place, with a screenshot named after the program.
void reportBarPlacement(const char* program) {
  pumpMessages(300);
  HWND bar = FindWindowA("KADO", nullptr);
  SendMessageA(bar, WM_INITMENU, reinterpret_cast<WPARAM>(GetMenu(bar)), 0);
  reportPlace("expanded.", bar);
  SendMessageA(bar, WM_ACTIVATE, WA_INACTIVE, 0);
  reportPlace("normal.", bar);
  report("screenshot", saveScreenshot("top-bar-" + programName(program)) ? 1 : 0);
}

// How many pixels of each button's bitmap the editor's title bar shows where
// the add-on paints it, and a screenshot named after the program.
void reportButtons(HMODULE module, TestIde* ide, const char* program) {
  AddonEnvironment environment;
  probeEnvironment(&environment);
  ide->openFile("C:\\SRC\\FRAME.CPP", "int main(void)\n");
  HWND editor = ide->editor.buffers.rbegin()->second.window;
  pumpMessages(500);
  RedrawWindow(editor, nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_UPDATENOW);
  pumpMessages(300);
  const POINT origin = titleBarButtonsOrigin(editor, {module, environment.newShell != 0, true});
  report("newShell", environment.newShell);
  report("originX", origin.x);
  report("originY", origin.y);
  for (int32_t button = 0; button < kTitleBarButtons; ++button)
    report("button" + std::to_string(button),
           bitmapPixelsShown(editor, module, titleBarBitmap(button), POINT{origin.x + button * 24, origin.y}));
  report("screenshot", saveScreenshot("editor-" + programName(program)) ? 1 : 0);
}

int run(const std::string& mode, const char* dll, const char* program) {
  if (mode == "probe") {
    AddonEnvironment environment;
    probeEnvironment(&environment);
    report("os", environment.osDescription);
    report("newShell", environment.newShell);
    return 0;
  }
  MessageBoxWatchdog watchdog([](const std::string& box) { report("box", box); });
  TestIde ide;
  LoadedAddon addon(dll);
  report("loaded", addon.module() ? 1 : 0);
  report("entry", addon.hasEntry() ? 1 : 0);
  if (!addon.start(&ide)) return 1;
  report("started", 1);
  if (mode == "bar") {
    reportBar(addon.module());
    reportBarPlacement(program);
  }
  if (mode == "buttons") reportButtons(addon.module(), &ide, program);
  addon.stop();
  report("stopped", 1);
  report("barAfterStop", FindWindowA("KADO", nullptr) ? 1 : 0);
  WNDCLASSA barClass = {};
  report("classAfterStop", GetClassInfoA(addon.module(), "KADO", &barClass) ? 1 : 0);
  report("referencesHeld", ide.referencesHeld());
  report("liveStrings", TestIde::liveStrings);
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  const bool probe = argc == 3 && std::string(argv[1]) == "probe";
  if (!probe && argc != 4) {
    std::fprintf(stderr, "usage: kesto_test_ide probe REPORT | bar|load|buttons DLL REPORT\n");
    return 2;
  }
  gReport = std::fopen(argv[argc - 1], "w");
  if (!gReport) return 2;
  const int status = run(argv[1], probe ? nullptr : argv[2], argv[0]);
  std::fclose(gReport);
  return status;
}
