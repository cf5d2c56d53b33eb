// The prompt that sets one delivery group's directory and active state.
#pragma once

#include <windows.h>

#include <string>

// Shows the prompt filled with *directory and *active; true with the new values on OK.
bool promptDeliveryDirectory(HINSTANCE instance, HWND owner, std::string* directory, bool* active);
