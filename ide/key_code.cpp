// Building a shortcut's key code.
#include "ide/key_code.h"

uint32_t keyCode(uint32_t virtualKey, bool ctrl, bool alt, bool shift) {
  return virtualKey % 1000 + (ctrl ? 4000 : 0) + (alt ? 2000 : 0) + (shift ? 1000 : 0);
}
