// Finding the file behind a chosen include on the project's search path.
#pragma once

#include <string>

class Host;

// The search path: the project directory, then the include path of the node
// that holds editorFile (else of the top node). In each directory in turn:
// directory/name, else each subdirectory not starting with '.', depth-first, the
// same way; the first hit wins. Shows the found path on the status line, or
// "Pas trouve" and "Cannot locate " + name, and returns whether it found one.
bool findInclude(Host& host, const std::string& name, const std::string& editorFile, std::string* path);
