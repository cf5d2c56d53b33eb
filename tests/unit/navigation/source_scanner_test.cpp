// The scanner as the editor's title-bar menus use it: text from the host, the
// empty-result messages, the settings, and the rules a careless reading breaks.
#include <gtest/gtest.h>

#include "foundation/settings.h"
#include "foundation/settings_file.h"
#include "navigation/function_scan.h"
#include "navigation/navigation_menus.h"
#include "navigation/source_scanner.h"
#include "support/fake_host.h"
#include "support/temp_dir.h"

namespace {

std::vector<std::string> entries(const std::string& text) {
  Tableau<Fnc> list;
  scanFunctions(text, &list);
  std::vector<std::string> out;
  for (int32_t i = 0; i < list.count(); ++i)
    out.push_back(std::to_string(list[i]->line()) + "|" + list[i]->className() + "|" + list[i]->name());
  return out;
}

}  // namespace

TEST(FunctionScanTest, HeadSplitsIntoClassAndName) {
  EXPECT_EQ(entries("void Outer::Inner::Run(void)\n"), std::vector<std::string>{"1|Outer|Inner::Run"});
  EXPECT_EQ(entries("Foo& Foo::operator=(const Foo&)\n"), std::vector<std::string>{"1|Foo|operator="});
  EXPECT_EQ(entries("int main (void)\n"), std::vector<std::string>{"1||main "}) << "one trailing blank is kept";
  EXPECT_EQ(entries("int main  (void)\n"), std::vector<std::string>{}) << "two blanks leave no name";
  EXPECT_EQ(entries("char *Name(int)\n"), std::vector<std::string>{"1||Name"});
  // A line starting with ':' never reaches the split, so "::" in column one gives nothing.
  EXPECT_EQ(entries("::Global(void)\n"), std::vector<std::string>{});
}

TEST(FunctionScanTest, OnlyColumnOneLinesWithoutSemicolonCount) {
  EXPECT_EQ(entries(" int f(void)\n\tint g(void)\nint h(void);\n// int i()\n#define J(x) x\n"), std::vector<std::string>{});
  EXPECT_EQ(entries("int f(void) // ok; done\n"), std::vector<std::string>{}) << "';' in a trailing comment hides it";
  EXPECT_EQ(entries("while (x)\n"), std::vector<std::string>{"1||while "}) << "keywords are not filtered";
}

TEST(FunctionScanTest, CrLfAndLfGiveTheSameLineNumbers) {
  std::string lf = "int a(void)\n{\n}\n\nvoid B::c(void)\n{\n}";
  std::string crlf = "int a(void)\r\n{\r\n}\r\n\r\nvoid B::c(void)\r\n{\r\n}";
  EXPECT_EQ(entries(lf), entries(crlf));
  EXPECT_EQ(entries(lf), (std::vector<std::string>{"1||a", "5|B|c"}));
}

TEST(SourceScannerTest, ScansTheEditorTextBeforeTheFile) {
  TempDir dir;
  dir.write("a.cpp", "int onDisk(void)\n");
  FakeHost host;
  host.editors[dir.file("a.cpp")] = "\nint unsaved(void)\n";
  SourceScanner scanner;
  MenuModel menu;
  ASSERT_TRUE(scanner.functionsMenu(host, dir.file("a.cpp"), &menu));
  EXPECT_EQ(describeMenu(menu), "1000 unsaved\n");
  EXPECT_EQ(scanner.functionAt(0)->line(), 2);
  EXPECT_EQ(scanner.functionAt(1), nullptr);
  EXPECT_EQ(scanner.functionAt(-1), nullptr);
}

TEST(SourceScannerTest, EmptyResultsSayWhyAndOnlyFunctionsBeep) {
  TempDir dir;
  dir.write("empty.cpp", "");
  FakeHost host;
  SourceScanner scanner;
  MenuModel menu;
  EXPECT_FALSE(scanner.functionsMenu(host, dir.file("empty.cpp"), &menu));
  EXPECT_FALSE(scanner.includesMenu(host, dir.file("missing.cpp"), &menu)) << "an unreadable file reads as empty";
  EXPECT_EQ(host.statusTexts, (std::vector<std::string>{"No functions or methods detected !", "No include files detected !"}));
  ASSERT_EQ(host.beeps.size(), 1u);
  EXPECT_EQ(host.beeps[0].frequencyHz, 220u);
  EXPECT_EQ(host.beeps[0].durationMs, 500u);
}

TEST(SourceScannerTest, MenusSettingsHaveDefaultsAndAreWrittenOnRequest) {
  TempDir dir;
  SettingsFile file(dir.file("settings.reg"));
  settings().setBackend(&file);
  MenuSettings defaults = MenuSettings::read();
  EXPECT_TRUE(defaults.enabled);
  EXPECT_TRUE(defaults.sorted);
  EXPECT_EQ(defaults.size, 50);
  SourceScanner scanner;
  scanner.settings().size = 12;
  scanner.settings().sorted = false;
  scanner.writeSettings();
  MenuSettings again = MenuSettings::read();
  settings().setBackend(nullptr);
  EXPECT_EQ(again.size, 12);
  EXPECT_FALSE(again.sorted);
  EXPECT_TRUE(again.enabled);
}

TEST(NavigationMenusTest, QuickFindPopupShowsSetShortcuts) {
  std::array<uint16_t, 4> keys{0, 4070, 0, 0};
  std::array<std::string, 4> texts{"???", "Ctrl+F", "???", "???"};
  EXPECT_EQ(describeMenu(quickFindMenu(keys, texts)),
            "190 Find as function... \n191 Find as method... \tCtrl+F\n192 Find as class... \n-\n193 Cross reference... \n");
  EXPECT_EQ(describeMenu(editDocumentationMenu()), "177 Edit Documentation\n");
}
