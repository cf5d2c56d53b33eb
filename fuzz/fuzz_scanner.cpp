// Source bytes into the functions and includes scans and the line filters. The
// first byte picks a name length and the menu's column height; the name
// follows; the rest is the source. The name search must see exactly the lines
// that the plain line reader sees holding the name.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "navigation/function_scan.h"
#include "navigation/include_scan.h"
#include "navigation/line_match.h"
#include "navigation/name_lines.h"
#include "navigation/navigation_menus.h"
#include "navigation/text_lines.h"

namespace {

using Lines = std::vector<std::pair<int32_t, std::string>>;

Lines linesHolding(const std::string& text, const std::string& name) {
  Lines lines;
  LineReader reader(text);
  std::string_view line;
  int32_t number = 0;
  bool possible = name.find_first_of(std::string("\r\n\0", 3)) == std::string::npos;
  while (possible && reader.next(&line, &number))
    if (line.find(name) != std::string_view::npos) lines.emplace_back(number, std::string(line));
  return lines;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size == 0) return 0;
  size_t nameLength = data[0] % 8;
  int32_t columnHeight = data[0] / 8;
  if (nameLength > size - 1) nameLength = size - 1;
  std::string name(reinterpret_cast<const char*>(data + 1), nameLength);
  std::string text(reinterpret_cast<const char*>(data + 1 + nameLength), size - 1 - nameLength);

  Tableau<Fnc> functions;
  scanFunctions(text, &functions);
  sortFunctions(&functions);
  describeMenu(functionsMenu(functions, columnHeight));
  Tableau<String> includes;
  scanIncludes(text, &includes);
  for (int32_t i = 0; i < includes.count(); ++i)
    if (includes[i]->length() >= kIncludeNameSlot) std::abort();

  Lines found;
  std::string methodText;
  NameLines(name).visit(text, [&](std::string_view line, int32_t number) {
    found.emplace_back(number, std::string(line));
    matchesFunctionLine(line, name);
    matchesMethodLine(line, name, &methodText);
    matchesClassLine(line, name);
    matchesReferenceLine(line, name);
    return true;
  });
  if (found != linesHolding(text, name)) std::abort();
  return 0;
}
