// The module and the system it runs on, from the DLL's attach to its detach.
#pragma once

#include <windows.h>

#include <cstdint>

#include "project/addon_startup.h"

struct AddonEnvironment {
  HINSTANCE instance = nullptr;
  char osDescription[kOsDescriptionBytes] = {};
  int32_t newShell = 0;
};

// Asks the system for its version and fills the description and the new-shell flag.
void probeEnvironment(AddonEnvironment* environment);
