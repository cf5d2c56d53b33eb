// Reads one source text into the documentation model, line by line.
#pragma once

#include <string>
#include <string_view>

#include "html/ht_model.h"

// Letters a-z and A-Z, digits and "_": what names are made of in sources and prose.
inline bool isHtIdentifierChar(unsigned char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

// Reads the bytes of a source (or its companion ".txt") as lines of `file`:
// documentation comments, class declarations, "CALCUL_" functions, method
// definitions and macros go into the project. Each call starts in the idle state
// with no plain comment open. False when a consistency check stopped the
// reading (the box has been shown); the model then holds what was read so far.
bool readHtSource(htProjet& project, htFile& file, std::string_view text);
