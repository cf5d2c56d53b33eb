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
  FILE* file = std::tmpfile();
  if (!file) return 0;
  std::fwrite(data, 1, size, file);
  std::rewind(file);
  Tableau<String> table;
  if (table.fRead(file)) {
    FILE* out = std::tmpfile();
    if (out) {
      table.fWrite(out);
      std::fclose(out);
    }
  }
  std::fclose(file);
  return 0;
}
