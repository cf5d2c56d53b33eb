// Changing the keyword file list, with the questions and refusals the user sees.
#include "completion/keyword_file_commands.h"

#include "completion/completion_engine.h"
#include "completion/keyword_extraction.h"
#include "foundation/alert.h"

namespace {

// After a change of the list. A file that cannot be read stays listed and is
// skipped, as at start-up: the user may mount or restore it later.
void reload(CompletionEngine& engine) {
  std::string skipped;
  engine.load(&skipped);
}

}  // namespace

void addKeywordFile(CompletionEngine& engine, const std::string& path) {
  engine.files.push_back(path);
  reload(engine);
}

bool extractAndAddKeywordFile(CompletionEngine& engine, const std::string& sourcePath, std::string* keywordPath,
                              std::string* err) {
  if (!extractKeywordFile(sourcePath, keywordPath, err)) {
    alert("Impossible to extract keywords", "Warning");
    return false;
  }
  addKeywordFile(engine, *keywordPath);
  return true;
}

bool removeKeywordFile(CompletionEngine& engine, size_t index) {
  if (index >= engine.files.size()) return false;
  if (alert("Ok to remove this file ?", "Warning", kAlertYesNo) != kAnswerYes) return false;
  engine.files.erase(engine.files.begin() + static_cast<std::ptrdiff_t>(index));
  reload(engine);
  return true;
}
