// Delivery: the groups, the comparison of contents, and whole runs with their boxes, messages and mail.
#include <gtest/gtest.h>

#include "delivery/delivery_copy.h"
#include "delivery/delivery_run.h"
#include "support/fake_host.h"
#include "support/fault_os.h"
#include "support/temp_dir.h"

namespace {

ProjectNode node(const std::string& name, const std::string& type) {
  ProjectNode made;
  made.name = name;
  made.type = type;
  return made;
}

OneDelRep* group(const std::string& type, const std::string& directory, int16_t active = 1) {
  OneDelRep* made = new OneDelRep;
  made->type = type;
  made->directory = directory;
  made->active = active;
  return made;
}

TEST(DeliveryGroupsTest, RebuildKeepsKnownTypesDropsOthersAndSorts) {
  ProjectNode root = node("demo.ide", "");
  ProjectNode delivery = node("DELIVERY", "SourcePool");
  delivery.nodes = {node("b.exe", ".exe"), node("a.dll", ".dll"), node("c.exe", ".exe")};
  root.nodes = {node("b.exe", ".exe"), delivery};
  Tableau<OneDelRep> groups;
  groups.append(group(".lib", "/gone"));
  groups.append(group(".exe", "/srv/bin", 0));
  rebuildDeliveryGroups(groups, &root);
  ASSERT_EQ(2, groups.count());
  EXPECT_EQ(".dll", groups[0]->type.str());
  EXPECT_EQ("", groups[0]->directory.str());
  EXPECT_EQ(".exe", groups[1]->type.str());
  EXPECT_EQ("/srv/bin", groups[1]->directory.str());
  EXPECT_EQ(0, groups[1]->active);

  root.nodes.pop_back();
  rebuildDeliveryGroups(groups, &root);
  EXPECT_EQ(0, groups.count());
}

TEST(NeedsDeliveryTest, ComparesSizeThenEveryByteButNeverDates) {
  TempDir dir;
  std::string data(700000, 'x');
  dir.write("app.exe", data);
  dir.write("out/app.exe", data);
  platformOs().setModified(dir.file("out/app.exe"), 1, nullptr);
  EXPECT_FALSE(needsDelivery(dir.file("app.exe"), dir.file("out")));
  data[699999] = 'y';  // in the tail after two full blocks
  dir.write("out/app.exe", data);
  EXPECT_TRUE(needsDelivery(dir.file("app.exe"), dir.file("out")));
  dir.write("out/app.exe", data + "z");
  EXPECT_TRUE(needsDelivery(dir.file("app.exe"), dir.file("out")));
  EXPECT_TRUE(needsDelivery(dir.file("app.exe"), dir.file("elsewhere")));
  EXPECT_FALSE(needsDelivery(dir.file("missing.exe"), dir.file("out")));
}

TEST(DeliveryHeaderTest, TakesTheTitleAfterItsFirstDashAndCountsFiles) {
  SystemTime now;
  now.year = 2024;
  now.month = 3;
  now.day = 5;
  now.dayOfWeek = 2;
  now.hour = 14;
  now.minute = 7;
  now.second = 9;
  std::string header = deliveryHeader("Borland C++ -  demo - [app.cpp]", 2, now);
  EXPECT_EQ("demo - [app.cpp] : 2 files (" + platformOs().formatDate(now, DateForm::Short, LocaleChoice::System) +
                " , " + platformOs().formatTime(now, LocaleChoice::System) + ")",
            header);
  EXPECT_EQ(0u, deliveryHeader("Kesto", 1, now).find("Kesto : 1 file ("));
}

class DeliveryRunTest : public ::testing::Test {
 protected:
  TempDir dir;
  FakeHost host;
  RecordingAlerts alerts;
  Mail mail;
  Delivery delivery;
  std::vector<std::string> rows;
  bool proceed = true;
  bool sendMail = true;

  DeliveryRunTest() {
    host.projectPath = dir.file("demo.ide");
    host.root = node(host.projectPath, "");
    ProjectNode deliveryNode = node("DELIVERY", "SourcePool");
    deliveryNode.nodes = {node("app.exe", ".exe"), node(dir.file("lib.dll"), ".dll"), node("notes.txt", ".txt")};
    host.root.nodes = {deliveryNode};
    dir.write("app.exe", std::string(40000, 'a'));
    dir.write("lib.dll", "library");
    dir.write("notes.txt", "not delivered");
    for (const char* sub : {"bin", "lib", "doc"}) platformOs().makeDirectory(dir.file(sub), nullptr);
    delivery.groups.append(group(".exe", dir.file("bin")));
    delivery.groups.append(group(".dll", dir.file("lib")));
    delivery.groups.append(group(".txt", dir.file("doc"), 0));
    mail.setRecipients({"ann"});
  }

