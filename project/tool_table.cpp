// The IDE tools table and the choice of a tool for a file.
#include "project/tool_table.h"

#include "foundation/file_mask.h"

void fillToolTable(Tableau<Tool>* table) {
  static const char* const kTools[][3] = {
      {"RunExecutable", ";.exe;", ""},
      {"EditText", ";.cpp;.c;.h;AutoDepend;.asm;.def;.hpj;.rh;.kb;.txt;.spp;", "BCW5Editor"},
      {"Project", ";.ide;", ""},
      {"ClassExpert", ";AppExpert;AppExpertDll;", ""},
      {"EditResource", ";.rc;.res;.dll;.dlg;", "BCW5RWProject"},
      {"EditBitmapFile", ";.bmp;.rle;", "BCW5RWBitmap"},
      {"EditCursorFile", ";.cur;", "BCW5RWGroupCursor"},
      {"EditIconFile", ";.ico;", "BCW5RWGroupIcon"},
  };
  for (const auto& tool : kTools) table->append(new Tool(tool[0], tool[1], tool[2]));
}

std::string findTool(const Tableau<Tool>& table, const std::string& extension, std::string* windowClass) {
  const std::string wanted = ";" + extension + ";";
  for (int32_t i = 0; i < table.count(); ++i) {
    const Tool* tool = table[i];
    if (tool->extensions.str().find(wanted) != std::string::npos) {
      *windowClass = tool->windowClass.str();
      return tool->name.str();
    }
  }
  *windowClass = "BCW5Editor";
  return "EditText";
}

std::string alternativeTool(const std::string& fileName) {
  return matchesAnyMask(fileName, "*.rc;*.dlg") ? "EditText" : "";
}

std::string toolResultText(int result) {
  switch (result) {
    case -1:
      return "Tool non handled";
    case 1:
      return "Tool: Warnings";
    case 2:
      return "Tool: Errors";
    case 3:
      return "Tool: Fatal error";
    default:
      return "";
  }
}
