// The scanner behind the editor's functions and includes menus, with its
// "Menus" settings and the lists behind the last menus built.
#pragma once

#include <cstdint>
#include <string>

#include "foundation/kstring.h"
#include "foundation/menu_model.h"
#include "foundation/tableau.h"
#include "navigation/function_scan.h"

class Host;

struct MenuSettings {
  bool enabled = true;   // "Enabled": the title-bar menus are active
  int32_t size = 50;     // "Size": items per menu column
  bool sorted = true;    // "Sorted": functions by class, then name

  // From the "Menus" section, defaults for what is missing.
  static MenuSettings read();
  void write() const;
};

class SourceScanner {
 public:
  // Reads the settings; nothing is written back until writeSettings.
  SourceScanner() : settings_(MenuSettings::read()) {}

  MenuSettings& settings() { return settings_; }
  // Called when the add-on shuts down: writes all three settings.
  void writeSettings() const { settings_.write(); }

  // Scans the text of file (the editor's when one is open) and builds the
  // functions menu. With no entry: beeps, shows "No functions or methods
  // detected !" and returns false.
  bool functionsMenu(Host& host, const std::string& file, MenuModel* menu);
  // Likewise for the includes menu; its empty result shows "No include files
  // detected !" without a beep.
  bool includesMenu(Host& host, const std::string& file, MenuModel* menu);

  // The entries of the last scans, indexed by identifier - 1000 and - 700;
  // null for an index out of range.
  const Fnc* functionAt(int32_t index) const;
  const String* includeAt(int32_t index) const;
  const Tableau<Fnc>& functions() const { return functions_; }
  const Tableau<String>& includes() const { return includes_; }

 private:
  MenuSettings settings_;
  Tableau<Fnc> functions_;
  Tableau<String> includes_;
};
