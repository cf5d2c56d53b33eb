// The HTML generation page's controls and storing.
#include "html/html_page.h"

std::vector<PageControl> HtmlPage::controls() {
  return {
      checkControl(1010, "Enable HTML generation for the project", &fields_.htmlEnabled),
      checkControl(1012, "Generate the documentation after each successful Make", &fields_.htmlAuto),
      textControl(1014, "Set filters of the documented files", &fields_.htmlFilters, kMaxFiltersLength),
  };
}

void HtmlPage::show() { fields_ = project_ ? *project_ : ProjectOptions(); }

void HtmlPage::store() {
  if (!project_) return;
  project_->htmlEnabled = fields_.htmlEnabled;
  project_->htmlAuto = fields_.htmlAuto;
  project_->htmlFilters = fields_.htmlFilters;
}
