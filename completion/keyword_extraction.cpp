// Extraction of keywords from the definition lines of a source file.
#include "completion/keyword_extraction.h"

#include <string_view>

#include "completion/read_lines.h"
#include "foundation/os.h"
#include "foundation/text_encoding.h"

namespace {

// Longest text of one read source line; a longer line goes on as the next line.
constexpr size_t kSourceLineText = 1022;

bool isBlank(char c) { return c == ' ' || c == '\t'; }

// Return types put "*" and "&" before a name; control characters and blanks may too.
std::string_view skipMarks(std::string_view text) {
  while (!text.empty() && (static_cast<unsigned char>(text.front()) <= ' ' || text.front() == '*' ||
                           text.front() == '&'))
    text.remove_prefix(1);
  return text;
}

std::string_view lastToken(std::string_view text) {
  size_t start = text.size();
  while (start > 0 && !isBlank(text[start - 1])) --start;
  return text.substr(start);
}

struct Definition {
  std::string_view className;
  std::string_view word;
};

// A definition starts at column 0, is no label, comment or directive, is not a
// declaration ended by ";" and has its "(" after the first character.
bool readDefinition(std::string_view line, Definition* definition) {
  if (line.empty() || static_cast<unsigned char>(line.front()) <= ' ') return false;
  if (line.front() == ':' || line.front() == '/' || line.front() == '#' || line.back() == ';') return false;
  size_t paren = line.find('(');
  if (paren == std::string_view::npos || paren == 0) return false;
  std::string_view head = line.substr(0, paren);
  // "name (" has the same name as "name(".
  while (!head.empty() && isBlank(head.back())) head.remove_suffix(1);
  size_t scope = head.find("::");
  if (scope != std::string_view::npos && scope > 0) {
    definition->className = skipMarks(lastToken(head.substr(0, scope)));
    definition->word = skipMarks(head.substr(scope + 2));
  } else {
    definition->className = {};
    definition->word = skipMarks(lastToken(head));
  }
  return true;
}

}  // namespace

bool keywordFilePathFor(const std::string& sourcePath, std::string* keywordPath) {
  size_t nameStart = sourcePath.find_last_of("\\/");
  nameStart = nameStart == std::string::npos ? 0 : nameStart + 1;
  size_t dot = sourcePath.rfind('.');
  if (dot == std::string::npos || dot < nameStart) return false;
  *keywordPath = sourcePath.substr(0, dot + 1) + "kwd";
  return true;
}

std::string extractKeywords(std::string_view sourceText) {
  std::string keywords;
  std::string lastClass;
  forEachReadLine(sourceText, kSourceLineText, [&](std::string_view line) {
    while (!line.empty() && static_cast<unsigned char>(line.back()) <= ' ') line.remove_suffix(1);
    Definition definition;
    if (!readDefinition(line, &definition) || definition.word.empty()) return;
    if (!definition.className.empty() && definition.className != lastClass) {
      lastClass = std::string(definition.className);
      keywords += lastClass + '\n';
    }
    keywords.append(definition.word.data(), definition.word.size());
    keywords += '\n';
  });
  return keywords;
}

bool extractKeywordFile(const std::string& sourcePath, std::string* keywordPath, std::string* err) {
  std::string path;
  if (!keywordFilePathFor(sourcePath, &path)) {
    if (err) *err = sourcePath + ": the file name has no extension to replace by .kwd";
    return false;
  }
  std::string bytes;
  std::string decoded;
  if (!os().readFile(sourcePath, &bytes, err)) return false;
  if (!os().writeTextFileAtomic(path, extractKeywords(textOf(bytes, &decoded)), err)) return false;
  *keywordPath = path;
  return true;
}
