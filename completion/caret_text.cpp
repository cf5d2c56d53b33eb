// Words around the caret and editor file names.
#include "completion/caret_text.h"

#include <algorithm>

namespace {

constexpr size_t kMaxWordAtCursor = 255;

}  // namespace

bool isWordCharacter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

std::string_view wordBeforeCaret(std::string_view line, int32_t column) {
  if (column <= 1 || static_cast<size_t>(column - 1) > line.size()) return {};
  size_t end = static_cast<size_t>(column - 1);
  size_t start = end;
  while (start > 0 && isWordCharacter(line[start - 1])) --start;
  return line.substr(start, end - start);
}

std::string wordAtCursor(std::string_view line, int32_t column) {
  if (column < 1 || static_cast<size_t>(column) > line.size()) return "";
  size_t caret = static_cast<size_t>(column - 1);
  size_t start = caret;
  while (start > 0 && isWordCharacter(line[start - 1])) --start;
  size_t end = caret;
  while (end < line.size() && isWordCharacter(line[end])) ++end;
  return std::string(line.substr(start, std::min(end - start, kMaxWordAtCursor)));
}

std::string editorFileName(const std::string& name) {
  size_t colon = name.size() > 2 ? name.find(':', 2) : std::string::npos;
  return colon == std::string::npos ? name : name.substr(0, colon);
}

std::string formatWithoutArguments(std::string_view format) {
  std::string text;
  text.reserve(format.size());
  for (size_t i = 0; i < format.size(); ++i) {
    text += format[i];
    if (format[i] == '%' && i + 1 < format.size() && format[i + 1] == '%') ++i;
  }
  return text;
}
