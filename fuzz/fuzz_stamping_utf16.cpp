// Stamps UTF-16 scripts and writes them back as stamping does: the written
// bytes must read back as the stamped text, with CR LF line ends.
#include <cstddef>
#include <cstdint>
#include <string>

#include "foundation/text_encoding.h"
#include "rcgen/version_stamping.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size < 1) return 0;
  // The first byte picks the order, so that any bytes become a UTF-16 script.
  std::string bytes = data[0] & 1 ? "\xFF\xFE" : "\xFE\xFF";
  bytes.append(reinterpret_cast<const char*>(data + 1), size - 1);
  std::string decoded;
  TextEncoding encoding = TextEncoding::Bytes;
  int32_t build = static_cast<int32_t>(size);
  std::string stamped = stampVersionText(textOf(bytes, &decoded, &encoding), &build);
  std::string written = encodeText(stamped, encoding);
  std::string reread;
  std::string expected;
  expected.reserve(stamped.size() * 2);
  for (char c : stamped) {
    if (c == '\n') expected.push_back('\r');
    expected.push_back(c);
  }
  if (textOf(written, &reread) != expected) __builtin_trap();
  return 0;
}
