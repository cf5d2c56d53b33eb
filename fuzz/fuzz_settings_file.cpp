// Feeds arbitrary text to the REGEDIT4 reader; whatever it accepts must write back and read the same.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "foundation/regedit_text.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  RegeditDocument document;
  std::string err;
  if (!parseRegedit(std::string(reinterpret_cast<const char*>(data), size), &document, &err)) return 0;
  RegeditDocument again;
  if (!parseRegedit(formatRegedit(document), &again, &err)) std::abort();
  if (formatRegedit(again) != formatRegedit(document)) std::abort();
  return 0;
}
