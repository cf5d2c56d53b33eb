// Feeds arbitrary bytes to the keyword file reader and checks what every entry must be.
#include <cstdint>
#include <algorithm>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "completion/keyword_file.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::string_view bytes(reinterpret_cast<const char*>(data), size);
  std::vector<KeywordEntry> entries;
  parseKeywordFile(bytes, &entries);
  for (const KeywordEntry& entry : entries) {
    size_t length = entry.keyword.size() + (entry.description.empty() ? 0 : entry.description.size() + 1);
    if (length > kKeywordLineText || entry.keyword.find('\n') != std::string_view::npos ||
        entry.keyword.find('|') != std::string_view::npos || entry.keyword.data() < bytes.data() ||
        entry.keyword.data() + entry.keyword.size() > bytes.data() + bytes.size())
      std::abort();
  }
  // A file kesto accepts holds no zero byte and gives no entry without a
  // keyword, unless a line too long for the reader was cut into pieces.
  size_t line = 0;
  std::string reason;
  if (keywordFileIsSound(bytes, &line, &reason)) {
    if (bytes.find('\0') != std::string_view::npos) std::abort();
    size_t longest = 0;
    for (size_t start = 0; start <= bytes.size();) {
      size_t end = std::min(bytes.find('\n', start), bytes.size());
      longest = std::max(longest, end - start);
      start = end + 1;
    }
    for (const KeywordEntry& entry : entries)
      if (entry.keyword.empty() && longest <= kKeywordLineText) std::abort();
  } else if (line == 0 || reason.empty()) {
    std::abort();
  }
  return 0;
}
