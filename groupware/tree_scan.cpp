// Scanning with the shared directory walker: each directory is listed once for all filters.
#include "groupware/tree_scan.h"

#include "foundation/directory_walk.h"
#include "foundation/file_mask.h"
#include "foundation/os.h"

namespace {

bool isSeparator(char c) { return c == kPathSeparator || c == '/'; }

}  // namespace

void scanTree(const std::string& root, const std::string& filters,
              const std::function<void(const std::string& path)>& visit) {
  DirectoryWalker walker(true);
  for (const std::string& mask : splitMasks(filters)) {
    walker.walk(root, mask, [&visit](const std::string& path) {
      // The system's own lock sidecars and unfinished copies are not shared files.
      std::string name = fileNameOf(path);
      if (!isTemporaryName(name) && !isLockFileName(name)) visit(path);
      return true;
    });
  }
}

std::string normalizeRoot(const std::string& root) {
  std::string trimmed = root;
  while (trimmed.size() > 1 && isSeparator(trimmed.back())) trimmed.pop_back();
  return trimmed;
}

std::string listedName(const std::string& root, const std::string& path) {
  size_t cut = root.size();
  if (cut < path.size() && isSeparator(path[cut])) ++cut;
  return path.substr(cut);
}

bool isBelowRoot(const std::string& root, const std::string& path) {
  return path.size() > root.size() && path.compare(0, root.size(), root) == 0 &&
         (isSeparator(path[root.size()]) || isSeparator(root.back()));
}
