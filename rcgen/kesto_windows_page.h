// The Kesto Windows page as a presenter: the open project's two generator switches.
#pragma once

#include "project/option_page.h"
#include "project/project_options.h"

class KestoWindowsPage : public ProjectOptionPage {
 public:
  explicit KestoWindowsPage(ProjectOptions* project) : ProjectOptionPage(project) {}

  std::vector<PageControl> controls() override;
  void show() override;
  void store() override;

 private:
  int32_t windows_ = 0;
  int32_t version_ = 0;
};
