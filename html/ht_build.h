// Builds the documentation model of a directory tree: finds the files, reads them, sorts.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "html/ht_model.h"

// Told how far a long generation has gone: a phase name, the count done and the total.
using htProgress = std::function<void(const char* phase, size_t done, size_t total)>;

// The files a generation reads, in reading order: for each pattern of the ";"
// list, the matching plain files of the directory, then those of each
// subdirectory, recursively. Names beginning with "." are skipped; a file matched
// by two patterns comes twice. Unlistable directories count as empty.
std::vector<std::string> findHtSourceFiles(const std::string& directory, const std::string& filters);

// Reads every found file (its companion "NAME.txt" first) into project, then
// sorts the project's collections. Unreadable files are skipped silently. False
// when a consistency check stopped the reading (the box has been shown).
bool buildHtProject(htProjet& project, const htProgress& progress = nullptr);
