// The functions and includes scans on the golden cases of tests/data/navigation:
// source.cpp in; the entries, the functions menu and the includes out.
#include <gtest/gtest.h>

#include <sstream>

#include "navigation/function_scan.h"
#include "navigation/include_scan.h"
#include "navigation/navigation_menus.h"
#include "support/golden.h"

namespace {

// The options file holds "sorted 0" and "size N" lines; the settings' defaults otherwise.
std::string scanReport(const std::string& source, const std::string& options) {
  bool sorted = true;
  int32_t size = 50;
  std::istringstream lines(options);
  std::string key;
  int32_t value = 0;
  while (lines >> key >> value) {
    if (key == "sorted") sorted = value != 0;
    if (key == "size") size = value;
  }
  Tableau<Fnc> functions;
  scanFunctions(source, &functions);
  if (sorted) sortFunctions(&functions);
  std::string report = "functions:\n";
  for (int32_t i = 0; i < functions.count(); ++i)
    report += std::to_string(1000 + i) + "\t" + std::to_string(functions[i]->line()) + "\t" +
              functions[i]->className() + "\t" + functions[i]->name() + "\n";
  report += "menu:\n" + describeMenu(functionsMenu(functions, size));
  Tableau<String> includes;
  scanIncludes(source, &includes);
  report += "includes:\n" + describeMenu(includesMenu(includes));
  return report;
}

}  // namespace

TEST(NavigationGoldenTest, ScansMatchExpectedReports) {
  std::vector<std::string> cases = goldenCases("navigation");
  ASSERT_FALSE(cases.empty());
  for (const std::string& name : cases) {
    std::string actual = scanReport(readGolden("navigation", name, "source.cpp"), readGolden("navigation", name, "options"));
    std::string expected = readGolden("navigation", name, "expected.txt");
    EXPECT_EQ(goldenDifference("navigation", name, "expected.txt", expected, actual), "");
  }
}
