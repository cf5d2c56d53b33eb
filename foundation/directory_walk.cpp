// Files before subdirectories, as the searches have always reported their hits.
#include "foundation/directory_walk.h"

#include "foundation/file_mask.h"

const std::vector<DirectoryEntry>& DirectoryWalker::listing(const std::string& dir, bool listedByParent) {
  auto found = listings_.find(dir);
  if (found != listings_.end()) return found->second;
  std::vector<DirectoryEntry> entries;
  std::string err;
  if (!os().listDirectory(dir, &entries, &err)) {
    entries.clear();
    // A search directory that does not exist is a setting, not a fault; one
    // that its parent listed exists, and leaving it out must be said.
    if (listedByParent) skip(dir, err);
  }
  return listings_.emplace(dir, std::move(entries)).first->second;
}

bool DirectoryWalker::walk(const std::string& dir, const std::string& mask, const Visitor& visit) {
  return walkBelow(dir, mask, visit, false);
}

bool DirectoryWalker::walkBelow(const std::string& dir, const std::string& mask, const Visitor& visit,
                                bool listedByParent) {
  const std::vector<DirectoryEntry>& entries = listing(dir, listedByParent);
  for (const DirectoryEntry& entry : entries) {
    if (entry.attributes.isDirectory || !matchesMask(entry.name, mask)) continue;
    std::string path = joinPath(dir, entry.name);
    if (entry.attributes.isSpecial)
      skip(path, "not a regular file");
    else if (!visit(path))
      return false;
  }
  if (!recurse_) return true;
  for (const DirectoryEntry& entry : entries)
    if (isWalkableDirectory(entry) && entry.name[0] != '.' && !walkBelow(joinPath(dir, entry.name), mask, visit, true))
      return false;
  return true;
}

SkippedPath skippedBecause(const std::string& path, const std::string& why) {
  // The OS layer's "CALL PATH: reason" would name a path of thousands of bytes twice.
  size_t named = why.find(path + ": ");
  return SkippedPath{path, named == std::string::npos ? why : why.substr(named + path.size() + 2)};
}

void DirectoryWalker::skip(const std::string& path, const std::string& why) {
  if (skippedPaths_.insert(path).second) skipped_.push_back(skippedBecause(path, why));
}

std::string skippedPathsText(const std::vector<SkippedPath>& skipped) {
  if (skipped.empty()) return "";
  std::string text = "Skipped " + std::to_string(skipped.size()) + (skipped.size() == 1 ? " path: " : " paths: ");
  for (size_t i = 0; i < skipped.size(); ++i)
    text += (i ? "; " : "") + skipped[i].path + " (" + skipped[i].why + ")";
  return text;
}
