// Prints how fast the resource script reader and the version stamping go over
// a large generated script: megabytes per second and the size of the output.
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <string>

#include "rcgen/rc_script_reader.h"
#include "rcgen/version_stamping.h"

namespace {

std::string largeScript(int dialogs) {
  std::string script;
  for (int i = 0; i < 250; ++i) script += "#define IDC_C" + std::to_string(i) + " " + std::to_string(1000 + i) + "\r\n";
  script += "MAINMENU MENU\r\n{\r\n";
  for (int i = 0; i < 50; ++i) script += "  MENUITEM \"Item\", IDC_C" + std::to_string(i) + "\r\n";
  script += "}\r\n";
  for (int d = 0; d < dialogs; ++d) {
    script += "DLG" + std::to_string(d) + " DIALOGEX 0, 0, 300, 200\r\nMENU MAINMENU\r\nCAPTION \"Dialog\"\r\n{\r\n";
    for (int c = 0; c < 40; ++c)
      script += "    CONTROL \"Text\", IDC_C" + std::to_string(c * 6) + ", \"" + (c % 2 ? "edit" : "BUTTON") +
                "\", BS_AUTOCHECKBOX | WS_TABSTOP, 7, 7, 50, 14\r\n";
    script += "}\r\n";
  }
  return script;
}

double secondsSince(std::chrono::steady_clock::time_point start) {
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

}  // namespace

int main() {
  std::string script = largeScript(2000);
  auto start = std::chrono::steady_clock::now();
  RcUnitText unit;
  readRcScript(script, &unit);
  double readSeconds = secondsSince(start);
  std::printf("reader: %.1f MB script, 2000 dialogs of 40 controls in %.3f s (%.1f MB/s), %.1f MB of class text\n",
              script.size() / 1e6, readSeconds, script.size() / 1e6 / readSeconds,
              (unit.header.size() + unit.implementation.size()) / 1e6);

  start = std::chrono::steady_clock::now();
  int32_t build = 1;
  std::string stamped = stampVersionText(script, &build);
  double stampSeconds = secondsSince(start);
  std::printf("stamping: %.1f MB in %.3f s (%.1f MB/s)\n", script.size() / 1e6, stampSeconds,
              script.size() / 1e6 / stampSeconds);
  return stamped.empty() ? 1 : 0;
}
