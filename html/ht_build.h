// Builds the documentation model of a directory tree: finds the files, reads them, sorts.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "foundation/directory_walk.h"
#include "html/ht_model.h"

// Told how far a long generation has gone: a phase name, the count done and the total.
using htProgress = std::function<void(const char* phase, size_t done, size_t total)>;

// The files a generation reads, in reading order: for each pattern of the ";"
// list, the matching plain files of the directory, then those of each
// subdirectory, recursively. Names beginning with "." are skipped; a file matched
// by two patterns comes twice. Unlistable directories count as empty and, with
// FIFOs, devices and sockets matching a pattern, go to *skipped.
std::vector<std::string> findHtSourceFiles(const std::string& directory, const std::string& filters,
                                           std::vector<SkippedPath>* skipped);

// Reads every found file (its companion "NAME.txt" first, UTF-16 decoded) into
// project, then sorts the project's collections. What the walk left out and
// the sources that could not be read go to *skipped (may be null). False when
// a consistency check stopped the reading (the box has been shown).
bool buildHtProject(htProjet& project, const htProgress& progress = nullptr,
                    std::vector<SkippedPath>* skipped = nullptr);
// The same from the files a walk found; *skipped holds what the walk left out
// and gets the sources that could not be read.
bool buildHtProject(htProjet& project, const std::vector<std::string>& paths, const htProgress& progress,
                    std::vector<SkippedPath>* skipped);

// The digest of all a site is made from: the pages' format, the project's name,
// the filters and each found file's path, companion and bytes, read as
// buildHtProject reads them. False when one could not be read.
bool htInputDigest(const htProjet& project, const std::vector<std::string>& paths, const htProgress& progress,
                   std::string* digest);
