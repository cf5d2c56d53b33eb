// Where every navigation scan gets a file's text.
#pragma once

#include <string>

class Host;

// The text of an open editor on path, unsaved changes included, else the file
// on disk; an unreadable file reads as empty. text's storage is reused, which
// spares a walk over thousands of files as many fresh allocations.
void readSourceText(Host& host, const std::string& path, std::string* text);
