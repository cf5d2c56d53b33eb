// The scan of a project or server tree for the files that groupware exchanges.
#pragma once

#include <functional>
#include <string>

// Visits the path of every file under root whose name matches one of the
// filters ("*.cpp;*.h", split at ';'), descending depth-first into
// subdirectories except those whose names begin with '.' and links. A file
// matched by several filters is visited once per filter; the lists that
// collect them keep one element per path.
void scanTree(const std::string& root, const std::string& filters,
              const std::function<void(const std::string& path)>& visit);

// A root as the lists use it: without trailing separators, so that the listed
// name is what follows the root and one separator.
std::string normalizeRoot(const std::string& root);

// Whether path lies below root (normalized): a server directory kept inside
// the project directory, or the reverse, is not part of the other's scan.
bool isBelowRoot(const std::string& root, const std::string& path);

// The path with root and the following separator cut off; root must be normalized.
std::string listedName(const std::string& root, const std::string& path);
