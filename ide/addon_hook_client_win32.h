// The answers the hooks get from the add-on's objects.
#pragma once

#include "ide/hook_set_win32.h"

// Reads the add-on's slots at each question, so that a changed setting counts at once.
HookClient& addonHookClient();
