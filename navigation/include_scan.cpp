// Lines that mention "#include", wherever the mention stands.
#include "navigation/include_scan.h"

#include "navigation/text_lines.h"

bool includeOnLine(std::string_view line, std::string* name) {
  if (line.find("#include") == std::string_view::npos) return false;
  size_t open = line.find('<');
  size_t close = std::string_view::npos;
  if (open != std::string_view::npos) {
    close = line.find('>', open + 1);
    if (close == std::string_view::npos) return false;
  } else {
    open = line.find('"');
    if (open == std::string_view::npos || open == 0) return false;
    // An unclosed quote runs to the end of the line.
    close = line.find('"', open + 1);
    if (close == std::string_view::npos) close = line.size();
  }
  size_t length = close - open - 1;
  if (length == 0) return false;
  if (length > kIncludeNameSlot - 1) length = kIncludeNameSlot - 1;
  name->assign(line.substr(open + 1, length));
  return true;
}

// An upper bound of the names text gives, so that the list grows once, not by its step.
int32_t includeMentions(std::string_view text) {
  int32_t count = 0;
  for (size_t at = text.find("#include"); at != std::string_view::npos; at = text.find("#include", at + 8)) ++count;
  return count;
}

void scanIncludes(std::string_view text, Tableau<String>* list) {
  list->reserve(list->count() + includeMentions(text));
  LineReader reader(text);
  std::string_view line;
  int32_t number = 0;
  std::string name;
  while (reader.next(&line, &number))
    if (includeOnLine(line, &name)) list->append(new String(name));
}
