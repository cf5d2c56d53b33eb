// The add-on's IDE services against the test IDE, in this process: every
// reference and string the add-on takes must come back.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "ide/addon_slots_win32.h"
#include "ide/ide_host_win32.h"
#include "ide/ide_services_win32.h"
#include "ide/make_client_win32.h"
#include "support/fake_host.h"
#include "test_ide.h"

namespace {

class IdeServicesTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ide_.AddRef();
    storeIdePointer(&ide_);
    addon().editor.reset(new ServiceHolder<IIdeEditor>(ide_iid::kEditor));
    addon().statusLine.reset(new ServiceHolder<IIdeStatusLine>(ide_iid::kStatusLine));
    addon().options.reset(new ServiceHolder<IIdeNodeOptions>(ide_iid::kNodeOptions));
  }
  void TearDown() override {
    addon().editor.reset();
    addon().statusLine.reset();
    addon().options.reset();
    releaseIdePointer();
    EXPECT_EQ(ide_.referencesHeld(), 0);
    EXPECT_EQ(TestIde::liveStrings, 0);
    EXPECT_EQ(ide_.editor.openTransactions, 0);
  }

  TestIde ide_;
};

}  // namespace

TEST(IdeServicesBeforeStartTest, NothingHappensWithoutTheIde) {
  showStatusText("Searching...");
  char word[256] = "stale";
  wordAtCursor("C:\\SRC\\A.CPP", word);
  EXPECT_STREQ(word, "");
  EXPECT_EQ(getService(ide_iid::kStatusLine), nullptr);
  EXPECT_EQ(makeIdeString("x"), nullptr);
  EXPECT_EQ(acquireIdePointer(), nullptr);
  releaseIdePointer();
}

TEST_F(IdeServicesTest, StatusTextAndMissingServices) {
  showStatusText("Searching...");
  EXPECT_EQ(ide_.statusLine.texts, std::vector<std::string>{"Searching..."});

  ide_.withhold(ide_iid::kTools);
  EXPECT_EQ(getService(ide_iid::kTools), nullptr);
  EXPECT_EQ(ideHost().runTool("EditText", "C:\\SRC\\A.CPP"), -1);
}

TEST_F(IdeServicesTest, GoToLineInsideOneTransaction) {
  ide_.openFile("C:\\SRC\\MAIN.CPP", "a\nb\n");
  goToLine("c:\\src\\main.cpp", 12);
  EXPECT_EQ(ide_.editor.log, (std::vector<std::string>{"begin", "current 1", "cursor 1 12", "scroll 13", "end"}));

  ide_.editor.log.clear();
  goToLine("C:\\SRC\\OTHER.CPP", 3);
  EXPECT_TRUE(ide_.editor.log.empty()) << "no view, no transaction";
}

TEST_F(IdeServicesTest, WordAtCursorPastTheLineEndAndOnALongWord) {
  const std::string longWord(300, 'w');
  const IdeHandle view = ide_.openFile("C:\\SRC\\A.CPP", "int value;\r\nx = " + longWord + ";");
  char word[256];

  ide_.editor.buffers[view].column = 20;
  ide_.editor.buffers[view].line = 1;
  wordAtCursor("C:\\SRC\\A.CPP", word);
  EXPECT_STREQ(word, "");

  ide_.editor.buffers[view].column = 7;
  ide_.editor.log.clear();
  wordAtCursor("C:\\SRC\\A.CPP", word);
  EXPECT_STREQ(word, "value");
  EXPECT_EQ(ide_.editor.log, (std::vector<std::string>{"begin", "current 1", "cursor 7 1", "end"}))
      << "the cursor is put back where it was";

  ide_.editor.buffers[view].column = 5;
  ide_.editor.buffers[view].line = 2;
  wordAtCursor("C:\\SRC\\A.CPP", word);
  EXPECT_EQ(std::string(word), longWord.substr(0, 255));
}

TEST_F(IdeServicesTest, EditorSessionReadsInsertsAndMovesTheCursor) {
  const IdeHandle view = ide_.openFile("C:\\SRC\\A.CPP", "std::str\n");
  ide_.editor.buffers[view].column = 9;
  {
    EditorSession session("C:\\SRC\\A.CPP");
    ASSERT_TRUE(session.open());
    EXPECT_EQ(session.line(1), "std::str");
    EXPECT_EQ(session.line(2), "");
    session.insert("ing", true);
  }
  EXPECT_EQ(ide_.editor.buffers[view].lines[0], "std::string");
  EXPECT_EQ(ide_.editor.buffers[view].column, 12);

  std::string text;
  EXPECT_TRUE(ideHost().editorText("C:\\SRC\\A.CPP", &text));
  EXPECT_EQ(text, "std::string\r\n");
  EXPECT_FALSE(ideHost().editorText("C:\\SRC\\B.CPP", &text));
}

