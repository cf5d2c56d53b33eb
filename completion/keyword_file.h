// The keyword file format: one entry a line, a keyword optionally followed by "|" and its description.
#pragma once

#include <string>
#include <string_view>
#include <vector>

struct KeywordEntry {
  std::string_view keyword;      // the line before the first "|", or the whole line
  std::string_view description;  // the text after the first "|"; empty without one
};

// Longest text of one read line; a longer line goes on as the next entry.
constexpr size_t kKeywordLineText = 398;

// Appends the entries of a keyword file's bytes, in file order. The views point
// into bytes, which must outlive them. Lines end with LF or CR LF; trailing
// codes below 14 are dropped, trailing blanks kept; empty lines and lines that
// begin with "[" are skipped; text after a zero byte is ignored.
void parseKeywordFile(std::string_view bytes, std::vector<KeywordEntry>* entries);

// False, with the file's line (from 1) and the reason, for bytes that a
// keyword file never holds: a zero byte (a binary file chosen by mistake) or
// an entry with nothing before its "|". parseKeywordFile reads such bytes all
// the same, as the add-on always has; kesto refuses them.
bool keywordFileIsSound(std::string_view bytes, size_t* line, std::string* reason);
