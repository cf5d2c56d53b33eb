// Parser and writer of REGEDIT4 files.
#include "foundation/regedit_text.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <unordered_map>

namespace {

bool lineError(int line, const std::string& what, std::string* err) {
  if (err) *err = std::to_string(line) + ": " + what;
  return false;
}

// Reads a quoted string starting at text[*pos] == '"'; handles \\ and \".
bool readQuoted(const std::string& text, size_t* pos, std::string* out) {
  out->clear();
  size_t i = *pos + 1;
  while (i < text.size()) {
    char c = text[i];
    if (c == '"') {
      *pos = i + 1;
      return true;
    }
    if (c == '\\' && i + 1 < text.size() && (text[i + 1] == '\\' || text[i + 1] == '"')) {
      out->push_back(text[i + 1]);
      i += 2;
      continue;
    }
    out->push_back(c);
    ++i;
  }
  return false;
}

std::string quote(const std::string& text) {
  std::string out = "\"";
  for (char c : text) {
    if (c == '\\' || c == '"') out.push_back('\\');
    out.push_back(c);
  }
  out.push_back('"');
  return out;
}

std::string trimmed(const std::string& line) {
  size_t begin = 0;
  size_t end = line.size();
  while (begin < end && (line[begin] == ' ' || line[begin] == '\t')) ++begin;
  while (end > begin && (line[end - 1] == ' ' || line[end - 1] == '\t' || line[end - 1] == '\r')) --end;
  return line.substr(begin, end - begin);
}

bool parseData(const std::string& data, std::string* text) {
  if (!data.empty() && data[0] == '"') {
    size_t pos = 0;
    return readQuoted(data, &pos, text) && pos == data.size();
  }
  static const char kDword[] = "dword:";
  if (data.size() == 14 && data.compare(0, 6, kDword) == 0) {
    char* end = nullptr;
    unsigned long value = std::strtoul(data.c_str() + 6, &end, 16);
    if (*end != 0) return false;
    *text = std::to_string(static_cast<unsigned>(value));
    return true;
  }
  return false;
}

// Where the parser finds the keys and values it has read: a file with
// thousands of keys or values must not be searched once per line. One value
// index for the whole file, sized once from its line count, spares the
// rehashing that a table per key would do as it grows.
class RegeditIndex {
 public:
  RegeditIndex(RegeditDocument* document, size_t lines) : document_(document) { values_.reserve(lines); }

  size_t keyNamed(const std::string& path) {
    auto found = keys_.emplace(foldedCase(path), document_->keys.size());
    if (found.second) document_->keys.push_back(RegeditKey{path, {}});
    return found.first->second;
  }

  void setValue(size_t key, const std::string& name, const std::string& text) {
    std::vector<RegeditValue>& values = document_->keys[key].values;
    // A line end never occurs in a name: it keeps the key's number apart.
    auto found = values_.emplace(std::to_string(key) + '\n' + foldedCase(name), values.size());
    if (found.second)
      values.push_back(RegeditValue{name, text});
    else
      values[found.first->second].text = text;
  }

 private:
  RegeditDocument* document_;
  std::unordered_map<std::string, size_t> keys_;
  std::unordered_map<std::string, size_t> values_;  // "KEY\nNAME" to the value's position in its key
};

}  // namespace

std::string foldedCase(std::string text) {
  for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return text;
}

bool equalsIgnoringCase(const std::string& a, const std::string& b) {
  if (a.size() != b.size()) return false;
  for (size_t i = 0; i < a.size(); ++i)
    if (std::tolower(static_cast<unsigned char>(a[i])) != std::tolower(static_cast<unsigned char>(b[i]))) return false;
  return true;
}

RegeditKey* RegeditDocument::findKey(const std::string& path) {
  for (RegeditKey& key : keys)
    if (equalsIgnoringCase(key.path, path)) return &key;
  return nullptr;
}

RegeditKey& RegeditDocument::findOrAddKey(const std::string& path) {
  if (RegeditKey* key = findKey(path)) return *key;
  keys.push_back(RegeditKey{path, {}});
  return keys.back();
}

RegeditValue* findValue(RegeditKey& key, const std::string& name) {
  for (RegeditValue& value : key.values)
    if (equalsIgnoringCase(value.name, name)) return &value;
  return nullptr;
}

bool parseRegedit(const std::string& text, RegeditDocument* document, std::string* err) {
  document->keys.clear();
  RegeditIndex index(document, static_cast<size_t>(std::count(text.begin(), text.end(), '\n')) + 1);
  constexpr size_t kNoKey = static_cast<size_t>(-1);
  size_t current = kNoKey;
  bool sawHeader = false;
  size_t start = 0;
  int lineNumber = 0;
  while (start < text.size()) {
    size_t end = text.find('\n', start);
    if (end == std::string::npos) end = text.size();
    std::string line = trimmed(text.substr(start, end - start));
    start = end + 1;
    ++lineNumber;
    if (line.empty() || line[0] == ';') continue;
    if (!sawHeader) {
      if (line != "REGEDIT4" && line != "Windows Registry Editor Version 5.00")
        return lineError(lineNumber, "expected the header REGEDIT4", err);
      sawHeader = true;
      continue;
    }
    if (line[0] == '[') {
      if (line.back() != ']' || line.size() < 3) return lineError(lineNumber, "a key line must end with ']'", err);
      if (line[1] == '-') return lineError(lineNumber, "key deletions are not supported", err);
      current = index.keyNamed(line.substr(1, line.size() - 2));
      continue;
    }
    if (current == kNoKey) return lineError(lineNumber, "a value must follow a key line", err);
    std::string name;
    size_t pos = 0;
    if (line[0] == '@') {
      pos = 1;
    } else if (line[0] != '"' || !readQuoted(line, &pos, &name)) {
      return lineError(lineNumber, "expected a quoted value name", err);
    }
    if (pos >= line.size() || line[pos] != '=') return lineError(lineNumber, "expected '=' after the value name", err);
    std::string data;
    if (!parseData(line.substr(pos + 1), &data))
      return lineError(lineNumber, "only string and dword values are supported", err);
    index.setValue(current, name, data);
  }
  return true;
}

std::string formatRegedit(const RegeditDocument& document) {
  std::string out = "REGEDIT4\r\n";
  for (const RegeditKey& key : document.keys) {
    out += "\r\n[" + key.path + "]\r\n";
    for (const RegeditValue& value : key.values)
      out += (value.name.empty() ? std::string("@") : quote(value.name)) + "=" + quote(value.text) + "\r\n";
  }
  out += "\r\n";
  return out;
}
