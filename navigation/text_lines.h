// Lines of a source text as every navigation scan reads them: CR, LF and NUL
// each end a line, and CR LF ends one line only.
#pragma once

#include <cstdint>
#include <string_view>

inline bool isLineEnd(char c) { return c == '\n' || c == '\r' || c == '\0'; }

// Bytes taken by the line end at `at`: 2 for CR LF, 1 otherwise, 0 past the text.
inline size_t lineEndLength(std::string_view text, size_t at) {
  if (at >= text.size()) return 0;
  return text[at] == '\r' && at + 1 < text.size() && text[at + 1] == '\n' ? 2 : 1;
}

// Reads the text line by line. The text must outlive the reader; the lines are
// views into it without their line ends. A final line without a line end is a
// line; an empty text has none.
class LineReader {
 public:
  explicit LineReader(std::string_view text) : text_(text) {}

  // False at the end of the text; otherwise the line and its number from 1.
  bool next(std::string_view* line, int32_t* number);

 private:
  std::string_view text_;
  size_t offset_ = 0;
  int32_t number_ = 0;
};

// The test that the scans make on a line's first character: the IDE's char is
// signed, so bytes above 127 count as below 33 as blanks and controls do.
inline int signedCode(char c) { return static_cast<signed char>(c); }
