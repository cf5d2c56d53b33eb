// The include search: a header found anywhere below a search directory is taken,
// even one that is not on the include path.
#include "navigation/include_search.h"

#include "foundation/os.h"
#include "project/host.h"
#include "navigation/search_places.h"

namespace {

bool searchBelow(const std::string& dir, const std::string& name, std::string* path) {
  std::string candidate = joinPath(dir, name);
  if (os().exists(candidate)) {
    *path = candidate;
    return true;
  }
  std::vector<DirectoryEntry> entries;
  if (!os().listDirectory(dir, &entries, nullptr)) return false;
  for (const DirectoryEntry& entry : entries)
    if (isWalkableDirectory(entry) && entry.name[0] != '.' && searchBelow(joinPath(dir, entry.name), name, path))
      return true;
  return false;
}

}  // namespace

bool findInclude(Host& host, const std::string& name, const std::string& editorFile, std::string* path) {
  SearchPlaces places = searchPlaces(host, editorFile);
  std::string list = places.projectDirectory;
  if (places.projectOpen && !places.includePath.empty()) list += ";" + places.includePath;
  std::string native = nativePath(name);
  for (const std::string& entry : splitSearchList(list)) {
    if (searchBelow(searchDirectory(places, entry), native, path)) {
      host.showStatus(*path);
      return true;
    }
  }
  host.showStatus("Pas trouve");
  host.showStatus("Cannot locate " + name);
  return false;
}
