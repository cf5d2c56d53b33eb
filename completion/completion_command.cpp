// Deciding what the completion key inserts and shows.
#include "completion/completion_command.h"

#include "completion/caret_text.h"
#include "completion/completion_engine.h"

namespace {

constexpr size_t kMaxCompletedWord = 99;

}  // namespace

CaretCompletion completeAtCaret(CompletionEngine& engine, std::string_view line, int32_t column) {
  CaretCompletion outcome{"", column, "", false};
  std::string_view word = wordBeforeCaret(line, column);
  if (word.empty() || word.size() > kMaxCompletedWord) return outcome;

  std::string text;
  CompletionMatch match = engine.complete(word, &text);
  if (match == kNoMatch) {
    outcome.statusText = "No available completion";
    return outcome;
  }
  outcome.completed = true;
  std::string description(engine.keyword(static_cast<size_t>(engine.lastMatch())).description);
  if (!text.empty()) {
    outcome.insertText = text;
    outcome.caretColumn = column + static_cast<int32_t>(text.size());
    outcome.statusText = match == kUniqueMatch ? "Completion done" : engine.statusText();
    engine.setLastShownDescription(description);
    return outcome;
  }
  // Nothing to add: the first request shows the matches, the next one the description.
  if (description == engine.lastShownDescription()) {
    outcome.statusText = description.empty() ? engine.statusText() : formatWithoutArguments(description);
  } else {
    engine.setLastShownDescription(description);
    outcome.statusText = engine.statusText();
  }
  return outcome;
}
