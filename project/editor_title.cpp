// Cutting editor titles down to the names the features use.
#include "project/editor_title.h"

std::string editorFileName(const std::string& title, size_t limit) {
  std::string name = title.substr(0, limit);
  // Index 2 is the lowest cut: "C:" must survive in "C:\SRC\A.CPP:2".
  for (size_t i = name.size(); i-- > 2;) {
    const char c = name[i];
    if (c == ':' || c == '*' || (c == ' ' && i + 1 == name.size())) name.resize(i);
  }
  return name;
}

std::string documentationTitle(const std::string& title) {
  std::string text = title.substr(0, kDocumentationTitleLimit);
  while (!text.empty() && (text.back() == ' ' || text.back() == '*')) text.pop_back();
  return text;
}

bool titleNamesFile(const std::string& title, const std::string& upperName) {
  if (upperName.empty()) return false;
  const std::string upper = asciiUpper(title);
  for (size_t at = upper.find(upperName); at != std::string::npos; at = upper.find(upperName, at + 1)) {
    const bool startsName = at == 0 || upper[at - 1] == '\\' || upper[at - 1] == '/';
    const size_t end = at + upperName.size();
    if (startsName && (end == upper.size() || upper[end] == ':')) return true;
  }
  return false;
}

std::string asciiUpper(std::string text) {
  for (char& c : text)
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  return text;
}
