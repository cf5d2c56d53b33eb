// The settings backend of systems without a registry: one REGEDIT4 file that a
// Windows registry editor can import as it stands.
#pragma once

#include <string>

#include "foundation/settings.h"

class SettingsFile : public SettingsBackend {
 public:
  explicit SettingsFile(std::string path) : path_(std::move(path)) {}

  const std::string& path() const { return path_; }
  // Empty, or "PATH:LINE: what" when the file is malformed. A malformed file is
  // never overwritten: writes fail until it is mended.
  const std::string& error() const { return error_; }
  // Loads the file (a missing file is an empty store); false when malformed.
  bool check();

  bool read(const std::string& keyPath, const std::string& name, size_t maxBytes, std::string* text) override;
  bool write(const std::string& keyPath, const std::string& name, const std::string& text) override;
  bool list(const std::string& keyPath, std::vector<SettingsValue>* values) override;
  std::vector<std::string> subkeys(const std::string& keyPath) override;

  static constexpr const char* kHive = "HKEY_LOCAL_MACHINE\\";

 private:
  // Each operation reads the file anew, as the registry opens its key each time.
  bool load(struct RegeditDocument* document);

  std::string path_;
  std::string error_;
};
