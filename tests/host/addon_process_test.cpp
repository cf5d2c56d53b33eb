// The add-on in a test IDE process of its own: the system it sees, the bar it
// creates, a clean start and stop, and the refusal to run without a help file name.
#include <gtest/gtest.h>

#include <windows.h>

#include <fstream>
#include <map>
#include <string>

#include "addon_loader.h"
#include "foundation/settings.h"
#include "ui_driver.h"

namespace {

const std::string kTestIde = windowsPath(KESTO_TEST_IDE);
const std::string kAddon = windowsPath(KESTO_ADDON_DLL);
const std::string kWork = windowsPath(KESTO_HOST_WORK_DIR);

using Report = std::map<std::string, std::string>;

// A copy of the test IDE named program, which the system answers as `version`
// (a Wine application default: "win95", "nt40", "nt351"; empty for the default).
std::string testIdeNamed(const std::string& program, const std::string& version) {
  CreateDirectoryA(kWork.c_str(), nullptr);
  const std::string copy = kWork + "\\" + program;
  EXPECT_TRUE(CopyFileA(kTestIde.c_str(), copy.c_str(), FALSE)) << copy;
  const std::string key = "Software\\Wine\\AppDefaults\\" + program;
  if (version.empty()) {
    RegDeleteKeyA(HKEY_CURRENT_USER, key.c_str());
  } else {
    HKEY appKey = nullptr;
    EXPECT_EQ(RegCreateKeyA(HKEY_CURRENT_USER, key.c_str(), &appKey), ERROR_SUCCESS);
    RegSetValueExA(appKey, "Version", 0, REG_SZ, reinterpret_cast<const BYTE*>(version.c_str()),
                   static_cast<DWORD>(version.size() + 1));
    RegCloseKey(appKey);
  }
  return copy;
}

// Runs the program with the arguments and a report file; the report's lines by name.
Report run(const std::string& program, const std::string& arguments, DWORD* exitCode) {
  const std::string reportPath = program + ".report";
  DeleteFileA(reportPath.c_str());
  std::string commandLine = "\"" + program + "\" " + arguments + " \"" + reportPath + "\"";
  STARTUPINFOA startup = {};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION process = {};
  Report lines;
  if (!CreateProcessA(nullptr, &commandLine[0], nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process)) {
    ADD_FAILURE() << "cannot start " << commandLine;
    return lines;
  }
  // Messages are pumped while waiting: the program may show this process's windows.
  EXPECT_TRUE(pumpUntil([&] { return WaitForSingleObject(process.hProcess, 0) == WAIT_OBJECT_0; }, 60000))
      << commandLine << " hangs";
  GetExitCodeProcess(process.hProcess, exitCode);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  std::ifstream file(reportPath);
  for (std::string line; std::getline(file, line);) {
    const size_t equals = line.find('=');
    if (equals != std::string::npos) lines[line.substr(0, equals)] += line.substr(equals + 1);
  }
  return lines;
}

long long number(const Report& report, const std::string& name) {
  auto found = report.find(name);
  return found == report.end() ? -99999 : std::stoll(found->second);
}

}  // namespace

TEST(AddonProcessTest, ProbeDescribesEachSystemAndItsShell) {
  struct Case {
    const char* version;
    const char* os;
    const char* newShell;
  };
  const Case cases[] = {
      {"win95", "Windows 95 (4.0)", "1"},
      {"nt40", "Windows NT 4.0", "1"},
      {"nt351", "Windows NT 3.51", "0"},
  };
  for (const Case& c : cases) {
    DWORD exitCode = 1;
    Report report = run(testIdeNamed(std::string("probe_") + c.version + ".exe", c.version), "probe", &exitCode);
    EXPECT_EQ(exitCode, 0u);
    EXPECT_EQ(report["os"], c.os) << c.version;
    EXPECT_EQ(report["newShell"], c.newShell) << c.version;
  }
}

