// The "Groupware" settings section and the open project's server directory.
#pragma once

#include <cstdint>
#include <string>

#include "foundation/kstring.h"
#include "project/project_options.h"

struct GroupwareSettings {
  static constexpr const char* kDefaultFilters = "*.cpp;*.cc;*.c;*.h;*.rh;*.rc;*.bmp;*.ico;*.gif";

  int32_t enabled = 1;
  int32_t mailOnGet = 0;
  int32_t mailOnSend = 1;
  String filters = kDefaultFilters;
  String server;  // the current project's; empty when none is set

  // Defaults apply to every value the store does not hold.
  void load();
  void save() const;
};
