// Settings kept in a REGEDIT4 file, read on every access and rewritten atomically.
#include "foundation/settings_file.h"

#include "foundation/os.h"
#include "foundation/regedit_text.h"

bool SettingsFile::load(RegeditDocument* document) {
  document->keys.clear();
  if (!os().exists(path_)) {
    error_.clear();
    return true;
  }
  std::string text;
  std::string why;
  if (!os().readFile(path_, &text, &why)) {
    error_ = why;
    return false;
  }
  if (!parseRegedit(text, document, &why)) {
    error_ = path_ + ":" + why;
    return false;
  }
  error_.clear();
  return true;
}

bool SettingsFile::check() {
  RegeditDocument document;
  return load(&document);
}

bool SettingsFile::read(const std::string& keyPath, const std::string& name, size_t maxBytes, std::string* text) {
  RegeditDocument document;
  if (!load(&document)) return false;
  RegeditKey* key = document.findKey(kHive + keyPath);
  RegeditValue* value = key ? findValue(*key, name) : nullptr;
  if (!value || value->text.size() + 1 > maxBytes) return false;
  *text = value->text;
  return true;
}

bool SettingsFile::write(const std::string& keyPath, const std::string& name, const std::string& text) {
  std::string why;
  if (!os().makeDirectories(directoryOf(path_), &why)) {
    error_ = why;
    return false;
  }
  // Held from the read to the rename: two processes setting two values at once keep both.
  std::unique_ptr<OsLock> lock = os().lock(path_, &why);
  if (!lock) {
    error_ = why;
    return false;
  }
  RegeditDocument document;
  if (!load(&document)) return false;
  RegeditKey& key = document.findOrAddKey(kHive + keyPath);
  if (RegeditValue* value = findValue(key, name))
    value->text = text;
  else
    key.values.push_back(RegeditValue{name, text});
  if (!os().writeFileAtomic(path_, formatRegedit(document), &why)) {
    error_ = why;
    return false;
  }
  return true;
}

bool SettingsFile::list(const std::string& keyPath, std::vector<SettingsValue>* values) {
  RegeditDocument document;
  if (!load(&document)) return false;
  RegeditKey* key = document.findKey(kHive + keyPath);
  if (!key) return false;
  values->clear();
  for (const RegeditValue& value : key->values) values->push_back(SettingsValue{value.name, value.text});
  return true;
}

std::vector<std::string> SettingsFile::subkeys(const std::string& keyPath) {
  RegeditDocument document;
  std::vector<std::string> names;
  if (!load(&document)) return names;
  std::string prefix = kHive + keyPath + "\\";
  for (const RegeditKey& key : document.keys) {
    if (key.path.size() <= prefix.size() || !equalsIgnoringCase(key.path.substr(0, prefix.size()), prefix)) continue;
    std::string rest = key.path.substr(prefix.size());
    if (rest.find('\\') == std::string::npos) names.push_back(rest);
  }
  return names;
}
