// The add-on's process-wide objects.
#include "ide/addon_slots_win32.h"

AddonSlots& addon() {
  static AddonSlots slots;
  return slots;
}
