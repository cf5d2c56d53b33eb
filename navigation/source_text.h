// Where every navigation scan gets a file's text.
#pragma once

#include <string>

class Host;

// The text of an open editor on path, unsaved changes included, else the file
// on disk, UTF-16 with a byte-order mark decoded to UTF-8. text's storage is
// reused, which spares a walk over thousands of files as many fresh
// allocations. False with *err (may be null) when the file cannot be read (text
// is then empty): a FIFO or device is refused, not waited on.
bool readSourceText(Host& host, const std::string& path, std::string* text, std::string* err);
