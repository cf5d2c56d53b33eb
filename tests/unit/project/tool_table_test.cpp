// Which IDE tool opens a file, and what the status line says after a run.
#include <gtest/gtest.h>

#include "project/tool_table.h"

namespace {

std::string toolFor(const std::string& extension, std::string* windowClass) {
  Tableau<Tool> table;
  fillToolTable(&table);
  return findTool(table, extension, windowClass);
}

}  // namespace

TEST(ToolTableTest, ChoosesByExtensionOrNodeTypeAndFallsBackToTheEditor) {
  std::string windowClass = "stale";
  EXPECT_EQ(toolFor(".h", &windowClass), "EditText");
  EXPECT_EQ(windowClass, "BCW5Editor");
  EXPECT_EQ(toolFor(".ide", &windowClass), "Project");
  EXPECT_EQ(windowClass, "") << "a tool without an editor window clears the class";
  EXPECT_EQ(toolFor("AppExpertDll", &windowClass), "ClassExpert");
  EXPECT_EQ(toolFor(".ico", &windowClass), "EditIconFile");
  EXPECT_EQ(windowClass, "BCW5RWGroupIcon");

  EXPECT_EQ(toolFor(".xyz", &windowClass), "EditText");
  EXPECT_EQ(windowClass, "BCW5Editor");
}

TEST(ToolTableTest, MatchesWholeEntriesOnlyAndKeepsCase) {
  std::string windowClass;
  // ".c" must not be taken for the start of ".cpp", nor "AppExpert" for "AppExpertDll".
  EXPECT_EQ(toolFor(".cur", &windowClass), "EditCursorFile");
  EXPECT_EQ(toolFor("AppExpert", &windowClass), "ClassExpert");
  EXPECT_EQ(toolFor(".RC", &windowClass), "EditText") << "the test is case-sensitive";
  EXPECT_EQ(toolFor("", &windowClass), "EditText");
  EXPECT_EQ(toolFor(".exe;.c", &windowClass), "EditText");
}

TEST(ToolTableTest, ResultTexts) {
  EXPECT_EQ(toolResultText(-1), "Tool non handled");
  EXPECT_EQ(toolResultText(0), "");
  EXPECT_EQ(toolResultText(1), "Tool: Warnings");
  EXPECT_EQ(toolResultText(2), "Tool: Errors");
  EXPECT_EQ(toolResultText(3), "Tool: Fatal error");
  EXPECT_EQ(toolResultText(4), "");
}

TEST(ToolTableTest, OnlyResourceScriptsHaveAnotherForm) {
  EXPECT_EQ(alternativeTool("src\\APP.RC"), "EditText") << "names match as Windows matches them";
  EXPECT_EQ(alternativeTool("about.dlg"), "EditText");
  EXPECT_EQ(alternativeTool("app.res"), "") << "binary: no use as text";
  EXPECT_EQ(alternativeTool("main.cpp"), "") << "already text";
  EXPECT_EQ(alternativeTool("rc"), "");
}
