// The includes scan: every file named by a line that mentions "#include".
#pragma once

#include <string>
#include <string_view>

#include "foundation/kstring.h"
#include "foundation/tableau.h"

// Include names are copied through a working slot of this many bytes, the zero included.
constexpr size_t kIncludeNameSlot = 200;

// The name that one line gives; false when it gives none. The name between
// '<' and '>' is tried before the one after a double-quote character, and a
// commented-out include counts too.
bool includeOnLine(std::string_view line, std::string* name);

// Appends the names of text to list in file order.
void scanIncludes(std::string_view text, Tableau<String>* list);
