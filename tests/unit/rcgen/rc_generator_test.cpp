// The generator's run over a project directory: which units are written, when,
// and what a failing file system leaves behind.
#include <gtest/gtest.h>

#include "rcgen/rc_generator.h"
#include "support/fault_os.h"
#include "rcgen/text_of.h"
#include "support/temp_dir.h"

namespace {

const char kScript[] =
    "#define IDC_NAME 5\nD DIALOG 0, 0, 1, 1\n{\n CONTROL \"\", IDC_NAME, \"edit\", 0, 0, 0, 1, 1\n}\n";

std::vector<std::string> runWindows(const std::string& directory, int32_t windows = 1) {
  RcGenerator generator;
  generator.windowsGeneration = windows;
  RcRunReport report;
  generator.run(directory, &report);
  EXPECT_EQ(report.errors, std::vector<std::string>{});
  return report.written;
}

// Puts every file of the project an hour in the past, so that a later change is seen as newer.
void ageFiles(const TempDir& project, const std::vector<std::string>& relatives) {
  for (const std::string& relative : relatives) {
    FileAttributes attributes;
    ASSERT_TRUE(os().attributes(project.file(relative), &attributes, nullptr));
    ASSERT_TRUE(os().setModified(project.file(relative), attributes.modified - 3600, nullptr));
  }
}

}  // namespace

TEST(RcGeneratorTest, FirstMakeWritesEveryUnitThenOnlyWhatChanged) {
  TempDir project;
  project.write(joinPath("src", "main.cpp"), "");
  project.write(joinPath("res", "App.RC"), kScript);
  project.write(joinPath("my dialogs", "x.txt"), "");
  project.write(joinPath(joinPath("src", "deep"), "deep.rc"), kScript);

  std::vector<std::string> expected = {
      project.file(joinPath("my dialogs", "rcmy dialogs.h")), project.file(joinPath("my dialogs", "rcmy dialogs.cpp")),
      project.file(joinPath("res", "rcres.h")),               project.file(joinPath("res", "rcres.cpp")),
      project.file(joinPath("src", "rcsrc.h")),               project.file(joinPath("src", "rcsrc.cpp")),
      project.file("rc.h"),                                   project.file("rc.cpp")};
  EXPECT_EQ(runWindows(project.path()), expected) << "shell files even where no script exists";
  EXPECT_NE(textOf(project, joinPath("res", "rcres.h")).find("class rcD : public Dialog"), std::string::npos);
  EXPECT_FALSE(os().exists(project.file(joinPath(joinPath("src", "deep"), "rcdeep.h")))) << "only one level down";
  EXPECT_EQ(textOf(project, joinPath("src", "rcsrc.cpp")).find("RCRCMAIN"), std::string::npos);
  EXPECT_NE(textOf(project, "rc.cpp").find("\nRCRCMAIN\n\n"), std::string::npos);

  EXPECT_EQ(runWindows(project.path()), std::vector<std::string>{}) << "nothing changed";

  ageFiles(project, {joinPath("res", "rcres.h"), joinPath("res", "rcres.cpp")});
  EXPECT_EQ(runWindows(project.path(), 0), std::vector<std::string>{}) << "the windows flag is off";
  EXPECT_EQ(runWindows(project.path()),
            (std::vector<std::string>{project.file(joinPath("res", "rcres.h")), project.file(joinPath("res", "rcres.cpp"))}));
}

TEST(RcGeneratorTest, AMissingOutputRegeneratesItsUnit) {
  TempDir project;
  project.write("a.rc", kScript);
  runWindows(project.path());
  ASSERT_TRUE(os().removeFile(project.file("rc.cpp"), nullptr));
  EXPECT_EQ(runWindows(project.path()), (std::vector<std::string>{project.file("rc.h"), project.file("rc.cpp")}));
}

TEST(RcGeneratorTest, AFailingFileSystemGivesANamedErrorAndNoHalfWrittenFile) {
  TempDir clean;
  clean.write("a.rc", kScript);
  runWindows(clean.path());
  const std::string expected = textOf(clean, "rc.h");

  for (int failAt = 1;; ++failAt) {
    TempDir project;
    project.write("a.rc", kScript);
    project.write("rc.h", "old header");
    FaultOs faults;
    faults.failAt = failAt;
    RcRunReport report;
    {
      ScopedOs scoped(faults);
      RcGenerator generator;
      generator.windowsGeneration = 1;
      generator.run(project.path(), &report);
    }
    std::string header = textOf(project, "rc.h");
    // A skipped script or a file left as it was is always named in an error.
    EXPECT_TRUE(header == expected || !report.errors.empty()) << "call " << failAt;
    EXPECT_TRUE(header == expected || header == "old header" || header.find("#endif") != std::string::npos);
    for (const std::string& error : report.errors) EXPECT_NE(error.find("injected fault"), std::string::npos);
    EXPECT_EQ("", project.temporariesLeft());
    if (faults.calls < failAt) break;
  }
}
