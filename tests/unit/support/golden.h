// Golden cases: one folder per case under tests/data/<area>/, input and expected output side by side.
#pragma once

#include <string>
#include <vector>

// The folder of an area's cases, or of one case.
std::string goldenPath(const std::string& area, const std::string& caseName = "");
// The case folders of an area, sorted by name.
std::vector<std::string> goldenCases(const std::string& area);
// A file of a case; empty when absent.
std::string readGolden(const std::string& area, const std::string& caseName, const std::string& file);
// Compares and, on a difference, names the case and the first differing line so
// that the failure can be reproduced and read at once. Empty when equal.
std::string goldenDifference(const std::string& area, const std::string& caseName, const std::string& file,
                             const std::string& expected, const std::string& actual);
