// Registry access exactly as the add-on does it: open (or create) the key for
// each access, string values only, a fixed scratch buffer for reads.
#include "foundation/settings_registry_win32.h"

#include <windows.h>

#include <vector>

namespace {

class RegistryKey {
 public:
  RegistryKey() = default;
  ~RegistryKey() {
    if (key_) RegCloseKey(key_);
  }
  RegistryKey(const RegistryKey&) = delete;
  RegistryKey& operator=(const RegistryKey&) = delete;
  HKEY* out() { return &key_; }
  HKEY get() const { return key_; }

 private:
  HKEY key_ = nullptr;
};

}  // namespace

bool SettingsRegistry::read(const std::string& keyPath, const std::string& name, size_t maxBytes, std::string* text) {
  RegistryKey key;
  if (RegOpenKeyA(HKEY_LOCAL_MACHINE, keyPath.c_str(), key.out()) != ERROR_SUCCESS) return false;
  std::vector<char> scratch(maxBytes, 0);
  DWORD type = 0;
  DWORD size = static_cast<DWORD>(scratch.size());
  if (RegQueryValueExA(key.get(), name.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(scratch.data()), &size) !=
      ERROR_SUCCESS)
    return false;
  // The stored type is not checked; the text ends at the last byte returned.
  if (size > 0) scratch[size - 1] = 0;
  *text = scratch.data();
  return true;
}

bool SettingsRegistry::write(const std::string& keyPath, const std::string& name, const std::string& text) {
  RegistryKey key;
  if (RegOpenKeyA(HKEY_LOCAL_MACHINE, keyPath.c_str(), key.out()) != ERROR_SUCCESS &&
      RegCreateKeyA(HKEY_LOCAL_MACHINE, keyPath.c_str(), key.out()) != ERROR_SUCCESS)
    return false;
  return RegSetValueExA(key.get(), name.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                        static_cast<DWORD>(text.size() + 1)) == ERROR_SUCCESS;
}

bool SettingsRegistry::list(const std::string& keyPath, std::vector<SettingsValue>* values) {
  RegistryKey key;
  if (RegOpenKeyA(HKEY_LOCAL_MACHINE, keyPath.c_str(), key.out()) != ERROR_SUCCESS) return false;
  values->clear();
  for (DWORD index = 0;; ++index) {
    char name[256];
    DWORD nameSize = sizeof name;
    std::vector<char> data(SettingsStore::kScratchBytes, 0);
    DWORD dataSize = static_cast<DWORD>(data.size());
    LONG result = RegEnumValueA(key.get(), index, name, &nameSize, nullptr, nullptr,
                                reinterpret_cast<BYTE*>(data.data()), &dataSize);
    if (result == ERROR_NO_MORE_ITEMS) break;
    if (result != ERROR_SUCCESS) continue;
    if (dataSize > 0) data[dataSize - 1] = 0;
    values->push_back(SettingsValue{name, data.data()});
  }
  return true;
}

std::vector<std::string> SettingsRegistry::subkeys(const std::string& keyPath) {
  std::vector<std::string> names;
  RegistryKey key;
  if (RegOpenKeyA(HKEY_LOCAL_MACHINE, keyPath.c_str(), key.out()) != ERROR_SUCCESS) return names;
  char name[256];
  for (DWORD index = 0; RegEnumKeyA(key.get(), index, name, sizeof name) == ERROR_SUCCESS; ++index)
    names.push_back(name);
  return names;
}
