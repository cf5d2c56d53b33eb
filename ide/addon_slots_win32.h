// The add-on's process-wide objects: set by the start of the add-on, cleared
// only by its shutdown, null when absent.
#pragma once

#include <windows.h>

#include <cstdint>

#include "ide/addon_startup.h"
#include "ide/ide_access_win32.h"
#include "ide/tool_table.h"

class HelpFile;

// The module and the system it runs on, from the DLL's attach to its detach.
struct AddonEnvironment {
  HINSTANCE instance = nullptr;
  char osDescription[kOsDescriptionBytes] = {};
  int32_t newShell = 0;
};

struct AddonSlots {
  AddonEnvironment* environment = nullptr;
  HWND bar = nullptr;
  HelpFile* helpFile = nullptr;
  ServiceHolder<IIdeEditor>* editor = nullptr;
  ServiceHolder<IIdeStatusLine>* statusLine = nullptr;
  Tableau<Tool>* tools = nullptr;
  ServiceHolder<IIdeNodeOptions>* options = nullptr;
};

AddonSlots& addon();

// Asks the system for its version and fills the environment's description and new-shell flag.
void probeEnvironment(AddonEnvironment* environment);
