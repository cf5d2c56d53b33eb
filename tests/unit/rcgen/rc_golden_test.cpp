// Golden cases: each folder of tests/data/rcgen holds scripts and the rc.h and
// rc.cpp they must give, byte for byte, as the project directory's unit.
#include <gtest/gtest.h>

#include "rcgen/rc_generation_unit.h"
#include "support/golden.h"

TEST(RcGoldenTest, EveryCaseGivesItsClassFilesByteForByte) {
  std::vector<std::string> cases = goldenCases("rcgen");
  ASSERT_GE(cases.size(), 8u);
  for (const std::string& name : cases) {
    RcUnitText text;
    ASSERT_TRUE(generateRcUnit({goldenPath("rcgen", name), ""}, &text, nullptr, nullptr));
    EXPECT_EQ(goldenDifference("rcgen", name, "rc.h", readGolden("rcgen", name, "rc.h"), text.header), "");
    EXPECT_EQ(goldenDifference("rcgen", name, "rc.cpp", readGolden("rcgen", name, "rc.cpp"), text.implementation), "");
  }
}
