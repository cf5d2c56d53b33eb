// Lines of a text as a fixed-size line buffer reads them.
#pragma once

#include <algorithm>
#include <string_view>

// Calls onLine with each line of text, without its line end, in order. LF and
// CR LF end a line (as in text mode, the CR does not count towards the limit).
// A line longer than maxText arrives in pieces of maxText characters, each one
// a line of its own, as a buffer of maxText + 1 bytes reads it. A zero byte
// ends the line's text, as it ends a C string.
template <typename OnLine>
void forEachReadLine(std::string_view text, size_t maxText, OnLine onLine) {
  size_t start = 0;
  while (start < text.size()) {
    size_t end = text.find('\n', start);
    size_t next = end == std::string_view::npos ? text.size() : end + 1;
    if (end == std::string_view::npos) end = text.size();
    if (end > start && text[end - 1] == '\r' && end < text.size()) --end;
    std::string_view rest = text.substr(start, end - start);
    do {
      std::string_view piece = rest.substr(0, maxText);
      rest.remove_prefix(piece.size());
      onLine(piece.substr(0, piece.find('\0')));
    } while (!rest.empty());
    start = next;
  }
}
