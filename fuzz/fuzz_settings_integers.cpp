// Reads integers and lists from settings whose texts are fuzzed: a text that
// does not start with a number reads as the default, and no count makes a
// list longer than the store allows.
#include <fuzzer/FuzzedDataProvider.h>

#include <cctype>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "foundation/settings.h"

namespace {

// Every value of every key reads as the one fuzzed text; a key lists a few of them.
class FuzzedBackend : public SettingsBackend {
 public:
  std::string text;
  std::vector<SettingsValue> entries;

  bool read(const std::string&, const std::string&, size_t maxBytes, std::string* out) override {
    if (text.size() + 1 > maxBytes) return false;
    *out = text;
    return true;
  }
  bool write(const std::string&, const std::string&, const std::string&) override { return false; }
  bool list(const std::string&, std::vector<SettingsValue>* values) override {
    *values = entries;
    return true;
  }
  std::vector<std::string> subkeys(const std::string&) override { return {}; }
};

bool startsWithNumber(const std::string& text) {
  size_t i = 0;
  while (i < text.size() && std::isspace(static_cast<unsigned char>(text[i]))) ++i;
  if (i < text.size() && (text[i] == '+' || text[i] == '-')) ++i;
  return i < text.size() && std::isdigit(static_cast<unsigned char>(text[i]));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  FuzzedDataProvider input(data, size);
  FuzzedBackend backend;
  backend.text = input.ConsumeRandomLengthString(4096);
  for (int count = input.ConsumeIntegralInRange(0, 8); count > 0; --count)
    backend.entries.push_back({input.ConsumeRandomLengthString(16), input.ConsumeRandomLengthString(64)});
  SettingsStore store;
  store.setBackend(&backend);
  const int32_t fallback = -7;
  int32_t value = store.readInteger("Fuzz", "Value", fallback);
  if (!startsWithNumber(backend.text) && value != fallback) __builtin_trap();
  if (store.readList("Fuzz", "List").size() > 65535) __builtin_trap();
  return 0;
}
