// Version stamping: the line rules on one text, and runs over a tree with backups.
#include <gtest/gtest.h>

#ifndef _WIN32
#include <unistd.h>
#endif

#include "rcgen/version_stamping.h"
#include "rcgen/text_of.h"
#include "support/fault_os.h"
#include "support/temp_dir.h"

namespace {

const char kVersionScript[] =
    "1 VERSIONINFO\n"
    "FILEVERSION 1,2,0,41\n"
    "PRODUCTVERSION 1,2,0,41\n"
    "{\n"
    "   VALUE \"FileVersion\", \"1.2.0.41\\0\"\n"
    "   VALUE \"ProductVersion\", \"1.2\\0\"\n"
    "}\n";

std::string versionWithBuild(int build) {
  return "FILEVERSION 3,1,4," + std::to_string(build) + "\n";
}

std::vector<std::string> stampTree(const std::string& directory, int32_t* buildNumber) {
  RcRunReport report;
  stampVersionTree(directory, buildNumber, &report);
  EXPECT_EQ(report.errors, std::vector<std::string>{});
  return report.written;
}

}  // namespace

TEST(VersionStampingTest, FileVersionLinesTakeTheBuildAndOthersAreCopied) {
  int32_t build = 1;
  EXPECT_EQ(stampVersionText(kVersionScript, &build),
            "1 VERSIONINFO\n"
            "FILEVERSION 1, 2, 0, 42\n"
            "PRODUCTVERSION 1,2,0,41\n"
            "{\n"
            "   VALUE \"FileVersion\", \"1.2.0.42\\000\\000\"\n"
            "   VALUE \"ProductVersion\", \"1.2\\0\"\n"
            "}\n");
  EXPECT_EQ(build, 42);

  build = 7;
  EXPECT_EQ(stampVersionText("   VALUE \"FileVersion\", \"x\"\r\nFILEVERSION\r\n\tVALUE \"FileVersion\", \"9\"\r\n"
                             "FILEVERSION 2 ,5\r\nFILEVERSION 99999999999,-3,x", &build),
            "   VALUE \"FileVersion\", \"1.0.0.7\\000\\000\"\n"
            "FILEVERSION\n"
            "\tVALUE \"FileVersion\", \"9\"\n"
            "FILEVERSION 2, 0, 0, 8\n"
            "FILEVERSION 2147483647, -3, 0, 9\n")
      << "value before the statement, bare statement, tab indent, partial and out-of-range numbers";
}

TEST(VersionStampingTest, LongLinesAndOddBytesAreCopiedWhole) {
  std::string longLine(100000, 'v');
  std::string text = "// caf\xe9\n" + longLine + "\n" + std::string("a\0b", 3) + "\n";
  int32_t build = 1;
  EXPECT_EQ(stampVersionText(text, &build), text);
}

TEST(VersionStampingTest, TheBackupStaysTheSourceAcrossRuns) {
  TempDir project;
  project.write("VERSION.RC", kVersionScript);
  int32_t build = 0;
  EXPECT_EQ(stampTree(project.path(), &build), std::vector<std::string>{project.file("VERSION.RC")});
  EXPECT_EQ(build, 42);
  EXPECT_EQ(project.read("VERSION.BAK"), kVersionScript);
  EXPECT_NE(textOf(project, "VERSION.RC").find("FILEVERSION 1, 2, 0, 42\n"), std::string::npos);

  project.write("VERSION.RC", "// edited by hand\nFILEVERSION 9,9,9,9\n");
  stampTree(project.path(), &build);
  EXPECT_EQ(build, 43);
  EXPECT_EQ(project.read("VERSION.BAK"), kVersionScript);
  EXPECT_NE(textOf(project, "VERSION.RC").find("FILEVERSION 1, 2, 0, 43\n"), std::string::npos);
  EXPECT_EQ(textOf(project, "VERSION.RC").find("edited"), std::string::npos) << "edits between runs are lost";
}

