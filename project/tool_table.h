// The IDE tools that open a file, chosen by the file's extension or node type.
#pragma once

#include <string>

#include "foundation/kstring.h"
#include "foundation/tableau.h"

// One IDE tool: its name, the extensions or node types it opens (";.cpp;.c;"
// with a leading and a trailing ";") and the class of the editor window it
// opens (empty when it opens none).
class Tool : public Basic {
 public:
  Tool() = default;
  Tool(const char* name, const char* extensions, const char* windowClass)
      : name(name), extensions(extensions), windowClass(windowClass) {}

  String name;
  String extensions;
  String windowClass;
};

// Fills the table with the IDE's tools in their fixed order (appends to what is there).
void fillToolTable(Tableau<Tool>* table);

// The name of the first tool whose list holds ";" + extension + ";" (exact and
// case-sensitive); its window class goes to *windowClass. Without a match:
// "EditText" in a "BCW5Editor" window.
std::string findTool(const Tableau<Tool>& table, const std::string& extension, std::string* windowClass);

// The tool that opens the file in its other form: the text editor for the
// resource scripts ("*.rc", "*.dlg", as Windows matches names) that the
// resource editor opens by default. Empty when the file has one form only: the
// text files, and the binary ones that are no use as text.
std::string alternativeTool(const std::string& fileName);

// What the status line says after a tool ran; empty for a plain success (0)
// and for results the tool service never gives.
std::string toolResultText(int result);
