// Finding and reading the sources of a documentation model.
#include "html/ht_build.h"

#include "foundation/directory_walk.h"
#include "foundation/file_mask.h"
#include "foundation/os.h"
#include "html/ht_reader.h"

std::vector<std::string> findHtSourceFiles(const std::string& directory, const std::string& filters) {
  // Each pattern walks the whole tree; the walker lists each directory once.
  DirectoryWalker walker(true);
  std::vector<std::string> files;
  for (const std::string& pattern : splitMasks(filters))
    walker.walk(directory, pattern, [&files](const std::string& path) {
      if (fileNameOf(path)[0] != '.') files.push_back(path);
      return true;
    });
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
