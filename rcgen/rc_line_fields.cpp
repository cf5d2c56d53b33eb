// Text-mode lines, tokens and comma fields of resource and version scripts.
#include "rcgen/rc_line_fields.h"

#include <cstring>

std::vector<std::string> textModeLines(const std::string& text, size_t limit) {
  std::vector<std::string> lines;
  std::string line;
  for (size_t i = 0; i < text.size(); ++i) {
    char c = text[i];
    // CR LF is one line end, as text-mode reading gives it; a lone CR ends a
    // line too, so that scripts with old Mac line ends keep their lines apart.
    if (c == '\r') {
      if (i + 1 < text.size() && text[i + 1] == '\n') continue;
      c = '\n';
    }
    line += c;
    if (c == '\n' || (limit != kNoLineLimit && line.size() == limit)) {
      lines.push_back(line);
      line.clear();
    }
  }
  if (!line.empty()) lines.push_back(line);
  return lines;
}

void dropLineEnd(std::string* line) {
  if (!line->empty() && static_cast<unsigned char>(line->back()) < 32) line->pop_back();
}

size_t firstToken(const std::string& text, size_t from, std::string* token) {
  size_t start = from;
  while (start < text.size() && (text[start] == ' ' || text[start] == '\t')) ++start;
  size_t end = start;
  while (end < text.size() && static_cast<unsigned char>(text[end]) > 32) ++end;
  token->assign(text, start, end - start);
  return end;
}

std::string commaField(const std::string& line, int n) {
  size_t start = 0;
  bool quoted = false;
  for (int field = 0; field < n; ++start) {
    if (start >= line.size()) return "";
    if (line[start] == '"') quoted = !quoted;
    else if (line[start] == ',' && !quoted) ++field;
  }
  size_t end = start;
  for (; end < line.size(); ++end) {
    if (line[end] == '"') quoted = !quoted;
    else if (line[end] == ',' && !quoted) break;
  }
  while (start < end && (line[start] == ' ' || line[start] == '\b')) ++start;
  std::string field = line.substr(start, end - start);
  if (field.empty() || field[0] != '"') return field;
  size_t lastQuote = field.rfind('"');
  return lastQuote == 0 ? std::string() : field.substr(1, lastQuote - 1);
}

std::string memberName(const std::string& identifier) {
  if (identifier.size() >= 5 && identifier[3] == '_') return identifier.substr(4);
  return identifier;
}

bool startsWith(const std::string& text, const char* prefix) {
  return text.compare(0, std::strlen(prefix), prefix) == 0;
}
