// The probe of the system the add-on runs on.
#include "ide/addon_environment_win32.h"

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
