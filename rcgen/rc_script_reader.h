// Reads one resource script in three passes (identifiers, menus, dialogs) and
// appends the menu macros and dialog classes it yields to a unit's texts.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "rcgen/rc_script_model.h"

// The script's bytes as stored: 8-bit, or UTF-16 with a byte-order mark; lines
// end in LF or CR LF. Lines that match
// nothing are skipped, so any input is accepted. Never fails.
void readRcScript(const std::string& script, RcUnitText* unit);

// The passes over the script's text (UTF-8 when the script was UTF-16), for
// tests and tools that want the tables themselves.
std::vector<RcDefine> readRcDefines(std::string_view text);
std::vector<RcMenuItem> readRcMenuItems(std::string_view text, const std::vector<RcDefine>& defines);

// The first entry named exactly `name`, or null.
const RcDefine* findRcDefine(const std::vector<RcDefine>& defines, const std::string& name);

// The control of a CONTROL line, or false when the line yields none (an
// unsupported class, a numeric or unknown identifier).
bool readRcControl(std::string_view line, const std::vector<RcDefine>& defines, RcControl* control);
