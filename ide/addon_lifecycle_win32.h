// The add-on's start and shutdown: what is created and destroyed, in which order.
#pragma once

#include <windows.h>

#include "win32/ide_api_win32.h"

// The DLL's attach: the environment, the settings root and backend, the alert
// handler and OLE. False refuses the load (OLE could not start).
bool attachAddon(HINSTANCE instance);
// The DLL's detach: undoes the attach.
void detachAddon();

// The IDE's first call, with its root pointer, and its last call.
void initialiseAddon(IIdeRoot* ide);
void shutDownAddon();
