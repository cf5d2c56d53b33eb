// The settings store over its REGEDIT4 file backend: defaults, limits, lists and safe rewrites.
#include <gtest/gtest.h>

#include "foundation/os.h"
#include "foundation/settings.h"
#include "foundation/settings_file.h"
#include "support/fault_os.h"
#include "support/golden.h"
#include "support/temp_dir.h"

namespace {

class SettingsTest : public ::testing::Test {
 protected:
  SettingsTest() : file_(dir_.file("settings.reg")) {
    store_.setBackend(&file_);
  }

  TempDir dir_;
  SettingsFile file_;
  SettingsStore store_;
};

}  // namespace

TEST_F(SettingsTest, DefaultsApplyAtReadTimeAndWriteNothing) {
  EXPECT_EQ(store_.readInteger("General", "TimerCount", 5), 5);
  std::string text;
  EXPECT_TRUE(store_.readString("QuickFind", "TxtFunction", &text, "fallback"));
  EXPECT_EQ(text, "fallback");
  text = "untouched";
  EXPECT_FALSE(store_.readString("QuickFind", "TxtFunction", &text, nullptr));
  EXPECT_EQ(text, "untouched");
  EXPECT_FALSE(os().exists(file_.path())) << "reading never creates anything";
}

// The observer is how kesto lists the known settings: each single read once,
// with its kind and default, whatever is stored; a list's count is not one.
TEST_F(SettingsTest, AnObserverHearsEachReadWithItsKindAndDefault) {
  struct Heard : SettingsReadObserver {
    void onRead(const std::string& section, const std::string& name, bool integer, const std::string& text) override {
      reads.push_back(section + "/" + name + (integer ? " int " : " text ") + text);
    }
    std::vector<std::string> reads;
  } heard;
  store_.writeInteger("Menus", "Size", 7);
  store_.setReadObserver(&heard);
  EXPECT_EQ(store_.readInteger("Menus", "Size", 50), 7);
  std::string text;
  store_.readString("Mail", "Sendmail", &text, "sendmail -t");
  store_.readString("Mail", "Unset", &text, nullptr);
  store_.readList("Completion", "Files");
  store_.setReadObserver(nullptr);
  store_.readInteger("Menus", "Sorted", 1);
  EXPECT_EQ(heard.reads, (std::vector<std::string>{"Menus/Size int 50", "Mail/Sendmail text sendmail -t"}));
}

TEST_F(SettingsTest, IntegersAreStoredAsTextAndBadTextGivesTheDefault) {
  ASSERT_TRUE(store_.writeInteger("General", "Unic", -1));
  std::string text;
  ASSERT_TRUE(store_.readString("General", "Unic", &text, nullptr));
  EXPECT_EQ(text, "-1");
  EXPECT_EQ(store_.readInteger("General", "Unic", 1), -1);
  store_.writeString("General", "TimerCount", "soon");
  EXPECT_EQ(store_.readInteger("General", "TimerCount", 5), 5);
  store_.writeString("General", "TimerCount", " 12 minutes");
  EXPECT_EQ(store_.readInteger("General", "TimerCount", 5), 12);
}

TEST_F(SettingsTest, ValuesOfTwoThousandBytesOrMoreReadAsMissing) {
  store_.writeString("Mail", "Long", std::string(1999, 'x'));
  std::string text;
  ASSERT_TRUE(store_.readString("Mail", "Long", &text, "default"));
  EXPECT_EQ(text.size(), 1999u);
  store_.writeString("Mail", "Long", std::string(2000, 'x'));
  ASSERT_TRUE(store_.readString("Mail", "Long", &text, "default"));
  EXPECT_EQ(text, "default");
}

TEST_F(SettingsTest, ListsRoundTripAndMissingEntriesReadNotFound) {
  ASSERT_TRUE(store_.writeList("TopBar", "IDE", {"C:\\A.IDE", "b \"quoted\".ide", "caf\xe9.ide"}));
  EXPECT_EQ(store_.readList("TopBar", "IDE"),
            (std::vector<std::string>{"C:\\A.IDE", "b \"quoted\".ide", "caf\xe9.ide"}));
  store_.writeInteger("TopBar", "NbIDE", 4);
  EXPECT_EQ(store_.readList("TopBar", "IDE").back(), "not found");
}

TEST_F(SettingsTest, ListEntriesFollowTheRulesOfSingleReads) {
  // Names in any case, the last of two spellings winning, and a value too long to read.
  dir_.write("settings.reg",
             "REGEDIT4\n\n[HKEY_LOCAL_MACHINE\\SOFTWARE\\Borland\\Borland C++\\5.0\\Ide\\AddOns\\Kestoaob\\TopBar]\n"
             "\"NbIDE\"=\"3\"\n\n[hkey_local_machine\\software\\borland\\borland c++\\5.0\\ide\\addons\\kestoaob\\topbar\\ide]\n"
             "\"ENTRY0\"=\"a.ide\"\n\"Entry1\"=\"" + std::string(2000, 'x') + "\"\n\"entry0\"=\"b.ide\"\n");
  EXPECT_EQ(store_.readList("TopBar", "IDE"), (std::vector<std::string>{"b.ide", "not found", "not found"}));
}

TEST_F(SettingsTest, FixtureReadsAsTheRegistryHoldsIt) {
  SettingsFile fixture(goldenPath("settings") + kPathSeparator + "fixture.reg");
  store_.setBackend(&fixture);
  EXPECT_EQ(store_.readInteger("General", "TimerCount", 5), 7);
  EXPECT_EQ(store_.readInteger("General", "Unic", 1), -1);
  EXPECT_EQ(store_.readInteger("QuickFind", "Recurse", 1), 1);
  EXPECT_EQ(store_.readList("TopBar", "IDE"),
            (std::vector<std::string>{"C:\\PROJECTS\\DEMO\\DEMO.IDE", "C:\\Program Files\\Quote \"q\"\\X.IDE"}));
  std::string masks;
  store_.readString("quickfind", "functionmask", &masks, nullptr);
  EXPECT_EQ(masks, "*.cpp;*.c;*.h") << "key and value names compare without case";
}

TEST_F(SettingsTest, MalformedFileIsReportedWithLineAndNeverOverwritten) {
  const std::string broken = "REGEDIT4\r\n\r\n[HKEY_LOCAL_MACHINE\\X]\r\n\"A\"=hex:01,02\r\n";
  dir_.write("settings.reg", broken);
  EXPECT_EQ(store_.readInteger("General", "TimerCount", 5), 5);
  EXPECT_EQ(file_.error(), file_.path() + ":4: only string and dword values are supported");
  EXPECT_FALSE(store_.writeInteger("General", "TimerCount", 7));
  EXPECT_EQ(dir_.read("settings.reg"), broken);
}

TEST_F(SettingsTest, AFailingOsCallLeavesTheOldFileWhole) {
  ASSERT_TRUE(store_.writeString("General", "Name", "old"));
  const std::string before = dir_.read("settings.reg");
  for (int failAt = 1;; ++failAt) {
    FaultOs faults;
    faults.failAt = failAt;
    bool written;
    {
      ScopedOs scoped(faults);
      written = store_.writeString("General", "Name", "new");
    }
    std::string after = dir_.read("settings.reg");
    if (written) {
      EXPECT_NE(after, before);
      break;
    }
    EXPECT_EQ(after, before) << "failure at OS call " << failAt;
    EXPECT_EQ("", dir_.temporariesLeft()) << "failure at OS call " << failAt;
  }
}
