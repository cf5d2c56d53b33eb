// The add-on's process-wide objects: set by the start of the add-on, cleared
// only by its shutdown, null when absent.
#pragma once

#include <windows.h>

#include "ide/addon_environment_win32.h"
#include "ide/ide_access_win32.h"
#include "ide/tool_table.h"

class HelpFile;

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
