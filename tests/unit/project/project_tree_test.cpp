// Lookups in the project tree: the node that holds a file and inherited directory options.
#include <gtest/gtest.h>

#include "project/project_tree.h"

namespace {

ProjectNode node(const std::string& name, std::vector<ProjectNode> children = {}) {
  ProjectNode made;
  made.name = name;
  made.nodes = std::move(children);
  return made;
}

}  // namespace

TEST(ProjectTreeTest, NodesInheritTheNearestAncestorsOptionsOnly) {
  ProjectNode root = node("demo.kpj", {node("app.exe", {node("src/main.cpp"), node("src/own.cpp")}),
                                       node("tool.exe", {node("tool.cpp")})});
  root.includePath = "include";
  root.nodes[0].sourcePath = "src";
  root.nodes[0].nodes[1].includePath = "own";
  root.nodes[1].sourcePath = "tools";

  const ProjectNode* main = findNodeHoldingFile(root, "/home/me/demo/SRC/MAIN.CPP");
  ASSERT_EQ(main, &root.nodes[0].nodes[0]) << "matched by file name, without case";
  std::string value;
  ASSERT_TRUE(nodeOption(root, *main, NodeOptionKind::SourcePath, &value));
  EXPECT_EQ(value, "src");
  ASSERT_TRUE(nodeOption(root, *main, NodeOptionKind::IncludePath, &value));
  EXPECT_EQ(value, "include");
  ASSERT_TRUE(nodeOption(root, root.nodes[0].nodes[1], NodeOptionKind::IncludePath, &value));
  EXPECT_EQ(value, "own");
  ASSERT_TRUE(nodeOption(root, root.nodes[1].nodes[0], NodeOptionKind::SourcePath, &value));
  EXPECT_EQ(value, "tools") << "a sibling branch's option never leaks in";
  value = "untouched";
  EXPECT_FALSE(nodeOption(root, root, NodeOptionKind::SourcePath, &value));
  EXPECT_EQ(value, "untouched");
  EXPECT_EQ(findNodeHoldingFile(root, "missing.cpp"), nullptr);
}

TEST(ProjectTreeTest, ANodeIsFoundAgainInANewerCopyOnlyWhereItStillIs) {
  const ProjectNode menu = node("demo.kpj", {node("app.exe", {node("a.cpp"), node("b.cpp")}), node("tool.exe")});
  ProjectNode ide = menu;
  EXPECT_EQ(sameNodeIn(menu, menu.nodes[0].nodes[1], ide), &ide.nodes[0].nodes[1]);
  EXPECT_EQ(sameNodeIn(menu, menu, ide), &ide);
  ide.nodes[0].nodes.erase(ide.nodes[0].nodes.begin());
  EXPECT_EQ(sameNodeIn(menu, menu.nodes[0].nodes[1], ide), nullptr) << "b.cpp moved up a place";
  EXPECT_EQ(sameNodeIn(menu, menu.nodes[0].nodes[0], ide), nullptr) << "another node took a.cpp's place";
  ide.nodes.pop_back();
  EXPECT_EQ(sameNodeIn(menu, menu.nodes[1], ide), nullptr) << "tool.exe is gone";
  const ProjectNode stranger = node("a.cpp");
  EXPECT_EQ(sameNodeIn(menu, stranger, ide), nullptr);
}
