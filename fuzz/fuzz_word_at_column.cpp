// Feeds arbitrary editor lines and cursor columns to the word-at-cursor rule:
// the word must be a piece of the line, of word characters, and never too long.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "completion/caret_text.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size < 2) return 0;
  // The first two bytes are the column, little-endian, so that past-the-end columns come too.
  const int32_t column = static_cast<int32_t>(data[0] | (data[1] << 8)) - 1;
  const std::string line(reinterpret_cast<const char*>(data + 2), size - 2);
  const std::string word = wordAtCursor(line, column);
  if (word.size() > 255 || line.find(word) == std::string::npos) std::abort();
  for (char c : word)
    if (!isWordCharacter(c)) std::abort();
  return 0;
}
