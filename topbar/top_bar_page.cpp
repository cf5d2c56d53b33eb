// The top screen bar page's controls, lenient check and storing.
#include "topbar/top_bar_page.h"

namespace {

bool outside(int32_t value, int32_t low, int32_t high) { return value < low || value > high; }

}  // namespace

std::vector<PageControl> TopBarPage::controls() {
  return {
      checkControl(1010, "Activate topmost screen bar", &fields_.enabled),
      numberControl(1011, "Set left margin in pixels", &fields_.leftMargin),
      numberControl(1012, "Set right margin in pixels", &fields_.rightMargin),
      checkControl(1013, "Hide top bar menu when Borland C++ iconizes", &fields_.hideWithIde),
      radioControl(1014, "Linear construction of top bar", &fields_.construction, 0),
      radioControl(1015, "Hierarchical construction of top bar", &fields_.construction, 1),
      radioControl(1016, "No menu in the top bar", &fields_.construction, 2),
      checkControl(1017, "Hide menus when project view is opened", &fields_.hideWithView),
      numberControl(1018, "Set number of most recently .h files in memory", &maxHeaders_),
      checkControl(1019, "Keep menu bar always on top", &fields_.alwaysOnTop),
      checkControl(1020, "Always open a new view when edit file", &fields_.editOtherView),
      numberControl(1021, "Set size of one column in the top bar menu", &fields_.menuSize),
      numberControl(1022, "Set number of most recently .IDE files in memory", &maxProjects_),
  };
}

void TopBarPage::show() {
  fields_ = settings_;
  // The open project's own construction is the one the bar follows.
  if (project_) {
    fields_.construction = project_->hierarchical;
    fields_.hideWithView = project_->hideWithView;
  }
  maxProjects_ = recent_.maxProjects;
  maxHeaders_ = recent_.maxHeaders;
  changes_ = TopBarPageChanges();
}

bool TopBarPage::check() {
  checkText_.clear();
  if (outside(fields_.leftMargin, -2048, 2048)) checkText_ += "Left margin must be between -2048 and 2048.\n";
  if (outside(fields_.rightMargin, -2048, 2048)) checkText_ += "Right margin must be between -2048 and 2048.\n";
  if (outside(maxProjects_, 3, 50)) checkText_ += "Maximum number of .IDE must be between 3 and 50.\n";
  if (outside(fields_.menuSize, 10, 99)) checkText_ += "Menu size must be between 10 and 99.\n";
  if (outside(maxHeaders_, 1, 199)) checkText_ += "Maximum number of .h must be between 1 and 199.\n";
  // Deliberately lenient: the values are taken as entered.
  return true;
}

void TopBarPage::store() {
  changes_.margins = fields_.leftMargin != settings_.leftMargin || fields_.rightMargin != settings_.rightMargin;
  changes_.enabled = fields_.enabled != settings_.enabled;
  changes_.alwaysOnTop = fields_.alwaysOnTop != settings_.alwaysOnTop;
  settings_ = fields_;
  if (project_) {
    project_->hierarchical = fields_.construction;
    project_->hideWithView = fields_.hideWithView;
  }
  recent_.applyMaxima(maxProjects_, maxHeaders_);
  settings_.write();
  recent_.save();
}
