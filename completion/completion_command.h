// The completion key's command on one editor line, as a pure function of the
// line, the caret and the engine, so that a host only reads and writes its editor.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

class CompletionEngine;

struct CaretCompletion {
  std::string insertText;  // to insert at the caret; empty for none
  int32_t caretColumn;     // where the caret goes afterwards (1-based)
  std::string statusText;  // for the status line; empty: leave it alone
  bool completed = false;  // some keyword matched the word before the caret
};

// Completes the word before the caret: a unique match completes at once,
// several complete as far as they agree and are listed, and a repeated request
// on a complete word shows its description. Updates the engine's last shown
// description; changes nothing when the caret is in column 1 or the word
// before it is empty or 100 characters or longer.
CaretCompletion completeAtCaret(CompletionEngine& engine, std::string_view line, int32_t column);
