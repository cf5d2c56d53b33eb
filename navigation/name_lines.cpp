// The name is sought with Horspool's shifts; line numbers are counted only up
// to the lines that hold it.
#include "navigation/name_lines.h"

#include <algorithm>
#include <cstring>

#include "navigation/text_lines.h"

namespace {

// Line ends in [from, to), both line starts. Texts without CR or NUL, the usual
// case, take the vectorised count.
int32_t countLineEnds(const char* from, const char* to, bool newlinesOnly) {
  if (newlinesOnly) return static_cast<int32_t>(std::count(from, to, '\n'));
  int32_t count = 0;
  for (const char* p = from; p < to; ++p) {
    // An LF just after a CR closes the CR's line; from is a line start, so no
    // pair straddles it.
    if (*p == '\r' || *p == '\0' || (*p == '\n' && !(p > from && p[-1] == '\r'))) ++count;
  }
  return count;
}

}  // namespace

NameLines::NameLines(std::string name) : name_(std::move(name)) {
  size_t length = name_.size();
  std::fill(std::begin(skip_), std::end(skip_), length);
  for (size_t i = 0; i + 1 < length; ++i) skip_[static_cast<unsigned char>(name_[i])] = length - 1 - i;
}

bool NameLines::visit(std::string_view text, const Visitor& visitor) const {
  if (name_.find_first_of(std::string_view("\r\n\0", 3)) != std::string::npos) return true;
  if (name_.empty()) {
    LineReader reader(text);
    std::string_view line;
    int32_t number = 0;
    while (reader.next(&line, &number))
      if (!visitor(line, number)) return false;
    return true;
  }
  const char* begin = text.data();
  const char* end = begin + text.size();
  const size_t length = name_.size();
  const char* pattern = name_.data();
  const unsigned char last = static_cast<unsigned char>(name_[length - 1]);
  const bool newlinesOnly =
      std::memchr(begin, '\r', text.size()) == nullptr && std::memchr(begin, '\0', text.size()) == nullptr;

  const char* from = begin;     // a line start: the search resumes here
  const char* counted = begin;  // a line start whose number is `number`
  int32_t number = 1;
  while (static_cast<size_t>(end - from) >= length) {
    const char* hit = nullptr;
    for (const char* at = from; at + length <= end; at += skip_[static_cast<unsigned char>(at[length - 1])]) {
      if (static_cast<unsigned char>(at[length - 1]) == last && std::memcmp(at, pattern, length - 1) == 0) {
        hit = at;
        break;
      }
    }
    if (!hit) break;
    const char* start = hit;
    while (start > from && !isLineEnd(start[-1])) --start;
    number += countLineEnds(counted, start, newlinesOnly);
    const char* stop = hit + length;
    while (stop < end && !isLineEnd(*stop)) ++stop;
    if (!visitor(std::string_view(start, static_cast<size_t>(stop - start)), number)) return false;
    if (stop == end) break;
    from = stop + lineEndLength(text, static_cast<size_t>(stop - begin));
    counted = from;
    ++number;
  }
  return true;
}
