// The reader's fixed limits: 255-entry tables, fields cut at their width, the
// line buffer, zero bytes and UTF-16 scripts.
#include <gtest/gtest.h>

#include <string>

#include "rcgen/rc_script_reader.h"

namespace {

std::string editControl(const std::string& identifier) {
  return " CONTROL \"\", " + identifier + ", \"edit\", ES_LEFT, 0, 0, 1, 1\n";
}

size_t countOf(const std::string& text, const std::string& part) {
  size_t count = 0;
  for (size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
  return count;
}

}  // namespace

TEST(RcReaderLimitsTest, TablesStopAt255Entries) {
  std::string script;
  for (int i = 1; i <= 300; ++i) script += "#define IDC_E" + std::to_string(i) + " " + std::to_string(i) + "\n";
  script += "BIG DIALOG 0, 0, 1, 1\n{\n";
  for (int i = 1; i <= 300; ++i) script += editControl("IDC_E" + std::to_string(i));
  script += editControl("IDOK") + "}\n";

  std::vector<RcDefine> defines = readRcDefines(script);
  EXPECT_EQ(defines.size(), 255u);
  RcUnitText unit;
  readRcScript(script, &unit);
  EXPECT_EQ(countOf(unit.header, "    Edit E"), 255u);
  EXPECT_NE(unit.header.find("    Edit E255 ;\n"), std::string::npos);
  EXPECT_EQ(unit.header.find("E256"), std::string::npos) << "the 256th define is not known";
  EXPECT_EQ(unit.header.find(" OK ;"), std::string::npos) << "the control table was full";
}

TEST(RcReaderLimitsTest, LongNamesAreCutAtTheirFieldWidths) {
  std::string identifier = "IDC_" + std::string(120, 'N');
  std::string value(80, '7');
  std::string dialog(100, 'D');
  std::string menu(70, 'M');
  std::string script = "#define " + identifier + " " + value + "\n" + dialog + " DIALOG 0, 0, 1, 1\nMENU " + menu +
                       "\n{\n" + editControl(identifier) + "}\n";
  std::vector<RcDefine> defines = readRcDefines(script);
  ASSERT_EQ(defines.size(), 1u);
  EXPECT_EQ(defines[0].name.str(), identifier.substr(0, 69));
  EXPECT_EQ(defines[0].value.str(), value.substr(0, 49));

  // The full identifier no longer matches the cut name, so the control is dropped.
  RcUnitText unit;
  readRcScript(script, &unit);
  EXPECT_NE(unit.header.find("class rc" + dialog.substr(0, 79) + " : public Dialog"), std::string::npos);
  EXPECT_EQ(unit.header.find("Edit "), std::string::npos);

  RcControl control;
  std::string fits = "IDC_" + std::string(65, 'F');
  ASSERT_TRUE(readRcControl(editControl(fits), {{FixedText<70>(fits), FixedText<50>(value)}}, &control));
  EXPECT_EQ(control.member.str(), std::string(65, 'F'));
  EXPECT_EQ(control.id.str(), value.substr(0, 39));
}

TEST(RcReaderLimitsTest, LongLinesAreReadInPiecesOfTheLineBuffer) {
  // The second piece of this line starts at column 0 with "}", which closes the dialog.
  std::string script = "#define IDC_A 1\nX DIALOG 0, 0, 1, 1\n{\n" + editControl("IDC_A") + "//" +
                       std::string(1021, '-') + "}" + std::string(100000, '+') + "\n" + editControl("IDC_A") + "}\n";
  RcUnitText unit;
  readRcScript(script, &unit);
  EXPECT_EQ(countOf(unit.header, "class rcX"), 1u);
  EXPECT_EQ(countOf(unit.header, "    Edit A ;\n"), 1u);
  EXPECT_NE(unit.header.find("} ;\n"), std::string::npos);
}

TEST(RcReaderLimitsTest, ZeroBytesEndALineAndUtf16ScriptsAreDecoded) {
  const char withZero[] = "#define IDC_A 1\nZ DIALOG 0, 0, 1, 1\n{\n CONTROL \"\", IDC_A\0, \"edit\"\n}\n";
  RcUnitText unit;
  readRcScript(std::string(withZero, sizeof withZero - 1), &unit);
  EXPECT_NE(unit.header.find("class rcZ"), std::string::npos);
  EXPECT_EQ(unit.header.find("Edit A"), std::string::npos) << "the class field lies past the zero byte";

  std::u16string wide = u"\uFEFF#define IDC_W 7\r\nW DIALOGEX 0, 0, 1, 1\r\n{\r\n CONTROL \"\u00e9\", IDC_W, \"edit\", 0\r\n}\r\n";
  std::string littleEndian;
  std::string bigEndian;
  for (char16_t c : wide) {
    littleEndian += {static_cast<char>(c & 0xFF), static_cast<char>(c >> 8)};
    bigEndian += {static_cast<char>(c >> 8), static_cast<char>(c & 0xFF)};
  }
  for (const std::string& script : {littleEndian, bigEndian}) {
    RcUnitText decoded;
    readRcScript(script, &decoded);
    EXPECT_NE(decoded.implementation.find("  W.Get(this, 7) ;\n"), std::string::npos);
  }
}
