// Source reading and pairing that the golden sites do not show: line limits, zero bytes, the find-or-add kinds.
#include <gtest/gtest.h>

#include <string>

#include "html/ht_reader.h"

namespace {

struct Reading {
  htProjet project{"Demo", "", "*.cpp"};
  htFile* file = project.addFile("demo.cpp");
  bool read(const std::string& text) { return readHtSource(project, *file, text); }
};

TEST(HtmlReader, LongLinesArriveInPartsAndAZeroByteEndsALine) {
  Reading reading;
  std::string longLine = "#define LONG " + std::string(5000, 'x');
  std::string zeroByte("CALCUL_INT cut(int n)\0junk\n", 27);
  ASSERT_TRUE(reading.read(longLine + "\n" + zeroByte + "#define EXACT " + std::string(4095 - 14, 'y') +
                           "\n#define AFTER 1"));
  ASSERT_EQ(3, reading.project.macros.count());
  EXPECT_EQ(longLine.substr(0, 4095) + "\n", reading.project.macros[0]->declaration.str());
  // A line of exactly 4,095 characters leaves its line end for an empty next line.
  EXPECT_EQ(std::string("EXACT"), reading.project.macros[1]->name.c_str());
  EXPECT_EQ(std::string("AFTER"), reading.project.macros[2]->name.c_str());
  ASSERT_EQ(1, reading.project.functions.count());
  EXPECT_EQ("CALCUL_INT cut(int n)\n", reading.project.functions[0]->declaration.str());
}

TEST(HtmlReader, MacroContinuationEndsAtAnEmptyLineAndEachReadingStartsIdle) {
  Reading reading;
  ASSERT_TRUE(reading.read("#define TWO(a) \\\n\nCALCUL_INT next(int n)\n/** open Never closed\n"));
  ASSERT_TRUE(reading.read("CALCUL_INT second(int n)\r\n"));
  EXPECT_EQ("#define TWO(a) \\\n\n", reading.project.macros[0]->declaration.str());
  ASSERT_EQ(3, reading.project.functions.count());
  EXPECT_EQ("open", reading.project.functions[1]->name.str());
  EXPECT_EQ("", reading.project.functions[1]->documentation.str());
  EXPECT_EQ("CALCUL_INT second(int n)\n", reading.project.functions[2]->declaration.str());
}

TEST(HtmlReader, HeadersWithoutANameOpenACommentThatKeepsNothing) {
  Reading reading;
  ASSERT_TRUE(reading.read("/** (anonymous) text\nlost\n*/\n/**   ::push\nlost too\n*/\n/** #\xa7 x\n*/\n"));
  EXPECT_EQ(0, reading.project.functions.count());
  EXPECT_EQ(0, reading.project.classes.count());
  EXPECT_EQ(0, reading.project.macros.count());
}

TEST(HtmlModel, FindOrAddKindsPairDocumentationAndDeclarationsInOrder) {
  htProjet project("Demo", "", "");
  htFile* header = project.addFile("a.h");
  htFile* source = project.addFile("a.cpp");
  htSymbol* first = project.findOrAddFunction("f", *header, htKind::Documentation);
  first->documentation = "doc\n";
  EXPECT_EQ(first, project.findOrAddFunction("f", *source, htKind::Declaration));
  EXPECT_EQ(first, project.findOrAddFunction("f", *source, htKind::Any));
  htSymbol* second = project.findOrAddFunction("f", *source, htKind::Documentation);
  EXPECT_NE(first, second);
  EXPECT_EQ(1, header->functions.count());
  EXPECT_EQ(1, source->functions.count());

  htClass* stack = project.findOrAddClass("Stack", *header);
  EXPECT_EQ(stack, project.findOrAddClass("Stack", *source));
  EXPECT_EQ(stack, project.findOrAddClass("Stack", *source));
  EXPECT_EQ(1, source->classes.count());
  htSymbol* push = stack->findOrAddMethod("push", htKind::Any, project.nextSerial());
  EXPECT_EQ(push, stack->findOrAddMethod("push", htKind::Any, project.nextSerial()));
  push->declaration = "void push()\n";
  EXPECT_NE(push, stack->findOrAddMethod("push", htKind::Any, project.nextSerial()));
  EXPECT_EQ(push, stack->findOrAddMethod("push", htKind::Documentation, project.nextSerial()));
}

TEST(HtmlModel, SortKeepsTheCreationOrderOfEqualNames) {
  htProjet project("Demo", "", "");
  htFile* file = project.addFile("a.cpp");
  for (const char* name : {"zeta", "f", "Alpha", "f", "f"})
    project.findOrAddFunction(name, *file, htKind::Declaration)->declaration = std::string(name) + "\n";
  project.functions[3]->declaration += "second";
  project.sortCollections();
  ASSERT_EQ(5, project.functions.count());
  EXPECT_EQ("Alpha", project.functions[0]->name.str());
  EXPECT_EQ("f\n", project.functions[1]->declaration.str());
  EXPECT_EQ("f\nsecond", project.functions[2]->declaration.str());
  EXPECT_EQ("zeta", project.functions[4]->name.str());
}

}  // namespace
