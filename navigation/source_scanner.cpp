// The functions and includes menus of the file in an editor, rebuilt at each request.
#include "navigation/source_scanner.h"

#include "foundation/settings.h"
#include "project/host.h"
#include "navigation/include_scan.h"
#include "navigation/navigation_menus.h"
#include "navigation/source_text.h"

namespace {

constexpr const char* kSection = "Menus";

}  // namespace

MenuSettings MenuSettings::read() {
  MenuSettings values;
  values.enabled = settings().readInteger(kSection, "Enabled", 1) != 0;
  values.sorted = settings().readInteger(kSection, "Sorted", 1) != 0;
  values.size = settings().readInteger(kSection, "Size", 50);
  return values;
}

void MenuSettings::write() const {
  settings().writeInteger(kSection, "Sorted", sorted ? 1 : 0);
  settings().writeInteger(kSection, "Size", size);
  settings().writeInteger(kSection, "Enabled", enabled ? 1 : 0);
}

bool SourceScanner::functionsMenu(Host& host, const std::string& file, MenuModel* menu) {
  functions_.clear();
  std::string text;
  readSourceText(host, file, &text, nullptr);  // an unreadable file reads as empty
  scanFunctions(text, &functions_);
  if (settings_.sorted) sortFunctions(&functions_);
  if (functions_.count() == 0) {
    host.beep(220, 500);
    host.showStatus("No functions or methods detected !");
    return false;
  }
  *menu = ::functionsMenu(functions_, settings_.size);
  return true;
}

bool SourceScanner::includesMenu(Host& host, const std::string& file, MenuModel* menu) {
  includes_.clear();
  std::string text;
  readSourceText(host, file, &text, nullptr);  // an unreadable file reads as empty
  scanIncludes(text, &includes_);
  if (includes_.count() == 0) {
    host.showStatus("No include files detected !");
    return false;
  }
  *menu = ::includesMenu(includes_);
  return true;
}

const Fnc* SourceScanner::functionAt(int32_t index) const {
  return index >= 0 && index < functions_.count() ? functions_[index] : nullptr;
}

const String* SourceScanner::includeAt(int32_t index) const {
  return index >= 0 && index < includes_.count() ? includes_[index] : nullptr;
}
