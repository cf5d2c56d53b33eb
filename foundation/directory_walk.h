// The walk of a directory tree for the files of one mask, listing each directory once.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "foundation/os.h"

class DirectoryWalker {
 public:
  // visit gets a file's path; false stops the walk.
  using Visitor = std::function<bool(const std::string& path)>;

  explicit DirectoryWalker(bool recurse) : recurse_(recurse) {}

  // Visits the files of dir matching mask (as Windows matches names), in
  // listing order, then, when recursing, descends depth-first into each
  // subdirectory whose name does not start with '.'. A directory that cannot
  // be listed is skipped. False when a visit stopped the walk.
  bool walk(const std::string& dir, const std::string& mask, const Visitor& visit);

 private:
  // One listing per directory per search: a search walks the tree once for each mask.
  const std::vector<DirectoryEntry>& listing(const std::string& dir);

  bool recurse_;
  std::map<std::string, std::vector<DirectoryEntry>> listings_;
};
