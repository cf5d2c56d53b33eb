// The line-level reading shared by the resource script reader and the version
// stamping: text-mode lines, tokens, comma fields and member names.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

// The lines of a text as a text-mode stream reads them: CR LF and a lone CR
// count as one line end each, and each line keeps it as "\n" (the last line
// may have none). With a limit, a longer line comes out in pieces of at most
// `limit` bytes, as a fixed line buffer would read it.
constexpr size_t kNoLineLimit = 0;
std::vector<std::string> textModeLines(const std::string& text, size_t limit);

// Removes the last character when its code is below 32 (one character only).
void dropLineEnd(std::string* line);

// The first token of `text` from `from`: blanks and tabs skipped, then the run
// of characters above code 32 (bytes above 127 included). Returns the position
// just past the token, from which the next token can be taken.
size_t firstToken(const std::string& text, size_t from, std::string* token);
inline std::string firstToken(const std::string& text) {
  std::string token;
  firstToken(text, 0, &token);
  return token;
}

// Field n (from 0) of a line split at commas outside double quotes. Leading
// blanks and backspaces are skipped, tabs are not. A field that then opens
// with a quote gives the text up to its last quote; any other field is given
// raw, trailing blanks included. A field past the end of the line is empty.
std::string commaField(const std::string& line, int n);

// IDC_NAME gives NAME: the first four characters go when the fourth is "_"
// and at least one character follows; any other identifier is kept whole.
std::string memberName(const std::string& identifier);

bool startsWith(const std::string& text, const char* prefix);
