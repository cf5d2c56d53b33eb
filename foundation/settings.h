// The settings store: named values under sections of one root key, all stored as text.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

struct SettingsValue {
  std::string name;
  std::string text;
};

// Where the values live: the registry under HKEY_LOCAL_MACHINE on Windows, a
// REGEDIT4 file elsewhere. Key paths are relative to HKEY_LOCAL_MACHINE.
class SettingsBackend {
 public:
  virtual ~SettingsBackend() = default;
  // Reads at most maxBytes bytes of data (the text and its zero); false when the
  // key or the value is missing or longer. Never creates anything.
  virtual bool read(const std::string& keyPath, const std::string& name, size_t maxBytes, std::string* text) = 0;
  // Creates the key when missing; false when it cannot be created or written.
  virtual bool write(const std::string& keyPath, const std::string& name, const std::string& text) = 0;
  // The values of a key in their stored order; false when the key is missing.
  virtual bool list(const std::string& keyPath, std::vector<SettingsValue>* values) = 0;
  // The subkeys directly below keyPath, by name.
  virtual std::vector<std::string> subkeys(const std::string& keyPath) = 0;
};

// Told of every single value read with a default, with its kind: the defaults
// live in the readers alone, and whoever needs a table of them (kesto's list of
// known settings) runs the readers with an observer.
class SettingsReadObserver {
 public:
  virtual ~SettingsReadObserver() = default;
  virtual void onRead(const std::string& section, const std::string& name, bool integer,
                      const std::string& defaultText) = 0;
};

// The process-wide store. Reads fall back to defaults silently; writes report
// failure as false, which callers may ignore.
class SettingsStore {
 public:
  static constexpr const char* kAddOnRoot = "SOFTWARE\\Borland\\Borland C++\\5.0\\Ide\\AddOns\\Kestoaob";
  static constexpr size_t kScratchBytes = 2000;  // longer values read as missing
  static constexpr const char* kMissingEntry = "not found";

  void setRoot(const std::string& root) { root_ = root; }
  const std::string& root() const { return root_; }
  // Installs the backend (not owned); null makes every read a default and every write fail.
  void setBackend(SettingsBackend* backend) { backend_ = backend; }
  SettingsBackend* backend() const { return backend_; }
  // Not owned; null for none.
  void setReadObserver(SettingsReadObserver* observer) { observer_ = observer; }

  // "root\section".
  std::string keyPath(const std::string& section) const;

  bool writeString(const std::string& section, const std::string& name, const std::string& text);
  // With a default, a missing or too long value gives the default and true;
  // without one (null), false and *out untouched.
  bool readString(const std::string& section, const std::string& name, std::string* out, const char* defaultText);
  bool writeInteger(const std::string& section, const std::string& name, int32_t value);
  // Text that does not begin with a number gives the default.
  int32_t readInteger(const std::string& section, const std::string& name, int32_t defaultValue);

  // Lists: the count "Nb" + list in the section, the entries "Entry%d" under
  // "section\list"; a missing entry reads as "not found".
  std::vector<std::string> readList(const std::string& section, const std::string& list);
  bool writeList(const std::string& section, const std::string& list, const std::vector<std::string>& entries);

 private:
  bool readStored(const std::string& section, const std::string& name, std::string* text);
  int32_t readStoredInteger(const std::string& section, const std::string& name, int32_t defaultValue);

  std::string root_ = kAddOnRoot;
  SettingsBackend* backend_ = nullptr;
  SettingsReadObserver* observer_ = nullptr;
};

SettingsStore& settings();

// An integer field of a settings record and the key it is stored under.
template <typename Record>
struct IntegerSetting {
  const char* key;
  int32_t Record::*value;
};

// Reads each field, keeping the record's value as the default.
template <typename Record, size_t N>
void readIntegerSettings(const char* section, const IntegerSetting<Record> (&fields)[N], Record* record) {
  for (const IntegerSetting<Record>& field : fields)
    record->*field.value = settings().readInteger(section, field.key, record->*field.value);
}

// Writes each field, in the table's order.
template <typename Record, size_t N>
void writeIntegerSettings(const char* section, const IntegerSetting<Record> (&fields)[N], const Record& record) {
  for (const IntegerSetting<Record>& field : fields) settings().writeInteger(section, field.key, record.*field.value);
}
