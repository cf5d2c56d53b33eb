// Reads a fuzzed completion state (the description last shown, kept between
// runs of the command-line host) and repeats a request on a complete word.
#include <fuzzer/FuzzedDataProvider.h>

#include <cstddef>
#include <cstdint>
#include <string>

#include "completion/completion_command.h"
#include "completion/completion_engine.h"
#include "foundation/os.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  FuzzedDataProvider input(data, size);
  std::string description = input.ConsumeRandomLengthString(2048);
  std::string state = input.ConsumeRemainingBytesAsString();
  const std::string keywords = "fuzz_completion_state.kwd";
  const std::string statePath = "fuzz_completion_state.state";
  if (!os().writeFile(keywords, "printf|" + description + "\nprint\n", nullptr) ||
      !os().writeFile(statePath, state, nullptr))
    return 0;
  CompletionEngine engine;
  engine.files = {keywords};
  std::string err;
  engine.load(&err);
  std::string lastShown;
  if (!os().readFile(statePath, &lastShown, nullptr)) return 0;
  engine.setLastShownDescription(lastShown);
  for (int repeat = 0; repeat < 2; ++repeat) {
    CaretCompletion outcome = completeAtCaret(engine, "printf", 7);
    if (outcome.statusText.size() > CompletionEngine::kMaxStatusText) __builtin_trap();
  }
  return 0;
}