  DeliveryOutcome run(bool includeTaskNotes = false) {
    return delivery.run(host, mail, includeTaskNotes, [this](DeliveryConfirmation& confirmation) {
      rows = confirmation.rows();
      EXPECT_TRUE(confirmation.sendMail());
      confirmation.setSendMail(sendMail);
      return proceed;
    });
  }
};

TEST_F(DeliveryRunTest, CopiesWhatChangedReportsInTheMessageWindowAndMailsWithTheTaskNotes) {
  dir.write("demo.ide.tsk.txt", "ended task\n");
  EXPECT_EQ(DeliveryOutcome::Delivered, run(true));
  EXPECT_EQ(rows, (std::vector<std::string>{"app.exe -> " + dir.file("bin"), "lib.dll -> " + dir.file("lib")}));
  EXPECT_EQ(std::string(40000, 'a'), dir.read("bin/app.exe"));
  EXPECT_EQ("library", dir.read("lib/lib.dll"));
  EXPECT_FALSE(platformOs().exists(dir.file("doc/notes.txt")));

  ASSERT_EQ(3u, host.messages.size());
  EXPECT_EQ("Delivery", host.messages[0].group);
  EXPECT_EQ(0u, host.messages[0].text.find("demo : 2 files ("));
  EXPECT_EQ(dir.file("app.exe") + " delivered", host.messages[1].text);
  EXPECT_EQ(1, host.messages[1].parent);
  EXPECT_EQ("Delivery terminated", host.statusTexts.back());
  EXPECT_EQ(1, host.progressEnds);
  EXPECT_EQ(40007u, host.progress.back().done);

  ASSERT_EQ(1u, host.mails.size());
  EXPECT_EQ("Delivery : " + host.messages[0].text, host.mails[0].subject);
  EXPECT_EQ(0u, host.mails[0].note.find(dir.file("app.exe") + " delivered to " + dir.file("bin") + "\n" +
                                         dir.file("lib.dll") + " delivered to " + dir.file("lib") + "\n" +
                                         "ended task\n"));
  EXPECT_FALSE(platformOs().exists(dir.file("demo.ide.tsk.txt")));
  EXPECT_TRUE(alerts.boxes.empty());

  EXPECT_EQ(DeliveryOutcome::NothingToDeliver, run());
  EXPECT_EQ("No files to deliver !", host.messages.back().text);
  ASSERT_EQ(1u, alerts.boxes.size());
  EXPECT_EQ("Warning", alerts.boxes[0].caption);
}

TEST_F(DeliveryRunTest, AMissingDirectoryRefusesTheWholeDeliveryAndACancelCopiesNothing) {
  platformOs().removeDirectory(dir.file("lib"), nullptr);
  EXPECT_EQ(DeliveryOutcome::Refused, run());
  ASSERT_EQ(1u, alerts.boxes.size());
  EXPECT_EQ("Directory " + dir.file("lib") + " does not exist !\nChange it !", alerts.boxes[0].text);
  EXPECT_EQ("Kesto AddOn error", alerts.boxes[0].caption);
  EXPECT_TRUE(rows.empty());

  platformOs().makeDirectory(dir.file("lib"), nullptr);
  proceed = false;
  EXPECT_EQ(DeliveryOutcome::Cancelled, run());
  EXPECT_EQ(2u, rows.size());
  EXPECT_FALSE(platformOs().exists(dir.file("bin/app.exe")));

  proceed = true;
  sendMail = false;
  EXPECT_EQ(DeliveryOutcome::Delivered, run());
  EXPECT_TRUE(host.mails.empty());
}

TEST_F(DeliveryRunTest, EachFailingOsCallNamesItsFileAndLeavesOtherFilesDeliveredAndNoPartialCopy) {
  dir.write("bin/app.exe", "old app");
  bool clean = false;
  for (int failAt = 1; !clean; ++failAt) {
    ASSERT_LT(failAt, 60) << "the delivery never ran clean";
    platformOs().writeFile(dir.file("bin/app.exe"), "old app", nullptr);
    platformOs().removeFile(dir.file("lib/lib.dll"), nullptr);
    alerts.boxes.clear();
    FaultOs faults;
    faults.failAt = failAt;
    DeliveryOutcome outcome;
    {
      ScopedOs scoped(faults);
      outcome = run();
    }
    clean = faults.calls < failAt;
    std::string app = dir.read("bin/app.exe");
    bool appDelivered = app == std::string(40000, 'a');
    bool libDelivered = platformOs().exists(dir.file("lib/lib.dll"));
    EXPECT_TRUE(appDelivered || app == "old app") << "failure at OS call " << failAt;
    if (libDelivered) {
      EXPECT_EQ("library", dir.read("lib/lib.dll"));
    }
    EXPECT_EQ("", dir.temporariesLeft());
    if (outcome == DeliveryOutcome::Failed) {
      ASSERT_EQ(1u, alerts.boxes.size()) << "failure at OS call " << failAt;
      EXPECT_EQ(0u, alerts.boxes[0].text.find("Error in ")) << alerts.boxes[0].text;
      EXPECT_EQ("Kesto Addon error", alerts.boxes[0].caption);
      EXPECT_TRUE(appDelivered != libDelivered) << "failure at OS call " << failAt;
    } else if (outcome == DeliveryOutcome::Delivered) {
      EXPECT_TRUE(appDelivered || libDelivered) << "failure at OS call " << failAt;
    }
  }
}

}  // namespace
