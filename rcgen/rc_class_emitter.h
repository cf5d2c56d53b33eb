// Writes the text of the generated class files: the unit's opening and closing
// lines, each script's menu macros and one class per dialog. Every function
// appends to the text it is given and never fails.
#pragma once

#include <string>
#include <vector>

#include "rcgen/rc_script_model.h"

// The generated-file mark, the header guard and the includes of unit N ("" for
// the project directory).
void emitUnitOpening(const std::string& unitName, RcUnitText* unit);
// The RCRCMAIN line (project directory only) and the header's closing #endif.
void emitUnitClosing(const std::string& unitName, RcUnitText* unit);

// The CallBar_ and Menubar_ macros of one script's menu items, in script order.
void emitMenuMacros(const std::vector<RcMenuItem>& items, std::string* header);

// The class head, written when a dialog opens; it stays unterminated when the
// dialog's closing brace never comes.
void emitClassHead(const RcDialog& dialog, std::string* header);
// The rest of the class and its implementation; `items` are the menu items of
// the script, of which those of the dialog's own menu get handlers.
void emitClassBody(const RcDialog& dialog, const std::vector<RcMenuItem>& items, RcUnitText* unit);

// "TabControl", "TreeView" and "ListView" report through notifications; every
// other control class through commands.
bool isNotificationClass(const std::string& className);
