// The names the add-on reads from window titles, and the shortcut key code.
#include <gtest/gtest.h>

#include "project/editor_title.h"
#include "project/key_code.h"

TEST(EditorTitleTest, FileNameLosesViewNumberAndModifiedMark) {
  EXPECT_EQ(editorFileName("C:\\SRC\\FRAME.CPP:2 *"), "C:\\SRC\\FRAME.CPP");
  EXPECT_EQ(editorFileName("C:\\SRC\\FRAME.CPP *"), "C:\\SRC\\FRAME.CPP") << "drive colon kept";
  EXPECT_EQ(editorFileName("C:\\SRC\\FRAME.CPP:12"), "C:\\SRC\\FRAME.CPP");
  EXPECT_EQ(editorFileName("C:\\MY SRC\\A B.CPP"), "C:\\MY SRC\\A B.CPP") << "inner blanks stay";
  EXPECT_EQ(editorFileName("A:"), "A:") << "the first two characters are never cut";
  EXPECT_EQ(editorFileName(""), "");
  EXPECT_EQ(editorFileName(std::string(300, 'x')).size(), kEditorFileNameLimit);
  EXPECT_EQ(editorFileName("C:\\A.CPP:2", 5), "C:\\A.");
}

TEST(EditorTitleTest, DocumentationTitleKeepsTheViewNumber) {
  EXPECT_EQ(documentationTitle("C:\\SRC\\FRAME.CPP:2 * "), "C:\\SRC\\FRAME.CPP:2");
  EXPECT_EQ(documentationTitle(" * "), "");
  EXPECT_EQ(documentationTitle(std::string(600, 'a')).size(), kDocumentationTitleLimit);
}

TEST(EditorTitleTest, TitleNamesFileAtANameBoundary) {
  EXPECT_TRUE(titleNamesFile("C:\\SRC\\FILE.CPP:2", "FILE.CPP"));
  EXPECT_TRUE(titleNamesFile("c:/src/file.cpp", "FILE.CPP")) << "case and slash";
  EXPECT_TRUE(titleNamesFile("FILE.CPP", "FILE.CPP"));
  EXPECT_FALSE(titleNamesFile("C:\\SRC\\MYFILE.CPP", "FILE.CPP"));
  EXPECT_FALSE(titleNamesFile("C:\\SRC\\FILE.CPP.BAK", "FILE.CPP"));
  EXPECT_TRUE(titleNamesFile("C:\\A\\MYFILE.CPP D:\\FILE.CPP", "FILE.CPP")) << "a later occurrence counts";
  EXPECT_FALSE(titleNamesFile("anything", ""));
}

TEST(KeyCodeTest, ModifiersAddTheirThousands) {
  EXPECT_EQ(keyCode(116, true, false, true), 5116u) << "Ctrl+Shift+F5";
  EXPECT_EQ(keyCode(116, false, true, false), 2116u) << "Alt+F5";
  EXPECT_EQ(keyCode(222, false, false, false), 222u);
  EXPECT_EQ(keyCode(1116, false, false, false), 116u) << "only the virtual key below 1000";
}
