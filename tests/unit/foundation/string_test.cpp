// String: index rules, conversions, appends and the file form.
#include <gtest/gtest.h>

#include <cstdio>

#include "foundation/binary_io.h"
#include "foundation/kstring.h"
#include "support/fake_host.h"

TEST(StringTest, IndexAcceptsTerminatorAndRefusesBeyond) {
  RecordingAlerts alerts;
  String text("abc");
  EXPECT_EQ(*text.at(0), 'a');
  EXPECT_EQ(*text.at(3), '\0');
  EXPECT_TRUE(alerts.boxes.empty());

  char* past = text.at(4);
  char* before = text.at(-1);
  EXPECT_STREQ(past, "");
  EXPECT_EQ(past, before) << "both answer the one shared empty string";
  ASSERT_EQ(alerts.boxes.size(), 2u);
  EXPECT_EQ(alerts.boxes[0].text, "Parcours de chaine hors limite !");
  EXPECT_EQ(alerts.boxes[0].caption, "Erreur");
  EXPECT_EQ(alerts.boxes[0].style, static_cast<unsigned>(kAlertOk));
}

TEST(StringTest, NumbersConvertBothWays) {
  String number(-42L);
  EXPECT_STREQ(static_cast<char*>(number), "-42");
  EXPECT_EQ(static_cast<long int>(String("  17 apples")), 17);
  EXPECT_EQ(static_cast<long int>(String("apples")), 0);
  String joined("n=");
  joined += 7L;
  joined += "";
  joined += String("!");
  EXPECT_STREQ(static_cast<char*>(joined), "n=7!");
  joined += joined;
  EXPECT_EQ(joined.str(), "n=7!n=7!");
}

TEST(StringTest, FileFormRoundTripsAndKeepsBytesAbove127) {
  ByteStream file;
  String original("caf\xe9 \r\n");
  ASSERT_EQ(original.fWrite(file), 1);
  EXPECT_EQ(file.bytes(), std::string("\x07\x00" "caf\xe9 \r\n", 10));
  String copy;
  ASSERT_EQ(copy.fRead(file), 1);
  EXPECT_EQ(copy, original);
}

TEST(StringTest, TruncatedFileFailsButStaysTerminated) {
  ByteStream file(std::string("\x0a\x00" "abc", 5));
  String read("previous");
  EXPECT_EQ(read.fRead(file), 0);
  EXPECT_EQ(read.str(), "abc");
}
