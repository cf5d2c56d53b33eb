// Finding and reading the sources of a documentation model.
#include "html/ht_build.h"

#include "foundation/content_digest.h"
#include "foundation/directory_walk.h"
#include "foundation/file_mask.h"
#include "foundation/os.h"
#include "foundation/text_encoding.h"
#include "html/ht_pages.h"
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

namespace {

// The companion "NAME.txt" when there is one, then the file itself: each one's
// bytes go to use, in that order; one that cannot be read goes to *unread and
// the other is still read. False when use stopped the reading.
template <typename Use>
bool readHtInputs(const std::string& path, std::string* bytes, std::vector<SkippedPath>* unread, Use use) {
  std::string err;
  for (const std::string& input : {path + ".txt", path}) {
    // Most sources have no companion: its absence is no fault.
    bool companion = input != path;
    if (companion && !os().exists(input)) continue;
    if (!os().readFile(input, bytes, &err)) unread->push_back(skippedBecause(input, err));
    else if (!use(companion, *bytes)) return false;
  }
  return true;
}

}  // namespace

bool buildHtProject(htProjet& project, const htProgress& progress, std::vector<SkippedPath>* skipped) {
  std::vector<SkippedPath> leftOut;
  std::vector<std::string> paths = findHtSourceFiles(project.directory.str(), project.filters.str(), &leftOut);
  if (!buildHtProject(project, paths, progress, &leftOut)) return false;
  if (skipped) *skipped = std::move(leftOut);
  return true;
}

bool buildHtProject(htProjet& project, const std::vector<std::string>& paths, const htProgress& progress,
                    std::vector<SkippedPath>* skipped) {
  std::string bytes;
  std::string decoded;
  for (size_t i = 0; i < paths.size(); ++i) {
    if (progress) progress("Reading", i, paths.size());
    htFile* file = project.addFile(paths[i]);
    auto read = [&](bool, const std::string& input) { return readHtSource(project, *file, textOf(input, &decoded)); };
    if (!readHtInputs(paths[i], &bytes, skipped, read)) return false;
  }
  if (progress) progress("Reading", paths.size(), paths.size());
  project.sortCollections();
  return true;
}

bool htInputDigest(const htProjet& project, const std::vector<std::string>& paths, const htProgress& progress,
                   std::string* digest) {
  ContentDigest inputs;
  inputs.add(kHtPagesFormat);
  inputs.add(project.name.str());
  inputs.add(project.filters.str());
  std::string bytes;
  std::vector<SkippedPath> unread;
  for (size_t i = 0; i < paths.size(); ++i) {
    if (progress) progress("Reading", i, paths.size());
    inputs.add(paths[i]);
    readHtInputs(paths[i], &bytes, &unread, [&inputs](bool companion, const std::string& input) {
      inputs.add(uint64_t{companion});
      inputs.add(input);
      return true;
    });
    if (!unread.empty()) return false;
  }
  *digest = inputs.hex();
  return true;
}
