// Files before subdirectories, as the searches have always reported their hits.
#include "foundation/directory_walk.h"

#include "foundation/file_mask.h"

const std::vector<DirectoryEntry>& DirectoryWalker::listing(const std::string& dir) {
  auto found = listings_.find(dir);
  if (found != listings_.end()) return found->second;
  std::vector<DirectoryEntry> entries;
  if (!os().listDirectory(dir, &entries, nullptr)) entries.clear();
  return listings_.emplace(dir, std::move(entries)).first->second;
}

bool DirectoryWalker::walk(const std::string& dir, const std::string& mask, const Visitor& visit) {
  const std::vector<DirectoryEntry>& entries = listing(dir);
  for (const DirectoryEntry& entry : entries)
    if (!entry.attributes.isDirectory && matchesMask(entry.name, mask) && !visit(joinPath(dir, entry.name)))
      return false;
  if (!recurse_) return true;
  for (const DirectoryEntry& entry : entries)
    if (isWalkableDirectory(entry) && entry.name[0] != '.' && !walk(joinPath(dir, entry.name), mask, visit))
      return false;
  return true;
}
