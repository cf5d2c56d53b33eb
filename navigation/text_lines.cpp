// The line reader shared by the scanner and the searches.
#include "navigation/text_lines.h"

bool LineReader::next(std::string_view* line, int32_t* number) {
  if (offset_ >= text_.size()) return false;
  size_t end = offset_;
  while (end < text_.size() && !isLineEnd(text_[end])) ++end;
  *line = text_.substr(offset_, end - offset_);
  *number = ++number_;
  offset_ = end + lineEndLength(text_, end);
  return true;
}
