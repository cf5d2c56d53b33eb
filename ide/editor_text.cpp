// Text rules of the editor operations.
#include "ide/editor_text.h"

bool isWordCharacter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

std::string wordAtColumn(const std::string& line, int32_t column) {
  if (column < 1 || static_cast<size_t>(column) > line.size()) return "";
  size_t begin = static_cast<size_t>(column) - 1;
  while (begin > 0 && isWordCharacter(line[begin - 1])) --begin;
  size_t end = static_cast<size_t>(column) - 1;
  while (end < line.size() && static_cast<unsigned char>(line[end]) > 0x1F && isWordCharacter(line[end])) ++end;
  if (end - begin > kMaxCursorWord) end = begin + kMaxCursorWord;
  while (begin < end && static_cast<unsigned char>(line[begin]) < '!') ++begin;
  while (end > begin && static_cast<unsigned char>(line[end - 1]) < '!') --end;
  return line.substr(begin, end - begin);
}
