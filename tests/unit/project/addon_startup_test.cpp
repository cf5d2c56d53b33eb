// The system description, the bar's first placement and the help file's name.
#include <gtest/gtest.h>

#include <cstring>

#include "project/addon_startup.h"

TEST(AddonStartupTest, DescribesEachPlatformAndDecidesTheNewShell) {
  char description[kOsDescriptionBytes];
  EXPECT_EQ(describeSystem(0, 3, 11, description), 0);
  EXPECT_STREQ(description, "Win32s on Windows 3.11");
  EXPECT_EQ(describeSystem(1, 4, 0, description), 1);
  EXPECT_STREQ(description, "Windows 95 (4.0)");
  EXPECT_EQ(describeSystem(2, 3, 51, description), 0) << "NT 3.51 has the old shell";
  EXPECT_STREQ(description, "Windows NT 3.51");
  EXPECT_EQ(describeSystem(2, 4, 0, description), 1);
  EXPECT_STREQ(description, "Windows NT 4.0");

  std::strcpy(description, "kept");
  EXPECT_EQ(describeSystem(3, 10, 0, description), 0);
  EXPECT_STREQ(description, "kept");

  EXPECT_EQ(describeSystem(0, 4000000000u, 4000000000u, description), 0);
  EXPECT_EQ(std::strlen(description), kOsDescriptionBytes - 1) << "cut to the record's buffer";
}

TEST(AddonStartupTest, BarCoversTheScreenTopInBothLooks) {
  const BarRect tool = startupBarRect(true, 1024, 19, 18);
  EXPECT_EQ(tool.x, -1);
  EXPECT_EQ(tool.y, -2);
  EXPECT_EQ(tool.width, 1026);
  EXPECT_EQ(tool.height, 20);

  const BarRect captioned = startupBarRect(false, 1024, 19, 18);
  EXPECT_EQ(captioned.x, -1);
  EXPECT_EQ(captioned.y, -21) << "the caption sits above the screen";
  EXPECT_EQ(captioned.width, 1026);
  EXPECT_EQ(captioned.height, 38);
}

TEST(AddonStartupTest, HelpFileTakesTheModulesThreeLetterExtension) {
  std::string help = "unchanged";
  EXPECT_TRUE(helpPathFor("C:\\Program Files\\BC5\\Addons\\kestoaob.dll", &help));
  EXPECT_EQ(help, "C:\\Program Files\\BC5\\Addons\\kestoaob.hlp");
  EXPECT_TRUE(helpPathFor("C:\\\xe9t\xe9\\K.DLL", &help));
  EXPECT_EQ(help, "C:\\\xe9t\xe9\\K.hlp");
  EXPECT_TRUE(helpPathFor(".dll", &help));
  EXPECT_EQ(help, ".hlp");

  help = "unchanged";
  EXPECT_FALSE(helpPathFor("C:\\BC5\\kestoaob", &help));
  EXPECT_FALSE(helpPathFor("C:\\BC5\\kestoaob.dl", &help));
  EXPECT_FALSE(helpPathFor("C:\\BC5.D\\kestoaob.dllx", &help));
  EXPECT_FALSE(helpPathFor("dll", &help));
  EXPECT_FALSE(helpPathFor("", &help));
  EXPECT_EQ(help, "unchanged");
}
