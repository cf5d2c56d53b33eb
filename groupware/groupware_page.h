// The groupware page as a presenter: the "Groupware" settings and the open
// project's server directory.
#pragma once

#include "groupware/groupware_settings.h"
#include "project/option_page.h"

class GroupwarePage : public OptionPage {
 public:
  static constexpr int32_t kServerEdit = 1014;
  static constexpr size_t kMaxFiltersLength = 1999;  // longer values would read back as missing
  static constexpr size_t kMaxServerLength = 259;

  // Both are borrowed; project is null when no project is open, and then the
  // server directory can be neither seen nor set.
  GroupwarePage(GroupwareSettings& settings, ProjectOptions* project) : settings_(settings), project_(project) {}

  std::vector<PageControl> controls() override;
  void show() override;
  void changed(int32_t) override { modified = true; }
  bool enabled(int32_t id) const override { return id != kServerEdit || project_ != nullptr; }
  // Writes the section; the server directory goes into the project's options.
  void store() override;

 private:
  GroupwareSettings& settings_;
  ProjectOptions* project_;
  int32_t enabled_ = 0;
  int32_t mailOnGet_ = 0;
  int32_t mailOnSend_ = 0;
  std::string filters_;
  std::string server_;
};
