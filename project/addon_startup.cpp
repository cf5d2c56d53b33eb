// Pure rules of the add-on's start.
#include "project/addon_startup.h"

#include <cstdio>

int32_t describeSystem(uint32_t platformId, uint32_t major, uint32_t minor, char* description) {
  switch (platformId) {
    case 0:
      std::snprintf(description, kOsDescriptionBytes, "Win32s on Windows %u.%u", major, minor);
      return 0;
    case 1:
      std::snprintf(description, kOsDescriptionBytes, "Windows 95 (%u.%u)", major, minor);
      return 1;
    case 2:
      std::snprintf(description, kOsDescriptionBytes, "Windows NT %u.%u", major, minor);
      return major > 3 ? 1 : 0;
    default:
      return 0;
  }
}

BarRect startupBarRect(bool newShell, int32_t screenWidth, int32_t menuHeight, int32_t captionHeight) {
  if (newShell) return {-1, -2, screenWidth + 2, menuHeight + 1};
  return {-1, -2 - menuHeight, screenWidth + 2, menuHeight + captionHeight + 1};
}

bool helpPathFor(const std::string& modulePath, std::string* helpPath) {
  if (modulePath.size() < 4 || modulePath[modulePath.size() - 4] != '.') return false;
  *helpPath = modulePath.substr(0, modulePath.size() - 3) + "hlp";
  return true;
}
