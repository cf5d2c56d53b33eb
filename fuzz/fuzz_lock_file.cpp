// Feeds arbitrary bytes to the lock file reader and, as a filter list, to the
// name matching of the groupware scans: the holder must be a clean prefix.
#include <cstdint>
#include <cstdlib>
#include <string>

#include "foundation/file_mask.h"
#include "groupware/lock_file.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::string bytes(reinterpret_cast<const char*>(data), size);
  std::string holder = lockHolderOf(bytes);
  if (holder.size() > kMaxUserName || bytes.compare(0, holder.size(), holder) != 0) std::abort();
  if (holder.find_first_of(std::string("\0\r\n", 3)) != std::string::npos) std::abort();
  size_t line = 0;
  std::string reason;
  if (lockRecordIsSound(bytes, &line, &reason)) {
    if (holder.empty() || bytes.find(holder) != 0) std::abort();
    for (unsigned char c : holder)
      if (c < 32 || c == 127) std::abort();
  } else if (line == 0 || reason.empty()) {
    std::abort();
  }
  for (const char* name : {"main.cpp", "README", ".profile", "a.b.c", ""}) matchesAnyMask(name, bytes);
  return 0;
}
