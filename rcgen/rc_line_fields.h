// The line-level reading shared by the resource script reader and the version
// stamping: text-mode lines, tokens, comma fields and member names.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// The lines of a text as a text-mode stream reads them: CR LF and a lone CR
// count as one line end each (the last line may have none). With a limit, a
// longer line comes out in pieces of at most `limit` characters, a line end
// counting as one, as a fixed line buffer would read it. Each line is a view
// into the text, its line end included as stored, so that reading a large
// script copies nothing.
constexpr size_t kNoLineLimit = 0;
class TextModeLines {
 public:
  TextModeLines(std::string_view text, size_t limit) : text_(text), limit_(limit) {}
  // False after the last line.
  bool next(std::string_view* line);

 private:
  std::string_view text_;
  size_t limit_;
  size_t at_ = 0;
};

// Removes the line end, or else the last character when its code is below 32
// (one character only).
std::string_view withoutLineEnd(std::string_view line);

// The first token of `text` from `from`: blanks and tabs skipped, then the run
// of characters above code 32 (bytes above 127 included). Returns the position
// just past the token, from which the next token can be taken.
size_t firstToken(std::string_view text, size_t from, std::string* token);
inline std::string firstToken(std::string_view text) {
  std::string token;
  firstToken(text, 0, &token);
  return token;
}

// Field n (from 0) of a line split at commas outside double quotes. Leading
// blanks and backspaces are skipped, tabs are not. A field that then opens
// with a quote gives the text up to its last quote; any other field is given
// raw, trailing blanks included. A field past the end of the line is empty.
std::string commaField(std::string_view line, int n);

// IDC_NAME gives NAME: the first four characters go when the fourth is "_"
// and at least one character follows; any other identifier is kept whole.
std::string memberName(const std::string& identifier);

bool startsWith(std::string_view text, std::string_view prefix);