TEST(AddonProcessTest, BarIsAThinTopmostPopupOverTheScreenTop) {
  for (const char* version : {"nt40", "nt351"}) {
    const bool newShell = std::string(version) == "nt40";
    SCOPED_TRACE(version);
    RegDeleteTreeA(HKEY_LOCAL_MACHINE, SettingsStore::kAddOnRoot);  // the margins of the other look
    DWORD exitCode = 1;
    Report report = run(testIdeNamed(std::string("bar_") + version + ".exe", version), "bar \"" + kAddon + "\"",
                        &exitCode);
    EXPECT_EQ(exitCode, 0u);
    ASSERT_EQ(number(report, "bar"), 1) << "no KADO window";
    EXPECT_EQ(number(report, "classStyle"), CS_VREDRAW | CS_HREDRAW | CS_DBLCLKS);
    EXPECT_EQ(number(report, "blackBrush"), 1);
    EXPECT_EQ(number(report, "cursor") + number(report, "icon") + number(report, "menuName"), 0);
    EXPECT_EQ(report["title"], "");
    EXPECT_EQ(number(report, "owner"), 0);

    const long long style = number(report, "style");
    EXPECT_TRUE(style & WS_POPUP);
    EXPECT_TRUE(style & WS_BORDER);
    EXPECT_EQ((style & WS_DLGFRAME) != 0, !newShell) << "a caption only in the older look";
    const long long exStyle = number(report, "exStyle");
    EXPECT_TRUE(exStyle & WS_EX_TOPMOST);
    EXPECT_EQ((exStyle & WS_EX_TOOLWINDOW) != 0, newShell);
    EXPECT_EQ(number(report, "visible"), 1) << "shown: no setting hides it";

    const long long menuHeight = number(report, "menuHeight");
    EXPECT_EQ(number(report, "x"), -1);
    EXPECT_EQ(number(report, "width"), number(report, "screenWidth") + 2);
    EXPECT_EQ(number(report, "y"), newShell ? -2 : -2 - menuHeight);
    EXPECT_EQ(number(report, "height"), newShell ? menuHeight + 1 : menuHeight + number(report, "captionHeight") + 1);

    EXPECT_EQ(number(report, "menuItems"), 1);
    EXPECT_EQ(report["menuItem99"], "Kesto Addon for Borland C++ 5.0 initializing...");

    // Once placed: the default margins, and one row whether a menu is open or not.
    const long long screenWidth = number(report, "screenWidth");
    EXPECT_EQ(number(report, "normal.x"), newShell ? -1 : 17);
    EXPECT_EQ(number(report, "normal.width"), newShell ? screenWidth + 1 - 58 : screenWidth - 17 - 37);
    EXPECT_EQ(number(report, "normal.y"), number(report, "y"));
    EXPECT_EQ(number(report, "normal.height"), number(report, "height"));
    // Expanded, the whole menu bar shows and no client area does: in the older
    // look the caption leaves the normal bar a few pixels short of its menu.
    EXPECT_EQ(number(report, "expanded.client"), 0);
    if (newShell) EXPECT_EQ(number(report, "expanded.height"), number(report, "height")) << "one row";
    else EXPECT_GT(number(report, "expanded.height"), number(report, "height"));
    EXPECT_EQ(number(report, "screenshot"), 1);

    EXPECT_EQ(number(report, "stopped"), 1);
    EXPECT_EQ(number(report, "barAfterStop"), 0);
    EXPECT_EQ(number(report, "classAfterStop"), 0) << "the class goes with the add-on";
    EXPECT_EQ(number(report, "referencesHeld"), 0) << "every service and the IDE pointer released";
    EXPECT_EQ(number(report, "liveStrings"), 0) << "every IDE string released";
    EXPECT_EQ(report.count("box"), 0u) << report["box"];
  }
}

