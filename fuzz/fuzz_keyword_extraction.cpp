// Feeds arbitrary source text to keyword extraction: every written name is one non-empty line.
#include <cstdint>
#include <cstdlib>
#include <string>

#include "completion/keyword_extraction.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::string keywords = extractKeywords(std::string(reinterpret_cast<const char*>(data), size));
  if (!keywords.empty() && (keywords.back() != '\n' || keywords.front() == '\n' ||
                            keywords.find("\n\n") != std::string::npos))
    std::abort();
  return 0;
}
