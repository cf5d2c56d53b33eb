// Opening, saving and closing a project: the order the features are handed
// their parts in, a damaged task file, and options given back before a save.
#include <gtest/gtest.h>

#include <algorithm>

#include "foundation/os.h"
#include "project/project_session.h"
#include "support/fake_host.h"
#include "support/temp_dir.h"

namespace {

// Steps that write down when they ran, and what the current directory was.
struct RecordedSteps {
  std::vector<std::string> calls;
  bool tasksDamaged = false;

  ProjectSteps steps() {
    ProjectSteps steps;
    steps.loadTasks = [this](const std::string& taskFile, std::string* err) {
      calls.push_back("tasks " + fileNameOf(taskFile) + " in " + fileNameOf(os().currentDirectory()));
      if (tasksDamaged) *err = "damaged";
      return !tasksDamaged;
    };
    steps.takeOptions = [this](const ProjectOptions& options) {
      calls.push_back("options in " + fileNameOf(os().currentDirectory()) + " server " + options.groupwareServer);
    };
    steps.takeRecipients = [this](const std::vector<std::string>& recipients) {
      calls.push_back("recipients " + std::to_string(recipients.size()));
    };
    steps.decideFlash = [this](const std::string& marker) { calls.push_back("flash " + fileNameOf(marker)); };
    steps.giveOptions = [this](ProjectOptions* options) {
      calls.push_back("give");
      options->mailRecipients = {"bob"};
    };
    steps.forget = [this] { calls.push_back("forget"); };
    return steps;
  }
};

class ProjectSessionTest : public ::testing::Test {
 protected:
  void SetUp() override {
    previous_ = os().currentDirectory();
    ASSERT_TRUE(os().makeDirectory(joinPath(dir.path(), "proj"), nullptr));
    host.projectPath = joinPath(joinPath(dir.path(), "proj"), "demo.kpj");
    ProjectOptions stored;
    stored.groupwareServer = "srv";
    stored.mailRecipients = {"ann", "cid"};
    writeProjectOptions(host.options, stored);
  }
  void TearDown() override { os().setCurrentDirectory(previous_, nullptr); }

  TempDir dir;
  FakeHost host;
  RecordedSteps recorded;
  std::string previous_;
};

TEST_F(ProjectSessionTest, OpeningHandsEachFeatureItsPartInOrderAndADamagedTaskFileDoesNotStopIt) {
  recorded.tasksDamaged = true;
  ProjectSession session(recorded.steps(), true);
  std::string tasksErr;
  ASSERT_TRUE(session.open(host, 0, &tasksErr));
  EXPECT_EQ(tasksErr, "damaged");
  const std::string before = fileNameOf(previous_);
  EXPECT_EQ(recorded.calls, (std::vector<std::string>{"tasks demo.kpj.tsk in " + before, "options in proj server srv",
                                                      "recipients 2", "flash demo.kpj.fltme"}));
  ASSERT_NE(session.options(), nullptr);
  EXPECT_EQ(session.projectFile(), host.projectPath);
}

TEST_F(ProjectSessionTest, TheCommandLineKeepsItsDirectoryAndASaveTakesTheFeaturesChangesFirst) {
  ProjectSession session(recorded.steps(), false);
  std::string tasksErr;
  ASSERT_TRUE(session.open(host, 0, &tasksErr));
  EXPECT_EQ(os().currentDirectory(), previous_);
  ASSERT_TRUE(session.save(host));
  session.close();
  session.close();
  EXPECT_EQ(std::count(recorded.calls.begin(), recorded.calls.end(), "forget"), 1) << "forgotten once";
  EXPECT_EQ(session.options(), nullptr);
  EXPECT_EQ(readProjectOptions(host.options, 0).mailRecipients, std::vector<std::string>{"bob"});
}

TEST_F(ProjectSessionTest, NoProjectOpenedMeansNoStepRuns) {
  host.projectPath.clear();
  ProjectSession session(recorded.steps(), true);
  std::string tasksErr;
  EXPECT_FALSE(session.open(host, 0, &tasksErr));
  EXPECT_FALSE(session.save(host));
  session.close();
  EXPECT_TRUE(recorded.calls.empty());
  EXPECT_EQ(os().currentDirectory(), previous_);
}

}  // namespace
