// The top screen bar page as a presenter: the "TopBar" settings, the recent
// lists' maxima and the open project's construction, with a check that tells
// but never refuses, and what storing them changed for the bar window.
#pragma once

#include <string>

#include "project/option_page.h"
#include "project/project_options.h"
#include "topbar/recent_files.h"
#include "topbar/top_bar_settings.h"

// What the bar window must redo after the page was stored.
struct TopBarPageChanges {
  bool margins = false;
  bool enabled = false;
  bool alwaysOnTop = false;
};

class TopBarPage : public OptionPage {
 public:
  static constexpr int32_t kHelpTopic = 16;

  // Everything is borrowed for the page's life; project is the open project's
  // options, null when none is open.
  TopBarPage(TopBarSettings& settings, RecentFiles& recent, ProjectOptions* project)
      : settings_(settings), recent_(recent), project_(project) {}

  std::vector<PageControl> controls() override;
  void show() override;
  void changed(int32_t) override { modified = true; }
  // Builds checkText() for the values out of range and accepts them all the same.
  bool check() override;
  // Takes every field, cuts the recent lists to their new maxima and writes the settings.
  void store() override;

  const std::string& checkText() const { return checkText_; }
  const TopBarPageChanges& changes() const { return changes_; }

 private:
  TopBarSettings& settings_;
  RecentFiles& recent_;
  ProjectOptions* project_;
  TopBarSettings fields_;
  int32_t maxProjects_ = 0;
  int32_t maxHeaders_ = 0;
  std::string checkText_;
  TopBarPageChanges changes_;
};
