// Column-one definitions: a line filter that trusts the coding style, not a parser.
#include "navigation/function_scan.h"

#include <cstring>

#include "navigation/table_fill.h"
#include "navigation/text_lines.h"

namespace {

bool isWordByte(char c) { return signedCode(c) > 32; }

// A pointer or reference mark written against the name belongs to the type.
std::string withoutLeadingMarks(std::string_view text) {
  size_t start = 0;
  while (start < text.size() && (signedCode(text[start]) < 33 || text[start] == '*' || text[start] == '&')) ++start;
  return std::string(text.substr(start));
}

int compareFunctions(const void* slotA, const void* slotB) {
  const Fnc* a = *static_cast<Fnc* const*>(slotA);
  const Fnc* b = *static_cast<Fnc* const*>(slotB);
  // std::string compares as memcmp does: by unsigned bytes, upper case first.
  int byClass = a->className().compare(b->className());
  if (byClass != 0) return byClass;
  return a->name().compare(b->name());
}

}  // namespace

bool functionOnLine(std::string_view line, std::string* name, std::string* className) {
  if (line.empty() || signedCode(line[0]) < 33 || std::strchr(":/#", line[0])) return false;
  if (line.find(';') != std::string_view::npos) return false;
  size_t paren = line.find('(');
  if (paren == std::string_view::npos || paren == 0) return false;
  std::string_view head = line.substr(0, paren);

  size_t colons = head.find("::");
  if (colons != std::string_view::npos && colons > 0) {
    // The class is the word just before the first "::"; the rest of the head,
    // nested qualifiers included, is the name.
    size_t classStart = colons - 1;
    while (classStart > 0 && isWordByte(head[classStart - 1])) --classStart;
    *className = withoutLeadingMarks(head.substr(classStart, colons - classStart));
    *name = withoutLeadingMarks(head.substr(colons + 2));
  } else {
    // The last word of the head; a head ending in one blank keeps it.
    size_t nameStart = head.size() - 1;
    while (nameStart > 0 && isWordByte(head[nameStart - 1])) --nameStart;
    className->clear();
    *name = withoutLeadingMarks(head.substr(nameStart));
  }
  return !name->empty();
}

void scanFunctions(std::string_view text, Tableau<Fnc>* list) {
  LineReader reader(text);
  std::string_view line;
  int32_t number = 0;
  std::string name;
  std::string className;
  std::vector<std::unique_ptr<Fnc>> found;
  while (reader.next(&line, &number))
    if (functionOnLine(line, &name, &className)) found.push_back(std::make_unique<Fnc>(name, className, number));
  appendAll(list, &found);
}

void sortFunctions(Tableau<Fnc>* list) { list->sort(compareFunctions); }
