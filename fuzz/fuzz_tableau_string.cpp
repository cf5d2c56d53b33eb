// Feeds arbitrary bytes to Tableau<String>::fRead and writes back what was read.
#include <cstddef>
#include <cstdint>
#include <cstdio>

#include "foundation/alert.h"
#include "foundation/kstring.h"
#include "foundation/tableau.h"

namespace {

class SilentAlerts : public AlertHandler {
 public:
  int show(const std::string&, const std::string&, unsigned) override { return kAnswerOk; }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static SilentAlerts silent;
  setAlertHandler(&silent);
  ByteStream file(std::string(reinterpret_cast<const char*>(data), size));
  Tableau<String> table;
  if (table.fRead(file)) {
    ByteStream out;
    table.fWrite(out);
  }
  return 0;
}
