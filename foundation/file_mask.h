// File names matched against masks as Windows matches them, on every host.
#pragma once

#include <string>
#include <vector>

// Case-insensitive; '*' matches any run, '?' any one character; "*.*" matches
// every name, a name without a dot included.
bool matchesMask(const std::string& name, const std::string& mask);

// Splits "*.cpp;*.h" at ';', dropping empty pieces.
std::vector<std::string> splitMasks(const std::string& masks);

bool matchesAnyMask(const std::string& name, const std::string& masks);

// Compares as the Windows file system does: case-insensitively, then by bytes.
bool lessFileName(const std::string& a, const std::string& b);
