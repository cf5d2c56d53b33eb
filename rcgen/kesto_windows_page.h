// The Kesto Windows page as a presenter: the open project's two generator switches.
#pragma once

#include "ide/option_page.h"
#include "ide/project_options.h"

class KestoWindowsPage : public OptionPage {
 public:
  // The project's options are borrowed; null when no project is open, and then
  // both boxes are disabled and nothing is stored.
  explicit KestoWindowsPage(ProjectOptions* project) : project_(project) {}

  std::vector<PageControl> controls() override;
  void show() override;
  void changed(int32_t) override { modified = true; }
  bool enabled(int32_t) const override { return project_ != nullptr; }
  void store() override;

 private:
  ProjectOptions* project_;
  int32_t windows_ = 0;
  int32_t version_ = 0;
};
