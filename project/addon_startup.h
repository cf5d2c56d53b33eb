// Pure rules of the add-on's start: the system description, the bar's first
// placement and the help file's name. The Win32 side feeds them the system's numbers.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

constexpr size_t kOsDescriptionBytes = 40;

// Formats the system description from the version record's platform id and
// version into description (kOsDescriptionBytes, cut to fit) and returns the
// new-shell flag: 1 when the system has the Windows 95 window styles. An
// unknown platform leaves description as it was and returns 0.
int32_t describeSystem(uint32_t platformId, uint32_t major, uint32_t minor, char* description);

struct BarRect {
  int32_t x;
  int32_t y;
  int32_t width;
  int32_t height;
};

// Where the bar window is created: laid one pixel past each side of the screen
// and, in the older look, with its caption pushed above the top edge.
BarRect startupBarRect(bool newShell, int32_t screenWidth, int32_t menuHeight, int32_t captionHeight);

// The help file is the module's own path with its three-letter extension
// replaced by "hlp". False when the path has no such extension (the add-on
// then refuses to run); whether the file exists is not checked.
bool helpPathFor(const std::string& modulePath, std::string* helpPath);
