// Reading golden cases and reporting their differences.
#include "support/golden.h"

#include "foundation/os.h"

std::string goldenPath(const std::string& area, const std::string& caseName) {
  std::string path = joinPath(KESTO_TEST_DATA_DIR, area);
  return caseName.empty() ? path : joinPath(path, caseName);
}

std::vector<std::string> goldenCases(const std::string& area) {
  std::vector<DirectoryEntry> entries;
  std::vector<std::string> cases;
  platformOs().listDirectory(goldenPath(area), &entries, nullptr);
  for (const DirectoryEntry& entry : entries)
    if (entry.attributes.isDirectory) cases.push_back(entry.name);
  return cases;
}

std::string readGolden(const std::string& area, const std::string& caseName, const std::string& file) {
  std::string data;
  platformOs().readFile(joinPath(goldenPath(area, caseName), file), &data, nullptr);
  return data;
}

std::string goldenDifference(const std::string& area, const std::string& caseName, const std::string& file,
                             const std::string& expected, const std::string& actual) {
  if (expected == actual) return "";
  size_t line = 1;
  size_t i = 0;
  while (i < expected.size() && i < actual.size() && expected[i] == actual[i]) {
    if (expected[i] == '\n') ++line;
    ++i;
  }
  size_t expectedEnd = expected.find('\n', i);
  size_t actualEnd = actual.find('\n', i);
  size_t lineStart = i;
  while (lineStart > 0 && expected[lineStart - 1] != '\n') --lineStart;
  return "golden case " + goldenPath(area, caseName) + " file " + file + " differs at line " + std::to_string(line) +
         "\n  expected: " + expected.substr(lineStart, expectedEnd == std::string::npos ? std::string::npos : expectedEnd - lineStart) +
         "\n  actual:   " + actual.substr(lineStart, actualEnd == std::string::npos ? std::string::npos : actualEnd - lineStart) +
         "\n  rerun: kesto_unit_tests --gtest_filter='*" + area + "*'";
}
