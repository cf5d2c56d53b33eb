// Defaults, integer conversion and lists on top of a settings backend.
#include "foundation/settings.h"

#include <cerrno>
#include <cstdlib>
#include <unordered_map>

#include "foundation/regedit_text.h"

namespace {

// A corrupt count must not make a list read loop for minutes.
constexpr int32_t kMaxListEntries = 65535;

bool parseInteger(const std::string& text, int32_t* value) {
  const char* start = text.c_str();
  char* end = nullptr;
  errno = 0;
  long long parsed = std::strtoll(start, &end, 10);
  if (end == start) return false;
  // "%d" of an out-of-range number: keep the low 32 bits as the run-time library does.
  *value = static_cast<int32_t>(static_cast<uint32_t>(static_cast<unsigned long long>(parsed)));
  return true;
}

}  // namespace

std::string SettingsStore::keyPath(const std::string& section) const { return root_ + "\\" + section; }

bool SettingsStore::writeString(const std::string& section, const std::string& name, const std::string& text) {
  return backend_ && backend_->write(keyPath(section), name, text);
}

bool SettingsStore::readStored(const std::string& section, const std::string& name, std::string* text) {
  return backend_ && backend_->read(keyPath(section), name, kScratchBytes, text);
}

bool SettingsStore::readString(const std::string& section, const std::string& name, std::string* out,
                               const char* defaultText) {
  if (observer_ && defaultText) observer_->onRead(section, name, false, defaultText);
  std::string text;
  if (readStored(section, name, &text)) {
    *out = text;
    return true;
  }
  if (!defaultText) return false;
  *out = defaultText;
  return true;
}

bool SettingsStore::writeInteger(const std::string& section, const std::string& name, int32_t value) {
  return writeString(section, name, std::to_string(value));
}

int32_t SettingsStore::readInteger(const std::string& section, const std::string& name, int32_t defaultValue) {
  if (observer_) observer_->onRead(section, name, true, std::to_string(defaultValue));
  return readStoredInteger(section, name, defaultValue);
}

int32_t SettingsStore::readStoredInteger(const std::string& section, const std::string& name, int32_t defaultValue) {
  std::string text;
  int32_t value = defaultValue;
  return readStored(section, name, &text) && parseInteger(text, &value) ? value : defaultValue;
}

std::vector<std::string> SettingsStore::readList(const std::string& section, const std::string& list) {
  // A list's count is storage, not a setting of its own.
  int32_t count = readStoredInteger(section, "Nb" + list, 0);
  // One listing of the entries' key, not one read each: a file backend parses
  // the whole file on every read.
  std::vector<SettingsValue> stored;
  if (!backend_ || !backend_->list(keyPath(section + "\\" + list), &stored)) stored.clear();
  std::unordered_map<std::string, const std::string*> byName;
  for (const SettingsValue& value : stored)
    if (value.text.size() + 1 <= kScratchBytes) byName.emplace(foldedCase(value.name), &value.text);
  std::vector<std::string> entries;
  for (int32_t i = 0; i < count && i < kMaxListEntries; ++i) {
    auto found = byName.find(foldedCase("Entry" + std::to_string(i)));
    entries.push_back(found == byName.end() ? std::string(kMissingEntry) : *found->second);
  }
  return entries;
}

bool SettingsStore::writeList(const std::string& section, const std::string& list,
                              const std::vector<std::string>& entries) {
  bool ok = writeInteger(section, "Nb" + list, static_cast<int32_t>(entries.size()));
  for (size_t i = 0; i < entries.size(); ++i)
    ok = writeString(section + "\\" + list, "Entry" + std::to_string(i), entries[i]) && ok;
  return ok;
}

SettingsStore& settings() {
  static SettingsStore store;
  return store;
}
