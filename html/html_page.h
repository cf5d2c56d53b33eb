// The HTML generation page as a presenter: the open project's switches and
// filters for the documentation site.
#pragma once

#include "ide/option_page.h"
#include "ide/project_options.h"

class HtmlPage : public OptionPage {
 public:
  static constexpr size_t kMaxFiltersLength = 1999;

  // The project's options are borrowed; null when no project is open, and then
  // the page shows the project defaults, disabled, and stores nothing.
  explicit HtmlPage(ProjectOptions* project) : project_(project) {}

  std::vector<PageControl> controls() override;
  void show() override;
  void changed(int32_t) override { modified = true; }
  bool enabled(int32_t) const override { return project_ != nullptr; }
  void store() override;

 private:
  ProjectOptions* project_;
  ProjectOptions fields_;
};
