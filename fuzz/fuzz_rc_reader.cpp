// Fuzzes the resource script reader with the emitter behind it: any bytes must
// give class text without a crash, an overflow or an unterminated file frame.
#include <cstddef>
#include <cstdint>
#include <string>

#include "rcgen/rc_class_emitter.h"
#include "rcgen/rc_script_reader.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  RcUnitText unit;
  emitUnitOpening("", &unit);
  readRcScript(std::string(reinterpret_cast<const char*>(data), size), &unit);
  emitUnitClosing("", &unit);
  const std::string closing = "\n#endif\n";
  if (unit.header.size() < closing.size() || unit.header.compare(unit.header.size() - closing.size(), closing.size(), closing) != 0)
    __builtin_trap();
  return 0;
}
