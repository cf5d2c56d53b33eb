// The add-on's process-wide objects and the probe of the system.
#include "ide/addon_slots_win32.h"

AddonSlots& addon() {
  static AddonSlots slots;
  return slots;
}

void probeEnvironment(AddonEnvironment* environment) {
  environment->newShell = 0;
  OSVERSIONINFOA version = {};
  version.dwOSVersionInfoSize = sizeof version;  // 148
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
  if (!GetVersionExA(&version)) return;
#pragma GCC diagnostic pop
  environment->newShell = describeSystem(version.dwPlatformId, version.dwMajorVersion, version.dwMinorVersion,
                                         environment->osDescription);
}
