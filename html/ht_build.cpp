// Finding and reading the sources of a documentation model.
#include "html/ht_build.h"

#include <unordered_map>

#include "foundation/file_mask.h"
#include "foundation/os.h"
#include "html/ht_reader.h"

namespace {

// Directory links can form loops that no listing reveals; this bounds the descent.
constexpr int kMaxDepth = 32;

class SourceFinder {
 public:
  void find(const std::string& directory, const std::string& pattern, int depth, std::vector<std::string>* out) {
    const std::vector<DirectoryEntry>& entries = listing(directory);
    for (const DirectoryEntry& entry : entries)
      if (!entry.attributes.isDirectory && entry.name[0] != '.' && matchesMask(entry.name, pattern))
        out->push_back(joinPath(directory, entry.name));
    if (depth >= kMaxDepth) return;
    for (const DirectoryEntry& entry : entries)
      if (entry.attributes.isDirectory && entry.name[0] != '.')
        find(joinPath(directory, entry.name), pattern, depth + 1, out);
  }

 private:
  // Each pattern walks the whole tree; listing it once keeps long filter lists cheap.
  const std::vector<DirectoryEntry>& listing(const std::string& directory) {
    auto found = listings_.find(directory);
    if (found != listings_.end()) return found->second;
    std::vector<DirectoryEntry>& entries = listings_[directory];
    if (!os().listDirectory(directory, &entries, nullptr)) entries.clear();
    return entries;
  }

  std::unordered_map<std::string, std::vector<DirectoryEntry>> listings_;
};

}  // namespace

std::vector<std::string> findHtSourceFiles(const std::string& directory, const std::string& filters) {
  SourceFinder finder;
  std::vector<std::string> files;
  for (const std::string& pattern : splitMasks(filters)) finder.find(directory, pattern, 0, &files);
  return files;
}

bool buildHtProject(htProjet& project, const htProgress& progress) {
  std::vector<std::string> paths = findHtSourceFiles(project.directory.str(), project.filters.str());
  for (size_t i = 0; i < paths.size(); ++i) {
    if (progress) progress("Reading", i, paths.size());
    htFile* file = project.addFile(paths[i]);
    std::string text;
    for (const std::string& path : {paths[i] + ".txt", paths[i]})
      if (os().readFile(path, &text, nullptr) && !readHtSource(project, *file, text)) return false;
  }
  if (progress) progress("Reading", paths.size(), paths.size());
  project.sortCollections();
  return true;
}
