// BasicTableau: slot counts, range removal, sentinels, sorting and the file form.
#include <gtest/gtest.h>

#include <cstdio>

#include "foundation/kstring.h"
#include "foundation/tableau.h"
#include "support/fake_host.h"

namespace {

// Counts destructions so that ownership is observable.
struct Tracked : Basic {
  explicit Tracked(int* deaths) : deaths(deaths) {}
  ~Tracked() override { ++*deaths; }
  int* deaths;
};

void fill(BasicTableau& table, int n, int* deaths) {
  for (int i = 0; i < n; ++i) table.append(new Tracked(deaths));
}

std::string texts(const Tableau<String>& table) {
  std::string out;
  for (int32_t i = 0; i < table.count(); ++i) out += table[i]->str() + ",";
  return out;
}

}  // namespace

TEST(TableauTest, GrowsByStepOfTenAndShrinksByOneStep) {
  int deaths = 0;
  Ensemble<Tracked> table;
  fill(table, 10, &deaths);
  EXPECT_EQ(table.capacity(), 10);
  fill(table, 1, &deaths);
  EXPECT_EQ(table.capacity(), 20);
  // The shrink waits until count < capacity - step.
  table.removeAndDelete(0);
  EXPECT_EQ(table.capacity(), 20);
  table.removeAndDelete(0);
  EXPECT_EQ(table.count(), 9);
  EXPECT_EQ(table.capacity(), 10);
  EXPECT_EQ(deaths, 2);
}

TEST(TableauTest, RemovingWholeRangeDeletesOwnedElementsAndReleasesSlots) {
  int deaths = 0;
  {
    Ensemble<Tracked> table;
    fill(table, 5, &deaths);
    table.removeRange(0, 0);
    EXPECT_EQ(deaths, 5);
    EXPECT_EQ(table.count(), 0);
    EXPECT_EQ(table.capacity(), 0);
    fill(table, 1, &deaths);
    EXPECT_EQ(table.capacity(), 10) << "a fresh array after the release";
  }
  EXPECT_EQ(deaths, 6) << "destruction deletes what is left";

  Ensemble<Tracked> borrowed;
  borrowed.setOwns(false);
  Tracked kept(&deaths);
  borrowed.append(&kept);
  borrowed.clear();
  EXPECT_EQ(deaths, 6) << "a table that does not own leaves its elements alone";
}

TEST(TableauTest, RangeAtTheEndAndSingleRemovalKeepOrder) {
  Tableau<String> table;
  for (const char* text : {"a", "b", "c", "d", "e"}) table.append(new String(text));
  table.removeRange(3, 0);
  EXPECT_EQ(texts(table), "a,b,c,");
  String* removed = static_cast<String*>(table.remove(1));
  EXPECT_EQ(removed->str(), "b");
  delete removed;
  EXPECT_EQ(texts(table), "a,c,");
  table.swapWithNext(0);
  EXPECT_EQ(texts(table), "c,a,");
}

TEST(TableauTest, IndexOfAnswers65535WhenAbsent) {
  Tableau<String> table;
  String outsider("x");
  EXPECT_EQ(table.indexOf(&outsider), 65535);
  table.append(new String("y"));
  EXPECT_EQ(table.indexOf(table[0]), 0);
  EXPECT_EQ(table.indexOf(&outsider), 65535);
}

TEST(TableauTest, OpenGapMakesNullSlotsAtPosition) {
  Tableau<String> table;
  table.append(new String("a"));
  table.append(new String("b"));
  ASSERT_TRUE(table.openGap(1, 12));
  EXPECT_EQ(table.count(), 14);
  EXPECT_EQ(table.capacity(), 20);
  EXPECT_EQ(table[0]->str(), "a");
  EXPECT_EQ(table[1], nullptr);
  EXPECT_EQ(table[12], nullptr);
  EXPECT_EQ(table[13]->str(), "b");
}

TEST(TableauTest, SortsByUnsignedBytesAndByNumber) {
  Tableau<String> table;
  for (const char* text : {"b", "\xe9t\xe9", "B", "a"}) table.append(new String(text));
  table.sortByText();
  EXPECT_EQ(texts(table), "B,a,b,\xe9t\xe9,");
  Tableau<String> numbers;
  for (const char* text : {"10", "-3", "7"}) numbers.append(new String(text));
  numbers.sortByNumber();
  EXPECT_EQ(texts(numbers), "-3,7,10,");
  numbers.sortByText(1);
  EXPECT_EQ(texts(numbers), "-3,10,7,") << "a sort from position 1 leaves position 0";
}

TEST(TableauTest, FileFormRoundTripsAndTruncationLeavesNullSlots) {
  ByteStream file;
  Tableau<String> table;
  table.append(new String("one"));
  table.append(new String(""));
  ASSERT_EQ(table.fWrite(file), 1);
  Tableau<String> copy;
  ASSERT_EQ(copy.fRead(file), 1);
  EXPECT_EQ(texts(copy), "one,,");

  ByteStream truncated(std::string("\x05\x00\x00\x00", 4));
  Tableau<String> partial;
  EXPECT_EQ(partial.fRead(truncated), 0);
  EXPECT_EQ(partial.count(), 5);
  for (int32_t i = 0; i < 5; ++i) EXPECT_EQ(partial[i], nullptr);
}

TEST(TableauTest, ImplausibleCountFailsWithoutAllocating) {
  ByteStream file(std::string("\xff\xff\xff\x7f\x01\x00" "a", 8));
  Tableau<String> table;
  EXPECT_EQ(table.fRead(file), 0);
  EXPECT_EQ(table.count(), 0);
}

TEST(TableauTest, EnsembleCannotReadAndBaseOperationsReportThemselves) {
  RecordingAlerts alerts;
  Ensemble<String> ensemble;
  ByteStream file;
  EXPECT_EQ(ensemble.fRead(file), 0);
  EXPECT_EQ(static_cast<long int>(ensemble), 0);
  ASSERT_EQ(alerts.boxes.size(), 2u);
  EXPECT_EQ(alerts.boxes[0].text, "Appel de Basic::fRead virtuelle pure !");
  EXPECT_EQ(alerts.boxes[1].text, "Appel de Basic::long int virtuelle pure !");
  EXPECT_EQ(alerts.boxes[0].caption, "Erreur");
  EXPECT_EQ(alerts.boxes[0].style, static_cast<unsigned>(kAlertIconHand));
}
