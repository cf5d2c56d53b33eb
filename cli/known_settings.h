// The settings the add-on reads, with their kinds and defaults, so that kesto
// can check a value before it stores it.
#pragma once

#include <string>
#include <vector>

struct KnownSetting {
  std::string section;
  std::string name;
  bool integer;          // read as an integer; otherwise as text
  std::string fallback;  // the value used while none is stored
};

// Every single-valued setting, by section in the order of the options dialog's pages.
const std::vector<KnownSetting>& knownSettings();

// The setting of that section and name (compared as the registry does, without
// regard to case); null when kesto does not know it.
const KnownSetting* findKnownSetting(const std::string& section, const std::string& name);
