// The auto-save countdown and the General page's period check.
#include "project/general_options.h"

#include <gtest/gtest.h>

#include "support/fake_host.h"

namespace {

TEST(AutoSaveTest, SavesOnTheTickThatCompletesThePeriodAndRestartsOnReset) {
  GeneralOptions options;
  AutoSaveCountdown countdown;
  for (int i = 1; i < 300; ++i) ASSERT_FALSE(countdown.tick(options)) << i;
  EXPECT_TRUE(countdown.tick(options)) << "the 300th tick with TimerCount 5";
  for (int i = 1; i < 200; ++i) countdown.tick(options);
  countdown.reset();
  for (int i = 1; i < 300; ++i) ASSERT_FALSE(countdown.tick(options)) << i;
  EXPECT_TRUE(countdown.tick(options));
  options.timerSave = 0;
  for (int i = 0; i < 400; ++i) ASSERT_FALSE(countdown.tick(options));
  EXPECT_EQ(autoSaveStatusText(5, "a.cpp, b.h"), "Auto-save (5 min) : a.cpp, b.h.");
}

TEST(AutoSaveTest, ThePeriodMustLieBetweenOneAndSixty) {
  RecordingAlerts alerts;
  EXPECT_TRUE(checkAutoSavePeriod(1));
  EXPECT_TRUE(checkAutoSavePeriod(60));
  EXPECT_FALSE(checkAutoSavePeriod(0));
  EXPECT_FALSE(checkAutoSavePeriod(61));
  ASSERT_EQ(alerts.boxes.size(), 2u);
  EXPECT_EQ(alerts.boxes[0].text, "Timer size must be between 0 and 60 min.");
  EXPECT_EQ(alerts.boxes[0].caption, "Kesto Addon error");
  EXPECT_EQ(alerts.boxes[0].style, static_cast<unsigned>(kAlertIconHand));
}

}  // namespace
