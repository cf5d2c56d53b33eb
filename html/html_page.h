// The HTML generation page as a presenter: the open project's switches and
// filters for the documentation site.
#pragma once

#include "project/option_page.h"
#include "project/project_options.h"

// Without a project the page shows the project defaults.
class HtmlPage : public ProjectOptionPage {
 public:
  static constexpr size_t kMaxFiltersLength = 1999;

  explicit HtmlPage(ProjectOptions* project) : ProjectOptionPage(project) {}

  std::vector<PageControl> controls() override;
  void show() override;
  void store() override;

 private:
  ProjectOptions fields_;
};