TEST_F(IdeServicesTest, MakeRegistrationFailuresAreTold) {
  RecordingAlerts alerts;
  registerMakeClient([] { return nullptr; });
  ASSERT_EQ(alerts.boxes.size(), 1u);
  EXPECT_EQ(alerts.boxes[0].text, "Creation CMK impossible");
  EXPECT_EQ(alerts.boxes[0].caption, "Erreur");
  unregisterMakeClient();

  ide_.withhold(ide_iid::kMake);
  bool created = false;
  registerMakeClient([&created] {
    created = true;
    return nullptr;
  });
  ASSERT_EQ(alerts.boxes.size(), 2u);
  EXPECT_EQ(alerts.boxes[1].text, "Creation SMK impossible");
  EXPECT_EQ(alerts.boxes[1].caption, "Erreur");
  EXPECT_EQ(alerts.boxes[1].style, static_cast<unsigned>(kAlertOk));
  EXPECT_FALSE(created) << "no client without the service";
  unregisterMakeClient();
}

TEST_F(IdeServicesTest, MakeClientHearsTheBuildUntilUnregistered) {
  std::vector<std::string> heard;
  auto alive = std::make_shared<int>(0);
  registerMakeClient([&heard, alive] {
    return new MakeClient([&heard, alive] { heard.push_back("started"); },
                          [&heard](bool succeeded) { heard.push_back(succeeded ? "ended" : "failed"); });
  });
  ide_.make.fireMakeStarted();
  ide_.make.fireMakeEnded(false);
  EXPECT_EQ(heard, (std::vector<std::string>{"started", "failed"}));

  unregisterMakeClient();
  EXPECT_TRUE(ide_.make.clients.empty());
  EXPECT_EQ(alive.use_count(), 1) << "the client was deleted with its last reference";
}

TEST_F(IdeServicesTest, HostReadsTheProjectAndRunsTools) {
  EXPECT_EQ(ideHost().projectRoot(), nullptr);
  EXPECT_EQ(ideHost().projectOptions(), nullptr);

  ide_.project.projectFile = "C:\\PROJECTS\\DEMO\\DEMO.IDE";
  const IdeHandle top = ide_.project.addNode(0, "demo.exe", ".exe", "the demo");
  const IdeHandle source = ide_.project.addNode(top, "main.cpp", ".cpp");
  ide_.project.addNode(top, "main.h", ".h");
  ide_.nodeOptions.nodeOptions[{source, 1}] = "C:\\BC5\\INCLUDE;..\\inc";
  EXPECT_EQ(ideHost().projectFile(), "C:\\PROJECTS\\DEMO\\DEMO.IDE");
  const ProjectNode* root = ideHost().projectRoot();
  ASSERT_NE(root, nullptr);
  EXPECT_EQ(root->description, "the demo");
  ASSERT_EQ(root->nodes.size(), 2u);
  EXPECT_EQ(root->nodes[0].name, "main.cpp");
  EXPECT_EQ(root->nodes[0].includePath, "C:\\BC5\\INCLUDE;..\\inc");
  EXPECT_EQ(root->nodes[1].type, ".h");

  ProjectOptionStore* options = ideHost().projectOptions();
  ASSERT_NE(options, nullptr);
  const std::string bytes("\x01\x00\x00\x00", 4);
  EXPECT_TRUE(options->set("Kesto_HIERARCH", bytes));
  std::string read;
  EXPECT_TRUE(options->get("Kesto_HIERARCH", &read));
  EXPECT_EQ(read, bytes) << "zero bytes survive";
  EXPECT_FALSE(options->get("Kesto_GenRC", &read));

  ide_.tools.result = 2;
  EXPECT_EQ(ideHost().runTool("Project", "C:\\PROJECTS\\X.IDE"), 2);
  EXPECT_EQ(ideHost().runTool("NoSuchTool", "C:\\X"), -1);
  ASSERT_EQ(ide_.tools.runs.size(), 1u);
  EXPECT_EQ(ide_.tools.runs[0].tool, "Project");
  EXPECT_EQ(ide_.tools.runs[0].file, "C:\\PROJECTS\\X.IDE");
}

TEST_F(IdeServicesTest, HostFillsTheMessageWindowAndKnowsTheFrame) {
  const MessageGroup group{"Cross reference", "&Cross reference"};
  const Host::MessageHandle top = ideHost().addMessage(group, 0, "Find 'main'");
  ideHost().addLocatedMessage(group, top, "int main()", "C:\\SRC\\A.CPP", 7, 5, 0);
  ASSERT_EQ(ide_.messageWindow.messages.size(), 2u);
  EXPECT_EQ(ide_.messageWindow.messages[0].file, "");
  EXPECT_EQ(ide_.messageWindow.messages[1].parent, static_cast<IdeHandle>(top));
  EXPECT_EQ(ide_.messageWindow.messages[1].line, 7);
  EXPECT_EQ(ide_.messageWindow.messages[1].column, 5);
  EXPECT_EQ(ideHost().mainWindowTitle(), "Borland C++ - demo");
}
