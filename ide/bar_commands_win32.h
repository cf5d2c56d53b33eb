// The bar window's command centre: every identifier that reaches the bar,
// from the hooks and from the popups it owns, dispatched by ranges.
#pragma once

#include <windows.h>

// Runs the command; false when no feature takes it (the bar then lets the
// system process the message).
bool dispatchBarCommand(HWND bar, UINT id, LPARAM lParam);

// The bar's private messages; false for any other message.
bool dispatchBarMessage(HWND bar, UINT message, WPARAM wParam, LPARAM lParam);
