// Reads integers and lists from settings whose texts are fuzzed: a text that
// does not start with a number reads as the default, and a list has as many
// entries as its count says, whatever its key holds.
#include <fuzzer/FuzzedDataProvider.h>

#include <cctype>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "foundation/settings.h"

namespace {

// Every value reads as the one fuzzed text but a list's count, which stays
// small so that each run stays short; a key lists a few fuzzed entries.
class FuzzedBackend : public SettingsBackend {
 public:
  std::string text;
  std::string count;
  std::vector<SettingsValue> entries;

  bool read(const std::string&, const std::string& name, size_t maxBytes, std::string* out) override {
    const std::string& value = name.compare(0, 2, "Nb") == 0 ? count : text;
    if (value.size() + 1 > maxBytes) return false;
    *out = value;
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
  int32_t count = input.ConsumeIntegralInRange<int32_t>(-5, 300);
  backend.count = std::to_string(count);
  backend.text = input.ConsumeRandomLengthString(4096);
  for (int left = input.ConsumeIntegralInRange(0, 8); left > 0; --left)
    backend.entries.push_back({input.ConsumeRandomLengthString(16), input.ConsumeRandomLengthString(64)});
  SettingsStore store;
  store.setBackend(&backend);
  const int32_t fallback = -7;
  int32_t value = store.readInteger("Fuzz", "Value", fallback);
  if (!startsWithNumber(backend.text) && value != fallback) __builtin_trap();
  std::vector<std::string> list = store.readList("Fuzz", "List");
  if (list.size() != static_cast<size_t>(count < 0 ? 0 : count)) __builtin_trap();
  return 0;
}
