// The bar's menus in both constructions, with the column rule and the project view.
#include "topbar/bar_menu.h"

#include <gtest/gtest.h>

namespace {

ProjectNode node(const std::string& name, const std::string& type, std::vector<ProjectNode> children = {}) {
  ProjectNode made;
  made.name = name;
  made.type = type;
  made.nodes = std::move(children);
  return made;
}

// demo.ide: app.exe (two sources and a library target with one source), #hidden.exe, tool.exe (no children).
ProjectNode sampleProject() {
  return node("demo.ide", ".ide",
              {node("c:\\demo\\app.exe", ".exe",
                    {node("src\\main.cpp", ".cpp"), node("main.obj", ".obj"),
                     node("util.lib", ".lib", {node("util.cpp", ".cpp")}), node("app.def", ".def")}),
               node("#hidden.exe", ".exe", {node("secret.cpp", ".cpp")}), node("tool.exe", ".exe")});
}

TEST(BarMenuTest, WithoutAProjectOnlyTheKestoMenu) {
  RecentFiles recent;
  recent.projects = {"c:\\p\\one.ide"};
  recent.headers = {"c:\\inc\\a.h"};
  BarMenuInputs inputs;
  inputs.recent = &recent;
  EXPECT_EQ(describeMenu(buildBarMenu(inputs).bar),
            "Kesto\n  200 one.ide\n  -\n  Last Includes\n    400 a.h\n  -\n  199 Options...\n  196 Help...\n");
}

TEST(BarMenuTest, LinearPutsEveryTargetOnTheBarHierarchicalNestsThem) {
  RecentFiles recent;
  ProjectNode project = sampleProject();
  BarMenuInputs inputs;
  inputs.recent = &recent;
  inputs.project = &project;
  inputs.htmlActive = true;
  BarMenu linear = buildBarMenu(inputs);
  EXPECT_EQ(describeMenu(linear.bar),
            "Kesto\n  300 run app.exe\n  301 run tool.exe\n  -\n  Last Includes\n  -\n  Tasks\n"
            "    171 Manage...\n    173 Flash...\n  HTML\n    194 Generate\n    195 Run\n  -\n"
            "  199 Options...\n  196 Help...\n"
            "app.exe\n  10000 main.cpp\n  10002 app.def\nutil.lib\n  10001 util.cpp\n");
  ASSERT_EQ(linear.projectFiles.size(), 3u);
  EXPECT_EQ(linear.projectFiles[1]->name, "util.cpp");
  EXPECT_EQ(linear.tools[1]->name, "tool.exe");

  inputs.construction = kHierarchicalConstruction;
  inputs.htmlActive = false;
  BarMenu nested = buildBarMenu(inputs);
  ASSERT_EQ(nested.bar.items.size(), 3u);
  EXPECT_EQ(describeMenu(MenuModel{{nested.bar.items[1], nested.bar.items[2]}}),
            "app.exe\n  10000 main.cpp\n  util.lib\n    10001 util.cpp\n  10002 app.def\n10003 tool.exe\n");

  inputs.hideWithView = true;
  inputs.projectViewOpen = true;
  EXPECT_EQ(buildBarMenu(inputs).bar.items.size(), 1u) << "the project view hides the project menus";
}

TEST(BarMenuTest, ATargetOfManyFilesBreaksIntoColumnsOfMenuSize) {
  RecentFiles recent;
  ProjectNode target = node("big.exe", ".exe");
  for (int i = 0; i < 120; ++i) target.nodes.push_back(node("f" + std::to_string(i) + ".cpp", ".cpp"));
  ProjectNode project = node("big.ide", ".ide", {target});
  BarMenuInputs inputs;
  inputs.recent = &recent;
  inputs.project = &project;
  BarMenu menu = buildBarMenu(inputs);
  const std::vector<MenuItem>& files = menu.bar.items[1].children;
  ASSERT_EQ(files.size(), 120u);
  for (size_t i = 0; i < files.size(); ++i) EXPECT_EQ(files[i].columnBreak, i == 50 || i == 100) << i;
}

TEST(BarMenuTest, RunItemsStopAtTheirRangeAndCountTheRest) {
  RecentFiles recent;
  for (const int32_t rest : {0, 3}) {
    ProjectNode project = node("many.ide", ".ide");
    for (int32_t i = 0; i < kToolCommands.size() + rest; ++i)
      project.nodes.push_back(node("t" + std::to_string(i) + ".exe", ".exe"));
    BarMenuInputs inputs;
    inputs.recent = &recent;
    inputs.project = &project;
    const BarMenu menu = buildBarMenu(inputs);
    EXPECT_EQ(menu.tools.size(), static_cast<size_t>(kToolCommands.size()));
    const std::vector<MenuItem>& kesto = menu.bar.items[0].children;
    const size_t afterTools = static_cast<size_t>(kToolCommands.size());
    EXPECT_EQ(kesto[afterTools - 1].id, kToolCommands.last);
    EXPECT_EQ(kesto[afterTools], rest ? MenuItem::more(rest) : MenuItem::separator());
  }
}

}  // namespace