TEST(VersionStampingTest, SubdirectoriesComeFirstAndShareOneBuild) {
  TempDir project;
  project.write(joinPath("a", "VERSION.RC"), versionWithBuild(5));
  project.write(joinPath("b", "version.rc"), versionWithBuild(2));
  project.write(joinPath("b", "Version.Bak"), versionWithBuild(2));
  project.write(joinPath(joinPath("a", "deep dir"), "Version.RC"), versionWithBuild(1));
  project.write("VERSION.RC", versionWithBuild(0));
  int32_t build = 0;
  EXPECT_EQ(stampTree(project.path(), &build),
            (std::vector<std::string>{project.file(joinPath(joinPath("a", "deep dir"), "Version.RC")),
                                      project.file(joinPath("a", "VERSION.RC")),
                                      project.file(joinPath("b", "version.rc")), project.file("VERSION.RC")}));
  EXPECT_EQ(textOf(project, joinPath(joinPath("a", "deep dir"), "Version.RC")), "FILEVERSION 3, 1, 4, 2\n");
  EXPECT_EQ(textOf(project, joinPath("a", "VERSION.RC")), "FILEVERSION 3, 1, 4, 6\n");
  EXPECT_EQ(textOf(project, joinPath("b", "version.rc")), "FILEVERSION 3, 1, 4, 6\n") << "read from the old backup";
  EXPECT_EQ(project.read(joinPath("b", "Version.Bak")), versionWithBuild(2));
  std::vector<DirectoryEntry> entries;
  ASSERT_TRUE(os().listDirectory(project.file("b"), &entries, nullptr));
  ASSERT_EQ(entries.size(), 2u) << "no second backup under another case";
  EXPECT_EQ(entries[0].name, "Version.Bak");
  EXPECT_EQ(textOf(project, "VERSION.RC"), "FILEVERSION 3, 1, 4, 6\n");
}

TEST(VersionStampingTest, Utf16ScriptsKeepTheirEncoding) {
  auto utf16 = [](const std::u16string& text) {
    std::string bytes;
    for (char16_t c : text) bytes += {static_cast<char>(c & 0xFF), static_cast<char>(c >> 8)};
    return bytes;
  };
  TempDir project;
  project.write("VERSION.RC", utf16(u"\uFEFFFILEVERSION 1,0,0,1\r\n// \u00e9\u65e5\r\n"));
  int32_t build = 0;
  stampTree(project.path(), &build);
  EXPECT_EQ(project.read("VERSION.RC"), utf16(u"\uFEFFFILEVERSION 1, 0, 0, 2\r\n// \u00e9\u65e5\r\n"));
}

TEST(VersionStampingTest, ScriptsKeepTheirLineEnds) {
  TempDir project;
  project.write(joinPath("crlf", "VERSION.RC"), "1 VERSIONINFO\r\nFILEVERSION 1,0,0,1\r\n{\r\n}\r\n");
  project.write(joinPath("lf", "VERSION.RC"), "1 VERSIONINFO\nFILEVERSION 1,0,0,1\n");
  int32_t build = 0;
  stampTree(project.path(), &build);
  EXPECT_EQ(project.read(joinPath("crlf", "VERSION.RC")), "1 VERSIONINFO\r\nFILEVERSION 1, 0, 0, 2\r\n{\r\n}\r\n");
  EXPECT_EQ(project.read(joinPath("lf", "VERSION.RC")), platformText("1 VERSIONINFO\nFILEVERSION 1, 0, 0, 2\n"));
}

TEST(VersionStampingTest, AFailingFileSystemNeverLosesTheFirstText) {
  for (int failAt = 1;; ++failAt) {
    TempDir project;
    project.write("VERSION.RC", kVersionScript);
    FaultOs faults;
    faults.failAt = failAt;
    RcRunReport report;
    int32_t build = 0;
    {
      ScopedOs scoped(faults);
      stampVersionTree(project.path(), &build, &report);
    }
    bool stamped = report.written.size() == 1;
    EXPECT_NE(stamped, report.errors.size() == 1) << "stamped, or one error, at call " << failAt;
    EXPECT_TRUE(project.read("VERSION.BAK") == kVersionScript || project.read("VERSION.RC") == kVersionScript)
        << "call " << failAt;
    if (stamped) {
      EXPECT_EQ(project.read("VERSION.BAK"), kVersionScript);
      EXPECT_NE(textOf(project, "VERSION.RC").find("1, 2, 0, 42"), std::string::npos);
    }
    EXPECT_EQ("", project.temporariesLeft());
    if (faults.calls < failAt) break;
  }
}

#ifndef _WIN32
TEST(VersionStampingTest, ALinkBackUpTheTreeIsNotWalked) {
  TempDir project;
  project.write("VERSION.RC", versionWithBuild(1));
  ASSERT_EQ(::symlink(".", project.file("loop").c_str()), 0);
  RcRunReport report;
  int32_t build = 0;
  stampVersionTree(project.path(), &build, &report);
  EXPECT_EQ(report.written, std::vector<std::string>{project.file("VERSION.RC")});
  EXPECT_EQ(textOf(project, "VERSION.RC"), "FILEVERSION 3, 1, 4, 2\n");
}
#endif
