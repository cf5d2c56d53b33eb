// Reads fuzzed typed dates: whatever is typed, the year stays 1900 plus a
// year modulo 100, and the fields not typed come from the current date.
#include <cstddef>
#include <cstdint>
#include <string>

#include "tasks/date_entry.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  SystemTime date = readUserDate(std::string(reinterpret_cast<const char*>(data), size));
  if (date.year < 1801 || date.year > 2099) __builtin_trap();
  return 0;
}
