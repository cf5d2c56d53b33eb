// The keyword completion page's controls and commands.
#include "completion/completion_page.h"

#include "completion/keyword_file_commands.h"

std::vector<PageControl> CompletionPage::controls() {
  return {
      checkControl(1010, "Activate keyword completion", &enabled_),
      keyControl(1011, "Choose a new key code", &keyText_),
      listControl(1012, "Select a keyword file", &rows_, &selected_),
      buttonControl(kAddButton, "Add a new keyword file"),
      buttonControl(kExtractButton, "Extract a keyword file from a text file and add it"),
      buttonControl(kRemoveButton, "Remove selected keyword file"),
  };
}

void CompletionPage::show() {
  enabled_ = engine_.enabled;
  keyCode_ = engine_.keyCode;
  keyText_ = engine_.textCode;
  showFiles(-1);
}

void CompletionPage::showFiles(int32_t selected) {
  rows_ = engine_.files;
  selected_ = selected < static_cast<int32_t>(rows_.size()) ? selected : static_cast<int32_t>(rows_.size()) - 1;
}

void CompletionPage::changed(int32_t id) {
  if (id == kRemoveButton && selected_ >= 0 && removeKeywordFile(engine_, static_cast<size_t>(selected_)))
    showFiles(selected_);
  if (id != 1012) modified = true;
}

void CompletionPage::keyCaptured(int32_t, uint32_t code, const std::string& text) {
  keyCode_ = static_cast<int32_t>(code);
  keyText_ = text;
  modified = true;
}

void CompletionPage::addFile(const std::string& path) {
  addKeywordFile(engine_, path);
  showFiles(static_cast<int32_t>(engine_.files.size()) - 1);
  modified = true;
}

bool CompletionPage::extractFrom(const std::string& sourcePath) {
  std::string keywordPath;
  std::string err;
  if (!extractAndAddKeywordFile(engine_, sourcePath, &keywordPath, &err)) return false;
  showFiles(static_cast<int32_t>(engine_.files.size()) - 1);
  modified = true;
  return true;
}

void CompletionPage::store() {
  engine_.enabled = enabled_;
  engine_.keyCode = keyCode_;
  engine_.textCode = keyText_;
  engine_.writeSettings();
}
