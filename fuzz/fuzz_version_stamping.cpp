// Fuzzes the version stamping of one script: any bytes must be stamped without
// a crash, and every line read must give exactly one line written.
#include <cstddef>
#include <cstdint>
#include <string>

#include "rcgen/rc_line_fields.h"
#include "rcgen/version_stamping.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::string text(reinterpret_cast<const char*>(data), size);
  int32_t build = size % 3 == 0 ? INT32_MAX - 1 : static_cast<int32_t>(size);
  std::string stamped = stampVersionText(text, &build);
  size_t lines = 0;
  for (char c : stamped) lines += c == '\n';
  TextModeLines read(text, kNoLineLimit);
  std::string_view line;
  while (read.next(&line)) --lines;
  if (lines != 0) __builtin_trap();
  return 0;
}
