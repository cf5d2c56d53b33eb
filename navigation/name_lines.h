// Finds the lines of a text that contain a name, without reading the text line
// by line: the name is searched across the whole text and only the lines that
// hold it are cut out and numbered. This is what keeps the searches of a large
// tree as fast as a plain text search.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

class NameLines {
 public:
  // Visits a line, numbered as LineReader numbers it; false stops the visit.
  using Visitor = std::function<bool(std::string_view line, int32_t number)>;

  explicit NameLines(std::string name);
  NameLines(const NameLines&) = delete;
  NameLines& operator=(const NameLines&) = delete;

  const std::string& name() const { return name_; }

  // Visits, in order, every line of text that contains the name (every line
  // when the name is empty, none when it holds a line end). False when a visit
  // stopped it.
  bool visit(std::string_view text, const Visitor& visitor) const;

 private:
  // The next occurrence of the name in [from, end), or null.
  const char* find(const char* from, const char* end) const;

  std::string name_;
  size_t rareAt_ = 0;  // the position of the name's least common byte in source text
};