TEST(AddonProcessTest, EditorTitleBarShowsTheThreeBitmapsInBothLooks) {
  for (const char* version : {"win95", "nt351"}) {
    SCOPED_TRACE(version);
    DWORD exitCode = 1;
    Report report = run(testIdeNamed(std::string("buttons_") + version + ".exe", version),
                        "buttons \"" + kAddon + "\"", &exitCode);
    EXPECT_EQ(exitCode, 0u);
    const bool newShell = std::string(version) == "win95";
    EXPECT_EQ(number(report, "newShell"), newShell ? 1 : 0);
    if (newShell)
      EXPECT_GT(number(report, "originX"), 23) << "on the left side, just after the title";
    else
      EXPECT_EQ(number(report, "originX"), 23) << "the older look ignores the title";
    EXPECT_EQ(number(report, "originY"), 4);
    for (const char* button : {"button0", "button1", "button2"}) EXPECT_EQ(number(report, button), 24 * 18) << button;
    EXPECT_EQ(number(report, "screenshot"), 1);
    EXPECT_EQ(number(report, "referencesHeld"), 0);
  }
}

TEST(AddonProcessTest, BarStaysHiddenWhenTheRegistrySaysSo) {
  const char* key = "SOFTWARE\\Borland\\Borland C++\\5.0\\Ide\\AddOns\\Kestoaob\\TopBar";
  HKEY topBar = nullptr;
  ASSERT_EQ(RegCreateKeyA(HKEY_LOCAL_MACHINE, key, &topBar), ERROR_SUCCESS);
  RegSetValueExA(topBar, "Enabled", 0, REG_SZ, reinterpret_cast<const BYTE*>("0"), 2);
  DWORD exitCode = 1;
  Report report = run(testIdeNamed("bar_hidden.exe", ""), "bar \"" + kAddon + "\"", &exitCode);
  RegDeleteValueA(topBar, "Enabled");
  RegCloseKey(topBar);
  EXPECT_EQ(number(report, "bar"), 1);
  EXPECT_EQ(number(report, "visible"), 0) << "the add-on reads its settings from the registry from the start";
}

TEST(AddonProcessTest, ModuleNameWithoutExtensionEndsTheIdeAfterTheFatalBox) {
  const std::string bare = kWork + "\\kestoaob";
  CreateDirectoryA(kWork.c_str(), nullptr);
  ASSERT_TRUE(CopyFileA(kAddon.c_str(), bare.c_str(), FALSE));
  DWORD exitCode = 1;
  // The trailing dot keeps the loader from adding ".dll" to the name.
  Report report = run(testIdeNamed("fatal.exe", ""), "load \"" + bare + ".\"", &exitCode);
  EXPECT_EQ(number(report, "loaded"), 1);
  EXPECT_EQ(report["box"], "Fatal: You can't use Kesto AddOn for Borland C++ 5.0\\nwithout its helpfile !");
  EXPECT_EQ(report.count("started"), 0u) << "the IDE never came back from the entry";
  EXPECT_EQ(exitCode, 0u);
}

TEST(AddonProcessTest, ASecondIdeShowsTheRunningOneAndEnds) {
  HKEY general = nullptr;
  const std::string key = std::string(SettingsStore::kAddOnRoot) + "\\General";
  ASSERT_EQ(RegCreateKeyA(HKEY_LOCAL_MACHINE, key.c_str(), &general), ERROR_SUCCESS);
  auto setUnic = [general](const char* value) {
    RegSetValueExA(general, "Unic", 0, REG_SZ, reinterpret_cast<const BYTE*>(value), 2);
  };
  // The running IDE: this process's frame, iconic and hidden.
  TestIde running;
  ShowWindow(running.windows.frame, SW_MINIMIZE);
  ShowWindow(running.windows.frame, SW_HIDE);
  setUnic("1");
  DWORD exitCode = 1;
  Report report = run(testIdeNamed("second.exe", ""), "load \"" + kAddon + "\"", &exitCode);
  EXPECT_EQ(exitCode, 0u);
  EXPECT_EQ(number(report, "loaded"), 1);
  EXPECT_EQ(report.count("started"), 0u) << "the second IDE ends inside the add-on's start";
  EXPECT_TRUE(IsWindowVisible(running.windows.frame)) << "the running IDE is shown";

  setUnic("0");
  report = run(testIdeNamed("second.exe", ""), "load \"" + kAddon + "\"", &exitCode);
  EXPECT_EQ(number(report, "started"), 1) << "without \"Unic\" both run";
  RegDeleteValueA(general, "Unic");
  RegCloseKey(general);
}
