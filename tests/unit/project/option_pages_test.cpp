// The option pages' presenters: the chapter's table, the key texts, and what
// each page refuses, tells, cuts and stores, with and without an open project.
#include <gtest/gtest.h>

#include <fstream>

#include "completion/completion_page.h"
#include "delivery/delivery_page.h"
#include "delivery/mail_option_page.h"
#include "groupware/groupware_page.h"
#include "html/html_page.h"
#include "ide/key_code.h"
#include "ide/option_chapter.h"
#include "rcgen/kesto_windows_page.h"
#include "support/fake_host.h"
#include "support/temp_dir.h"
#include "topbar/top_bar_page.h"

namespace {

// The field bound to control id, for driving a page as its view does.
PageControl bound(OptionPage& page, int32_t id) {
  for (const PageControl& control : page.controls())
    if (control.id == id) return control;
  ADD_FAILURE() << "no control " << id;
  return PageControl{id, PageControlKind::Button, ""};
}

}  // namespace

TEST(OptionChapterTest, PagesGetDialogsFrom102AndOnlyTheFirstIsTheChapterKind) {
  EXPECT_STREQ(kOptionPages[0].title, "Kesto AddOn for Borland C++");
  EXPECT_STREQ(kOptionPages[6].description, "set mail options");
  EXPECT_STREQ(kOptionPages[10].title, "Kesto Windows");
  EXPECT_EQ(optionPageDialog(0), 102);
  EXPECT_EQ(optionPageDialog(10), 112);
  EXPECT_EQ(optionPageKind(0), 0x1000);
  EXPECT_EQ(optionPageKind(1), 1);
  EXPECT_EQ(kOptionPages[2].helpTopic, 12);
  EXPECT_EQ(kOptionPages[3].helpTopic, 16);
  FirstOptionPage first("Windows NT 6.1");
  EXPECT_EQ(*bound(first, kVersionTextControl).text, "Version 1.2");
  EXPECT_EQ(*bound(first, kSystemTextControl).text, "Windows NT 6.1");
  EXPECT_EQ(first.hint(4242), "") << "an unbound control has no hint";
}

TEST(OptionChapterTest, KeyTextJoinsTheModifiersBeforeTheKeyName) {
  EXPECT_EQ(keyText(false, false, false, "F5"), "F5");
  EXPECT_EQ(keyText(true, false, true, "F5"), "Ctrl+Shift+F5");
  EXPECT_EQ(keyText(false, false, true, "A"), "Shift+A");
  EXPECT_EQ(keyText(true, true, true, "Home"), "Ctrl+Alt+Shift+Home");
  EXPECT_EQ(keyText(false, true, false, "X"), "+Alt+X");
  EXPECT_EQ(virtualKeyName(0x70), "F1");
  EXPECT_EQ(virtualKeyName(0x87), "F24");
  EXPECT_EQ(virtualKeyName('Q'), "Q");
  EXPECT_EQ(virtualKeyName(0xBA), "Key 186");
}

TEST(TopBarPageTest, OutOfRangeValuesAreToldButTakenAndTheListsAreCut) {
  TopBarSettings settings = TopBarSettings();
  RecentFiles recent;
  recent.projects = {"a.ide", "b.ide", "c.ide", "d.ide"};
  ProjectOptions project;
  TopBarPage page(settings, recent, &project);
  page.show();
  *bound(page, 1011).value = -3000;
  *bound(page, 1021).value = 5;
  *bound(page, 1022).value = 2;
  *bound(page, 1015).value = 1;  // the hierarchical radio
  EXPECT_TRUE(page.check());
  EXPECT_EQ(page.checkText(),
            "Left margin must be between -2048 and 2048.\nMaximum number of .IDE must be between 3 and 50.\n"
            "Menu size must be between 10 and 99.\n");
  page.store();
  EXPECT_EQ(settings.leftMargin, -3000);
  EXPECT_EQ(settings.menuSize, 5);
  EXPECT_EQ(recent.projects, (std::vector<std::string>{"a.ide", "b.ide"}));
  EXPECT_EQ(project.hierarchical, 1) << "the open project keeps its own construction";
  EXPECT_TRUE(page.changes().margins);
  EXPECT_FALSE(page.changes().enabled);
  EXPECT_FALSE(page.changes().alwaysOnTop);
}

TEST(DeliveryPageTest, GroupsFollowTheDeliveryNodeAndTheirDirectoriesReachTheProject) {
  ProjectNode root{"app.exe", "AppExpert", "", "", "", {}};
  root.nodes.push_back({"DELIVERY", "SourcePool", "", "", "", {{"app.exe", ".exe", "", "", "", {}},
                                                               {"app.hlp", ".hlp", "", "", "", {}}}});
  Tableau<OneDelRep> groups;
  ProjectOptions project;
  project.deliveryGroups = {{".exe", "c:\\bin", 1}, {".old", "c:\\gone", 1}};
  loadDeliveryGroups(groups, project);
  DeliveryPage page(groups, &project, &root);
  page.show();
  EXPECT_EQ(*bound(page, 1011).rows, (std::vector<std::string>{".exe -> c:\\bin", ".hlp -> "}));
  *bound(page, 1011).selected = 1;
  page.setSelectedGroup(std::string(300, 'd'), false);
  *bound(page, 1010).value = 0;
  page.store();
  ASSERT_EQ(project.deliveryGroups.size(), 2u);
  EXPECT_EQ(project.deliveryGroups[1].directory.size(), DeliveryPage::kMaxDirectoryLength);
  EXPECT_EQ(project.deliveryGroups[1].active, 0);
  EXPECT_EQ(project.withDelivery, 0);
  EXPECT_FALSE(page.toolEnabled());
}

