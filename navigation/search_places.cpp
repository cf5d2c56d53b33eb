// The project directory and the node's directory options, as the searches read them.
#include "navigation/search_places.h"

#include "foundation/os.h"
#include "project/host.h"

std::vector<std::string> splitSearchList(const std::string& list) {
  std::vector<std::string> entries;
  size_t start = 0;
  while (start < list.size()) {
    size_t end = list.find(';', start);
    if (end == std::string::npos) end = list.size();
    if (end == start) break;
    entries.push_back(list.substr(start, end - start));
    start = end + 1;
  }
  return entries;
}

std::string nativePath(const std::string& path) {
  std::string native = path;
  for (char& c : native)
    if (c == '/' || c == '\\') c = kPathSeparator;
  return native;
}

SearchPlaces searchPlaces(Host& host, const std::string& editorFile) {
  SearchPlaces places;
  std::string projectFile = host.projectFile();
  places.projectOpen = !projectFile.empty();
  places.projectDirectory = projectDirectoryOf(projectFile);
  const ProjectNode* root = host.projectRoot();
  if (!places.projectOpen || !root) return places;
  const ProjectNode* node = editorFile.empty() ? nullptr : findNodeHoldingFile(*root, editorFile);
  if (!node) node = root;
  nodeOption(*root, *node, NodeOptionKind::IncludePath, &places.includePath);
  nodeOption(*root, *node, NodeOptionKind::SourcePath, &places.sourcePath);
  return places;
}

std::string searchDirectory(const SearchPlaces& places, const std::string& entry) {
  std::string native = nativePath(entry);
  return isAbsolutePath(entry) ? native : joinPath(places.projectDirectory, native);
}
