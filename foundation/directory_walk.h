// The walk of a directory tree for the files of one mask, listing each directory once.
#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "foundation/os.h"

// A path a walk left out, and why: nothing is left out without a word.
struct SkippedPath {
  std::string path;
  std::string why;
};

// path with why, where why may be the OS layer's message about path: the
// reason alone is kept.
SkippedPath skippedBecause(const std::string& path, const std::string& why);

class DirectoryWalker {
 public:
  // visit gets a file's path; false stops the walk.
  using Visitor = std::function<bool(const std::string& path)>;

  explicit DirectoryWalker(bool recurse) : recurse_(recurse) {}

  // Visits the regular files of dir matching mask (as Windows matches names),
  // in listing order, then, when recursing, descends depth-first into each
  // subdirectory whose name does not start with '.', never through a link. A
  // matching FIFO, device or socket and a subdirectory that cannot be listed
  // are skipped and kept in skipped(); a missing dir is walked as empty. False
  // when a visit stopped the walk.
  bool walk(const std::string& dir, const std::string& mask, const Visitor& visit);

  // A file a visitor could not read, kept with the walk's own; why may be the
  // OS layer's message about path.
  void skip(const std::string& path, const std::string& why);
  // Each path once, in the order met, over every walk of this walker.
  const std::vector<SkippedPath>& skipped() const { return skipped_; }

 private:
  bool walkBelow(const std::string& dir, const std::string& mask, const Visitor& visit, bool listedByParent);
  // One listing per directory per search: a search walks the tree once for each mask.
  const std::vector<DirectoryEntry>& listing(const std::string& dir, bool listedByParent);

  bool recurse_;
  std::map<std::string, std::vector<DirectoryEntry>> listings_;
  std::vector<SkippedPath> skipped_;
  std::set<std::string> skippedPaths_;
};

// "Skipped N paths: PATH (why); ..." naming them, or "" when none was.
std::string skippedPathsText(const std::vector<SkippedPath>& skipped);
