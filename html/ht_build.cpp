// Finding and reading the sources of a documentation model.
#include "html/ht_build.h"

#include "foundation/directory_walk.h"
#include "foundation/file_mask.h"
#include "foundation/os.h"
#include "foundation/text_encoding.h"
#include "html/ht_reader.h"

std::vector<std::string> findHtSourceFiles(const std::string& directory, const std::string& filters,
                                           std::vector<SkippedPath>* skipped) {
  // Each pattern walks the whole tree; the walker lists each directory once.
  DirectoryWalker walker(true);
  std::vector<std::string> files;
  for (const std::string& pattern : splitMasks(filters))
    walker.walk(directory, pattern, [&files](const std::string& path) {
      if (fileNameOf(path)[0] != '.') files.push_back(path);
      return true;
    });
  *skipped = walker.skipped();
  return files;
}

bool buildHtProject(htProjet& project, const htProgress& progress, std::vector<SkippedPath>* skipped) {
  std::vector<SkippedPath> leftOut;
  std::vector<std::string> paths = findHtSourceFiles(project.directory.str(), project.filters.str(), &leftOut);
  std::string bytes;
  std::string decoded;
  std::string err;
  for (size_t i = 0; i < paths.size(); ++i) {
    if (progress) progress("Reading", i, paths.size());
    htFile* file = project.addFile(paths[i]);
    for (const std::string& path : {paths[i] + ".txt", paths[i]}) {
      // Most sources have no companion: its absence is no fault.
      if (path != paths[i] && !os().exists(path)) continue;
      if (!os().readFile(path, &bytes, &err)) leftOut.push_back(skippedBecause(path, err));
      else if (!readHtSource(project, *file, textOf(bytes, &decoded))) return false;
    }
  }
  if (progress) progress("Reading", paths.size(), paths.size());
  project.sortCollections();
  if (skipped) *skipped = std::move(leftOut);
  return true;
}
