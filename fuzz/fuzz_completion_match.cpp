// Completes the word before a caret against keywords read from a fuzzed
// keyword file: the word is a piece of the line made of word characters, and
// the caret moves by exactly the text inserted.
#include <fuzzer/FuzzedDataProvider.h>

#include <cstddef>
#include <cstdint>
#include <string>

#include "completion/caret_text.h"
#include "completion/completion_command.h"
#include "completion/completion_engine.h"
#include "foundation/os.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  FuzzedDataProvider input(data, size);
  int32_t column = input.ConsumeIntegralInRange<int32_t>(-2, 600);
  std::string line = input.ConsumeRandomLengthString(1024);
  std::string keywords = input.ConsumeRemainingBytesAsString();

  std::string_view word = wordBeforeCaret(line, column);
  if (!word.empty() && (column < 2 || static_cast<size_t>(column - 1) > line.size() ||
                        line.compare(static_cast<size_t>(column - 1) - word.size(), word.size(), word) != 0))
    __builtin_trap();
  for (char c : word)
    if (!isWordCharacter(c)) __builtin_trap();

  const std::string path = "fuzz_completion_match.kwd";
  if (!os().writeFile(path, keywords, nullptr)) return 0;
  CompletionEngine engine;
  engine.files = {path};
  std::string err;
  engine.load(&err);
  CaretCompletion outcome = completeAtCaret(engine, line, column);
  if (!outcome.insertText.empty() && outcome.caretColumn != column + static_cast<int32_t>(outcome.insertText.size()))
    __builtin_trap();
  return 0;
}
