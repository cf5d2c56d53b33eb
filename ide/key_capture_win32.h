// The key capture dialog ("Strike any key..."): the hooks hand it the next key
// stroke, which becomes a key code and its text.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>

class HookSet;

// Shows the dialog owned by owner until a key other than Shift, Ctrl and Alt is
// struck or Cancel is pressed. True with the key code and its text (at most
// 80 characters) for a key; false when cancelled or when there are no hooks.
bool captureKey(HINSTANCE instance, HWND owner, HookSet* hooks, uint32_t* code, std::string* text);
