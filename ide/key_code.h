// The one-integer form of a shortcut shared by the hooks and the option pages.
#pragma once

#include <cstdint>

// virtualKey (below 1000) + 4000 with Ctrl + 2000 with Alt + 1000 with Shift.
uint32_t keyCode(uint32_t virtualKey, bool ctrl, bool alt, bool shift);