TEST(DeliveryPageTest, PerProjectPagesWithoutAProjectAreDisabledAndStoreNothing) {
  Tableau<OneDelRep> groups;
  DeliveryPage delivery(groups, nullptr, nullptr);
  HtmlPage html(nullptr);
  KestoWindowsPage windows(nullptr);
  GroupwareSettings groupwareSettings;
  GroupwarePage groupware(groupwareSettings, nullptr);
  for (OptionPage* page : std::vector<OptionPage*>{&delivery, &html, &windows}) {
    page->show();
    EXPECT_FALSE(page->enabled(1010));
    page->store();
  }
  groupware.show();
  EXPECT_TRUE(groupware.enabled(1013));
  EXPECT_FALSE(groupware.enabled(GroupwarePage::kServerEdit));
  *bound(groupware, GroupwarePage::kServerEdit).text = "\\\\server";
  groupware.store();
  EXPECT_EQ(groupwareSettings.server.str(), "") << "no project to take a server directory";
  EXPECT_EQ(*bound(html, 1014).text, "*.cpp;*.h") << "the project defaults, shown disabled";
}

TEST(CompletionPageTest, RemoveAsksAndTheKeyIsStoredWithTheSwitch) {
  RecordingAlerts alerts;
  CompletionEngine engine;
  engine.files = {"a.kwd", "b.kwd"};
  CompletionPage page(engine);
  page.show();
  EXPECT_FALSE(page.enabled(CompletionPage::kRemoveButton)) << "nothing selected";
  *bound(page, 1012).selected = 1;
  alerts.answer = kAnswerNo;
  page.changed(CompletionPage::kRemoveButton);
  EXPECT_EQ(engine.files.size(), 2u);
  alerts.answer = kAnswerYes;
  page.changed(CompletionPage::kRemoveButton);
  EXPECT_EQ(engine.files, std::vector<std::string>{"a.kwd"});
  EXPECT_EQ(*bound(page, 1012).selected, 0) << "the selection stays inside the list";
  ASSERT_EQ(alerts.boxes.size(), 2u);
  EXPECT_EQ(alerts.boxes[0].text, "Ok to remove this file ?");
  page.keyCaptured(1011, 4116, "Ctrl+F5");
  EXPECT_EQ(engine.keyCode, 222) << "the key waits for the page to be stored";
  page.store();
  EXPECT_EQ(engine.keyCode, 4116);
  EXPECT_EQ(engine.textCode, "Ctrl+F5");
}

TEST(CompletionPageTest, ExtractionAddsTheNewKeywordFileOrTellsWhyNot) {
  RecordingAlerts alerts;
  TempDir dir;
  std::ofstream(dir.file("stack.cpp")) << "int Stack::push(int v)\n{\n}\n";
  CompletionEngine engine;
  CompletionPage page(engine);
  page.show();
  EXPECT_TRUE(page.extractFrom(dir.file("stack.cpp")));
  EXPECT_EQ(*bound(page, 1012).rows, std::vector<std::string>{dir.file("stack.kwd")});
  EXPECT_EQ(*bound(page, 1012).selected, 0) << "the new file is selected";
  EXPECT_FALSE(page.extractFrom(dir.file("missing.cpp")));
  EXPECT_EQ(engine.files.size(), 1u);
  ASSERT_EQ(alerts.boxes.size(), 1u);
  EXPECT_EQ(alerts.boxes[0].text, "Impossible to extract keywords");
}

TEST(MailOptionPageTest, ListCommandsNeedAProjectAndPasteACopiedList) {
  Mail mail;
  mail.setRecipients({"ann"});
  static bool open = false;
  MailOptionPage page(mail, [] { return open; });
  page.show();
  EXPECT_FALSE(page.enabled(1011));
  EXPECT_TRUE(page.enabled(1010));
  open = true;
  page.show();
  EXPECT_TRUE(page.enabled(1013));
  EXPECT_FALSE(page.enabled(1016)) << "nothing copied yet";
  page.changed(1015);
  EXPECT_TRUE(page.enabled(1016));
  *bound(page, 1012).text = "bob";
  page.changed(1012);
  EXPECT_EQ(*bound(page, 1011).rows, std::vector<std::string>{"bob"});
  EXPECT_TRUE(page.modified);
  page.store();
  EXPECT_EQ(mail.recipientTexts(), std::vector<std::string>{"bob"});
}
