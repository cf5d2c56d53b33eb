// The window that a message box raised now should be owned by.
#pragma once

#include <windows.h>

// The active window of the calling thread when it is one of the add-on's or
// the IDE's dialogs (a task list, an options dialog with its pages); null when
// the thread has no active window or it is the IDE's frame or bar, so that a
// box raised from a menu or a hook stays without owner as before.
HWND activeDialog(HWND bar);
