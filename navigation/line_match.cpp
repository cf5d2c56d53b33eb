// Line filters in the style of the functions scan, shared by QuickFind and the cross reference.
#include "navigation/line_match.h"

#include <cstring>

#include "navigation/text_lines.h"

namespace {

constexpr size_t npos = std::string_view::npos;

bool separatorAt(std::string_view line, size_t at) { return at >= line.size() || !isIdentifierChar(line[at]); }

// The line's start counts as a separator before the name.
bool standsAlone(std::string_view line, size_t at, size_t length) {
  return (at == 0 || separatorAt(line, at - 1)) && separatorAt(line, at + length);
}

bool opensDefinition(std::string_view line) {
  return !line.empty() && signedCode(line[0]) > 32 && !std::strchr("/#:", line[0]) && line.find(';') == npos;
}

}  // namespace

bool isIdentifierChar(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

bool matchesFunctionLine(std::string_view line, std::string_view name) {
  if (!opensDefinition(line)) return false;
  size_t at = line.find(name);
  size_t paren = line.find('(');
  return at != npos && paren != npos && at < paren && standsAlone(line, at, name.size());
}

bool matchesMethodLine(std::string_view line, std::string_view name, std::string* text) {
  if (!opensDefinition(line)) return false;
  size_t at = line.find(name);
  size_t paren = line.find('(');
  size_t colons = line.find("::");
  if (at == npos || paren == npos || colons == npos || at >= paren || colons >= at) return false;
  if (!standsAlone(line, at, name.size())) return false;
  size_t classStart = colons;
  while (classStart > 0 && isIdentifierChar(line[classStart - 1])) --classStart;
  text->assign(line.substr(classStart, at + name.size() - classStart));
  return true;
}

bool matchesClassLine(std::string_view line, std::string_view name) {
  if (line.size() <= 6 || line.compare(0, 5, "class") != 0 || !separatorAt(line, 5)) return false;
  if (line.find(';') != npos) return false;
  size_t at = line.find(name);
  return at != npos && standsAlone(line, at, name.size());
}

bool matchesReferenceLine(std::string_view line, std::string_view name) {
  if (line.empty() || signedCode(line[0]) >= 33) return false;
  size_t at = line.find(name);
  return at != npos && standsAlone(line, at, name.size());
}
