// Quick add through its presenter, on a fake project tree.
#include <gtest/gtest.h>

#include "groupware/quick_add_presenter.h"
#include "support/fake_host.h"

namespace {

class QuickAddTest : public ::testing::Test {
 protected:
  FakeHost host;
  RecordingAlerts alerts;

  // demo.kpj > app.exe > { main.cpp, gui (SourcePool) > frame.cpp }
  QuickAddTest() {
    host.projectPath = "demo.kpj";
    host.root = ProjectNode{"demo.kpj", ".kpj", "", "", "", {}};
    ProjectNode gui{"gui", "SourcePool", "", "", "", {ProjectNode{"frame.cpp", ".cpp", "", "", "", {}}}};
    host.root.nodes.push_back(ProjectNode{"app.exe", ".exe", "", "", "", {{"main.cpp", ".cpp", "", "", "", {}}, gui}});
  }
  const ProjectNode& node(const char* name) { return *findNodeNamed(host.root, name); }
  std::vector<std::string> children(const char* name) {
    std::vector<std::string> names;
    for (const ProjectNode& child : node(name).nodes) names.push_back(child.name + " " + child.type);
    return names;
  }
  std::string lastBox() const { return alerts.boxes.empty() ? "" : alerts.boxes.back().text; }
};

TEST_F(QuickAddTest, TheTreeReadAgainWhileTheDialogIsUpStillGetsTheNodeBesideTheCurrentOne) {
  QuickAddPresenter presenter(host, host.root, node("frame.cpp"));
  // The host builds its tree anew: every node moves, as in the add-on.
  ProjectNode reread = host.root;
  host.root.nodes.clear();
  host.root.nodes.shrink_to_fit();
  host.root = reread;
  presenter.name = "view";
  ASSERT_TRUE(presenter.ok());
  EXPECT_EQ(children("gui"), (std::vector<std::string>{"frame.cpp .cpp", "view.cpp "}));
}

TEST_F(QuickAddTest, NameWithoutAnyDotBecomesACppSourceBesideTheCurrentNode) {
  for (const char* typed : {"util", "util.h", ".profile"}) {
    QuickAddPresenter presenter(host, host.root, node("main.cpp"));
    presenter.name = typed;
    ASSERT_TRUE(presenter.ok());
    ASSERT_NE(presenter.result(), nullptr);
  }
  std::vector<std::string> expected = {"main.cpp .cpp", "gui SourcePool", "util.cpp ", "util.h ", ".profile "};
  EXPECT_EQ(children("app.exe"), expected);
  EXPECT_TRUE(alerts.boxes.empty());
}

TEST_F(QuickAddTest, ContainerGoesWhereTheLevelSays) {
  struct Case {
    ContainerLevel level;
    const char* current;
    const char* holder;
  } cases[] = {{ContainerLevel::Sibling, "frame.cpp", "gui"},
               {ContainerLevel::Parent, "frame.cpp", "app.exe"},
               {ContainerLevel::Parent, "main.cpp", "demo.kpj"},  // the parent is already the top node
               {ContainerLevel::Root, "frame.cpp", "demo.kpj"}};
  int n = 0;
  for (const Case& c : cases) {
    std::string container = "pool" + std::to_string(n++);
    QuickAddPresenter presenter(host, host.root, node(c.current));
    presenter.name = "x.c";
    presenter.newContainer = true;
    presenter.containerName = container;
    presenter.level = c.level;
    ASSERT_TRUE(presenter.ok());
    const ProjectNode* pool = findNodeNamed(host.root, container);
    ASSERT_NE(pool, nullptr);
    EXPECT_EQ(parentOf(host.root, *pool), &node(c.holder)) << container;
    EXPECT_EQ(pool->type, "SourcePool");
    ASSERT_EQ(pool->nodes.size(), 1u);
    EXPECT_EQ(presenter.result(), &pool->nodes[0]);
  }
}

TEST_F(QuickAddTest, WarningsKeepTheDialogOpenAndCreateNothing) {
  QuickAddPresenter presenter(host, host.root, node("main.cpp"));
  EXPECT_FALSE(presenter.ok());
  EXPECT_EQ(lastBox(), "You should specify a node name !");
  EXPECT_EQ(alerts.boxes.back().caption, "Warning");
  presenter.name = "util";
  presenter.newContainer = true;
  EXPECT_FALSE(presenter.ok());
  EXPECT_EQ(lastBox(), "You should specify a container name !");
  presenter.containerName = "pool";
  host.refusedNodeType = "SourcePool";
  EXPECT_FALSE(presenter.ok());
  EXPECT_EQ(lastBox(), "No way to create container");
  EXPECT_EQ(children("app.exe").size(), 2u);
  EXPECT_EQ(host.root.nodes.size(), 1u);

  QuickAddPresenter onTop(host, host.root, host.root);
  onTop.name = "util";
  EXPECT_FALSE(onTop.ok());
  EXPECT_EQ(lastBox(), "No way to get parent node");
}

TEST_F(QuickAddTest, RefusedNodeEndsTheDialogWithNoResult) {
  host.refusedNodeType = "";
  QuickAddPresenter presenter(host, host.root, node("main.cpp"));
  presenter.name = std::string(200, 'n');
  EXPECT_TRUE(presenter.ok());
  EXPECT_EQ(presenter.result(), nullptr);
}

}  // namespace
