// The one-integer form of a shortcut shared by the hooks and the option pages.
#pragma once

#include <cstdint>
#include <string>

// virtualKey (below 1000) + 4000 with Ctrl + 2000 with Alt + 1000 with Shift.
uint32_t keyCode(uint32_t virtualKey, bool ctrl, bool alt, bool shift);

// The text of a captured key: "Ctrl", "+Alt", then "+Shift" after another
// modifier or "Shift" alone, then "+" and the system's name of the key when a
// modifier came before it.
std::string keyText(bool ctrl, bool alt, bool shift, const std::string& keyName);

// A name for a virtual key when the system gives none: "F1" to "F24", the
// letter or digit itself, else "Key " and the number.
std::string virtualKeyName(uint32_t virtualKey);
