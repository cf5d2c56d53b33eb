// Text-mode lines, tokens and comma fields of resource and version scripts.
#include "rcgen/rc_line_fields.h"

bool TextModeLines::next(std::string_view* line) {
  if (at_ >= text_.size()) return false;
  size_t begin = at_;
  size_t characters = 0;
  while (at_ < text_.size()) {
    char c = text_[at_++];
    ++characters;
    // CR LF is one line end, as text-mode reading gives it; a lone CR ends a
    // line too, so that scripts with old Mac line ends keep their lines apart.
    if (c == '\r' && at_ < text_.size() && text_[at_] == '\n') ++at_;
    if (c == '\r' || c == '\n' || (limit_ != kNoLineLimit && characters == limit_)) break;
  }
  *line = text_.substr(begin, at_ - begin);
  return true;
}

std::string_view withoutLineEnd(std::string_view line) {
  if (line.size() >= 2 && line.substr(line.size() - 2) == "\r\n") return line.substr(0, line.size() - 2);
  if (!line.empty() && static_cast<unsigned char>(line.back()) < 32) line.remove_suffix(1);
  return line;
}

size_t firstToken(std::string_view text, size_t from, std::string* token) {
  size_t start = from;
  while (start < text.size() && (text[start] == ' ' || text[start] == '\t')) ++start;
  size_t end = start;
  while (end < text.size() && static_cast<unsigned char>(text[end]) > 32) ++end;
  token->assign(text.substr(start, end - start));
  return end;
}

std::string commaField(std::string_view line, int n) {
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
  std::string_view field = line.substr(start, end - start);
  if (field.empty() || field[0] != '"') return std::string(field);
  size_t lastQuote = field.rfind('"');
  return lastQuote == 0 ? std::string() : std::string(field.substr(1, lastQuote - 1));
}

std::string memberName(const std::string& identifier) {
  if (identifier.size() >= 5 && identifier[3] == '_') return identifier.substr(4);
  return identifier;
}

bool startsWith(std::string_view text, std::string_view prefix) { return text.substr(0, prefix.size()) == prefix; }
