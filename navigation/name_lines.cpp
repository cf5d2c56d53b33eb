// The name is sought by its least common byte, which memchr finds far faster
// than any byte-by-byte loop; line numbers are counted only up to the lines that hold it.
#include "navigation/name_lines.h"

#include <cstring>

#include "navigation/text_lines.h"

namespace {

// Line ends in [from, to), both line starts, in branch-free loops that the
// compiler vectorises. Texts without CR or NUL need only count LF.
int32_t countLineEnds(const char* from, const char* to, bool newlinesOnly) {
  if (from == to) return 0;
  int32_t count = 0;
  if (newlinesOnly) {
    for (const char* p = from; p < to; ++p) count += *p == '\n';
    return count;
  }
  // An LF just after a CR closes the CR's line; from is a line start, so no pair straddles it.
  count = isLineEnd(*from) ? 1 : 0;
  for (const char* p = from + 1; p < to; ++p)
    count += (*p == '\r') | (*p == '\0') | ((*p == '\n') & (p[-1] != '\r'));
  return count;
}

// How often a byte appears in C and C++ source, roughly: blanks and common
// lower-case letters most, capitals, digits and bytes above 127 least.
int commonness(unsigned char c) {
  static const char kLetters[] = "etaoinsrhldcumfpgwybvkxjqz";
  if (c == ' ') return 255;
  if (c == '\t') return 200;
  if (c >= 'a' && c <= 'z') return 250 - 8 * static_cast<int>(std::strchr(kLetters, c) - kLetters);
  if (c != 0 && std::strchr("(){};,=*&.-+>", c)) return 150;
  if (c == '_') return 70;
  if (c >= '0' && c <= '9') return 60;
  if (c >= 'A' && c <= 'Z') return 40;
  return c >= 128 ? 10 : 80;
}

}  // namespace

NameLines::NameLines(std::string name) : name_(std::move(name)) {
  for (size_t i = 1; i < name_.size(); ++i)
    if (commonness(static_cast<unsigned char>(name_[i])) < commonness(static_cast<unsigned char>(name_[rareAt_])))
      rareAt_ = i;
}

const char* NameLines::find(const char* from, const char* end) const {
  const size_t length = name_.size();
  if (static_cast<size_t>(end - from) < length) return nullptr;
  const char rare = name_[rareAt_];
  const char* scan = from + rareAt_;
  const char* scanEnd = end - (length - 1 - rareAt_);
  while (scan < scanEnd) {
    const char* found = static_cast<const char*>(std::memchr(scan, rare, static_cast<size_t>(scanEnd - scan)));
    if (!found) return nullptr;
    const char* at = found - rareAt_;
    if (std::memcmp(at, name_.data(), length) == 0) return at;
    scan = found + 1;
  }
  return nullptr;
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
  if (text.empty()) return true;
  const char* begin = text.data();
  const char* end = begin + text.size();
  const bool newlinesOnly =
      std::memchr(begin, '\r', text.size()) == nullptr && std::memchr(begin, '\0', text.size()) == nullptr;

  const char* from = begin;     // a line start: the search resumes here
  const char* counted = begin;  // a line start whose number is `number`
  int32_t number = 1;
  while (const char* hit = find(from, end)) {
    const char* start = hit;
    while (start > from && !isLineEnd(start[-1])) --start;
    number += countLineEnds(counted, start, newlinesOnly);
    const char* stop = hit + name_.size();
    while (stop < end && !isLineEnd(*stop)) ++stop;
    if (!visitor(std::string_view(start, static_cast<size_t>(stop - start)), number)) return false;
    if (stop == end) break;
    from = stop + lineEndLength(text, static_cast<size_t>(stop - begin));
    counted = from;
    ++number;
  }
  return true;
}
