// The engine: loading in list order, the three results, the list in the status
// text and the completion command's repeated request.
#include <gtest/gtest.h>

#include "completion/completion_command.h"
#include "completion/completion_engine.h"
#include "completion/keyword_file_commands.h"
#include "foundation/settings.h"
#include "foundation/settings_file.h"
#include "support/fake_host.h"
#include "support/temp_dir.h"

namespace {

class CompletionEngineTest : public ::testing::Test {
 protected:
  // Loads the engine from one keyword file with these lines.
  void loadKeywords(const std::string& text) {
    dir_.write("words.kwd", text);
    engine_.files = {dir_.file("words.kwd")};
    std::string err;
    ASSERT_TRUE(engine_.load(&err)) << err;
  }
  std::string complete(const std::string& prefix, CompletionMatch expected) {
    std::string text;
    EXPECT_EQ(engine_.complete(prefix, &text), expected) << prefix;
    return text;
  }

  TempDir dir_;
  CompletionEngine engine_;
};

}  // namespace

TEST_F(CompletionEngineTest, CompletesAsFarAsTheMatchesAgree) {
  loadKeywords("private\nprintf|formatted output, 100%% sure\nprint|print a value\n");
  EXPECT_EQ(complete("pri", kSeveralMatches), "");
  EXPECT_EQ(engine_.statusText(), "Possible :print, printf, private");
  EXPECT_EQ(complete("prin", kSeveralMatches), "t");
  EXPECT_EQ(engine_.statusText(), "Possible :print, printf");
  EXPECT_EQ(engine_.lastMatch(), 0);
  EXPECT_EQ(complete("priv", kUniqueMatch), "ate");
  EXPECT_EQ(engine_.statusText(), "Completion complete");
  EXPECT_EQ(engine_.lastMatch(), 2);
  EXPECT_EQ(complete("prx", kNoMatch), "");
  EXPECT_EQ(engine_.lastMatch(), 2) << "a failed match keeps the last one";
}

TEST_F(CompletionEngineTest, CommandInsertsThenShowsTheDescriptionOnARepeatedRequest) {
  loadKeywords("private\nprintf|formatted output, 100%% sure\nprint|print a value\n");
  CaretCompletion done = completeAtCaret(engine_, "  x = prin(1);", 11);
  EXPECT_EQ(done.insertText, "t");
  EXPECT_EQ(done.caretColumn, 12);
  EXPECT_EQ(done.statusText, "Possible :print, printf");

  CaretCompletion first = completeAtCaret(engine_, "printf", 7);
  EXPECT_EQ(first.insertText, "");
  EXPECT_EQ(first.statusText, "Completion complete");
  EXPECT_EQ(completeAtCaret(engine_, "printf", 7).statusText, "formatted output, 100% sure");

  CaretCompletion none = completeAtCaret(engine_, "x = zz", 7);
  EXPECT_FALSE(none.completed);
  EXPECT_EQ(none.insertText + std::to_string(none.caretColumn), "7");
  EXPECT_EQ(none.statusText, "No available completion");
  EXPECT_EQ(completeAtCaret(engine_, "priv", 5).statusText, "Completion done");
}

TEST_F(CompletionEngineTest, CommandIgnoresColumnOneEmptyAndOverlongWords) {
  loadKeywords(std::string(100, 'a') + "\nb\n");
  for (auto [line, column] : {std::pair<std::string, int32_t>{"b", 1}, {"b ", 3}, {"b", 9}, {std::string(100, 'a'), 101}}) {
    CaretCompletion outcome = completeAtCaret(engine_, line, column);
    EXPECT_EQ(outcome.statusText, "") << line << " at " << column;
    EXPECT_FALSE(outcome.completed);
  }
  EXPECT_EQ(completeAtCaret(engine_, "x." + std::string(99, 'a'), 102).insertText, "a");
}

TEST_F(CompletionEngineTest, StatusListStopsBeforeItsLimit) {
  std::string text;
  for (int i = 0; i < 500; ++i) text += "item" + std::to_string(1000 + i) + "\n";
  loadKeywords(text);
  EXPECT_EQ(complete("item", kSeveralMatches), "1");
  const std::string& status = engine_.statusText();
  EXPECT_LE(status.size(), 1023u);
  EXPECT_GT(status.size() + std::string(", item1000").size(), 1023u) << "one more would have fitted";
  EXPECT_EQ(status.compare(0, 28, "Possible :item1000, item1001"), 0);
}

TEST_F(CompletionEngineTest, LoadsListedFilesInByteOrderAndSkipsUnreadableOnes) {
  dir_.write("b.kwd", "same|from b\n\xe9t\xe9\nZeta\n");
  dir_.write("a.kwd", "same|from a\nzeta\n");
  engine_.files = {dir_.file("b.kwd"), dir_.file("missing.kwd"), dir_.file("a.kwd")};
  std::string err;
  EXPECT_FALSE(engine_.load(&err));
  EXPECT_NE(err.find("missing.kwd"), std::string::npos) << "the skipped file is named: " << err;
  ASSERT_EQ(engine_.keywordCount(), 5u);
  std::vector<std::string> order;
  for (size_t i = 0; i < engine_.keywordCount(); ++i) order.push_back(std::string(engine_.keyword(i).keyword));
  EXPECT_EQ(order, (std::vector<std::string>{"Zeta", "same", "same", "zeta", "\xe9t\xe9"}));
  EXPECT_EQ(engine_.keyword(1).description, "from b") << "equal keywords keep the list order";
  EXPECT_EQ(complete("\xe9", kUniqueMatch), "t\xe9");
}

TEST_F(CompletionEngineTest, SettingsSkipMissingEntriesAndRemovalAsks) {
  SettingsFile file(dir_.file("settings.reg"));
  settings().setBackend(&file);
  settings().writeInteger("Completion", "NbFiles", 3);
  settings().writeString("Completion\\Files", "Entry0", "c:\\kwd\\my words.kwd");
  settings().writeString("Completion\\Files", "Entry2", "not found");
  engine_.readSettings();
  EXPECT_EQ(engine_.files, std::vector<std::string>{"c:\\kwd\\my words.kwd"});
  EXPECT_TRUE(engine_.enabled);
  EXPECT_EQ(engine_.keyCode, 222);
  EXPECT_EQ(engine_.textCode, "???");

  RecordingAlerts alerts;
  alerts.answer = kAnswerNo;
  EXPECT_FALSE(removeKeywordFile(engine_, 0));
  alerts.answer = kAnswerYes;
  EXPECT_FALSE(removeKeywordFile(engine_, 1));
  EXPECT_TRUE(removeKeywordFile(engine_, 0));
  ASSERT_EQ(alerts.boxes.size(), 2u);
  EXPECT_EQ(alerts.boxes[0].text, "Ok to remove this file ?");
  EXPECT_EQ(alerts.boxes[0].style, static_cast<unsigned>(kAlertYesNo));
  EXPECT_TRUE(engine_.writeSettings());
  EXPECT_EQ(settings().readInteger("Completion", "NbFiles", -1), 0);
  settings().setBackend(nullptr);
}
