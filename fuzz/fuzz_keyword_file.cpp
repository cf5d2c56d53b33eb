// Feeds arbitrary bytes to the keyword file reader and checks what every entry must be.
#include <cstdint>
#include <cstdlib>
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
  return 0;
}
