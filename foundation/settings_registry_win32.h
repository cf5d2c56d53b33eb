// The settings backend of Windows: values under HKEY_LOCAL_MACHINE.
#pragma once

#include "foundation/settings.h"

class SettingsRegistry : public SettingsBackend {
 public:
  bool read(const std::string& keyPath, const std::string& name, size_t maxBytes, std::string* text) override;
  bool write(const std::string& keyPath, const std::string& name, const std::string& text) override;
  bool list(const std::string& keyPath, std::vector<SettingsValue>* values) override;
  std::vector<std::string> subkeys(const std::string& keyPath) override;
};
