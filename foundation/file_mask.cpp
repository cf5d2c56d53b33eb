// Windows-style wildcard matching and name ordering.
#include "foundation/file_mask.h"

#include <cctype>

namespace {

unsigned char fold(char c) { return static_cast<unsigned char>(std::toupper(static_cast<unsigned char>(c))); }

bool matchFrom(const char* name, const char* mask) {
  // Iterative matching with one backtrack point: linear in practice, no recursion depth.
  const char* starMask = nullptr;
  const char* starName = nullptr;
  while (*name) {
    if (*mask == '*') {
      starMask = ++mask;
      starName = name;
    } else if (*mask == '?' || (*mask && fold(*mask) == fold(*name))) {
      ++mask;
      ++name;
    } else if (starMask) {
      mask = starMask;
      name = ++starName;
    } else {
      return false;
    }
  }
  while (*mask == '*') ++mask;
  // "name.*" also matches "name", as on Windows.
  if (mask[0] == '.' && mask[1] == '*' && mask[2] == 0) return true;
  return *mask == 0;
}

}  // namespace

bool matchesMask(const std::string& name, const std::string& mask) {
  if (mask == "*.*" || mask == "*") return true;
  return matchFrom(name.c_str(), mask.c_str());
}

std::vector<std::string> splitMasks(const std::string& masks) {
  std::vector<std::string> pieces;
  std::string piece;
  for (char c : masks) {
    if (c == ';') {
      if (!piece.empty()) pieces.push_back(piece);
      piece.clear();
    } else {
      piece += c;
    }
  }
  if (!piece.empty()) pieces.push_back(piece);
  return pieces;
}

bool matchesAnyMask(const std::string& name, const std::string& masks) {
  for (const std::string& mask : splitMasks(masks))
    if (matchesMask(name, mask)) return true;
  return false;
}

bool lessFileName(const std::string& a, const std::string& b) {
  size_t n = a.size() < b.size() ? a.size() : b.size();
  for (size_t i = 0; i < n; ++i)
    if (fold(a[i]) != fold(b[i])) return fold(a[i]) < fold(b[i]);
  if (a.size() != b.size()) return a.size() < b.size();
  return a < b;
}
