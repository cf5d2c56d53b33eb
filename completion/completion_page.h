// The keyword completion page as a presenter: the switch and the key, stored
// when the page is, and the keyword file list, whose commands act at once.
#pragma once

#include <string>

#include "completion/completion_engine.h"
#include "project/option_page.h"

class CompletionPage : public OptionPage {
 public:
  static constexpr int32_t kAddButton = 1013;
  static constexpr int32_t kExtractButton = 1014;
  static constexpr int32_t kRemoveButton = 1015;

  explicit CompletionPage(CompletionEngine& engine) : engine_(engine) {}

  std::vector<PageControl> controls() override;
  void show() override;
  // The remove button asks before it removes the selected file.
  void changed(int32_t id) override;
  void keyCaptured(int32_t id, uint32_t code, const std::string& text) override;
  bool enabled(int32_t id) const override { return id != kRemoveButton || selected_ >= 0; }
  void store() override;

  // The add and extract buttons, once the host's file dialog gave a path.
  void addFile(const std::string& path);
  // False, after the box, when the keywords could not be extracted.
  bool extractFrom(const std::string& sourcePath);

 private:
  void showFiles(int32_t selected);

  CompletionEngine& engine_;
  bool enabled_ = true;
  int32_t keyCode_ = 0;
  std::string keyText_;
  std::vector<std::string> rows_;
  int32_t selected_ = -1;
};
