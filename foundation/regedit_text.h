// The REGEDIT4 text form of registry keys: parsed and written byte for byte the
// way the Windows registry editor imports it.
#pragma once

#include <string>
#include <vector>

struct RegeditValue {
  std::string name;  // "" for the key's default value (@)
  std::string text;
};

struct RegeditKey {
  std::string path;  // full path, hive included: "HKEY_LOCAL_MACHINE\SOFTWARE\..."
  std::vector<RegeditValue> values;
};

struct RegeditDocument {
  std::vector<RegeditKey> keys;

  // Names compare case-insensitively, as the registry does. Null when absent.
  RegeditKey* findKey(const std::string& path);
  RegeditKey& findOrAddKey(const std::string& path);
};

RegeditValue* findValue(RegeditKey& key, const std::string& name);

// Accepts "REGEDIT4" or "Windows Registry Editor Version 5.00" headers, CR LF or
// LF, ';' comments, string values and dword values (read as decimal text). On
// failure, *err says "LINE: what is wrong" and the document is unspecified.
bool parseRegedit(const std::string& text, RegeditDocument* document, std::string* err);

// "REGEDIT4", then each key and its string values, CR LF line ends.
std::string formatRegedit(const RegeditDocument& document);

bool equalsIgnoringCase(const std::string& a, const std::string& b);
// The form in which equalsIgnoringCase compares: every byte lower-cased; a key for name indexes.
std::string foldedCase(std::string text);
