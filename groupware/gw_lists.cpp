// Filling the send and get lists from the two trees.
#include "groupware/gw_lists.h"

#include "foundation/os.h"
#include "groupware/tree_scan.h"

namespace {

// An absent copy when the file cannot be read.
GwCopy readCopy(const std::string& path) {
  GwCopy copy;
  FileAttributes attributes;
  if (!os().attributes(path, &attributes, nullptr) || attributes.isDirectory) return copy;
  copy.exists = true;
  copy.time = attributes.modified;
  copy.writable = !attributes.readOnly;
  copy.size = attributes.size;
  return copy;
}

// A path of the tree kept inside the scanned one; when the other tree holds
// the scanned one, every path is below it and none is left out.
bool inOtherTree(const std::string& path, const std::string& own, const std::string& other) {
  return isBelowRoot(other, path) && !isBelowRoot(other, own);
}

// Empties list, then scans the own tree and gives make each readable file of
// it with the copy of the same name in the other tree; make returns the
// element to list, or null to leave the file out.
template <typename Elt, typename Make>
void fillList(Tableau<Elt>& list, const std::string& own, const std::string& other, const std::string& filters,
              const Make& make) {
  list.clear();
  scanTree(own, filters, [&](const std::string& path) {
    if (inOtherTree(path, own, other)) return;
    GwCopy mine = readCopy(path);
    if (!mine.exists) return;
    if (Elt* element = make(mine, readCopy(joinPath(other, listedName(own, path))))) {
      element->path = path;
      element->size = mine.size;
      insertByPath(list, element);
    }
  });
}

}  // namespace

void fillSendList(GWsendList& list, const GwRoots& roots, const std::string& filters) {
  fillList(list, roots.project, roots.server, filters, [](const GwCopy& local, const GwCopy& server) {
    // Read-only local copies are reference copies: never sent.
    if (!local.writable) return static_cast<EltGWsend*>(nullptr);
    GwSendState state = sendState(local, server);
    auto* element = new EltGWsend();
    element->request = state.request;
    element->age = state.age;
    element->localTime = local.time;
    element->serverTime = server.exists ? server.time : 0;
    return element;
  });
}

void fillGetList(GWgetList& list, const GwRoots& roots, const std::string& filters) {
  fillList(list, roots.server, roots.project, filters, [](const GwCopy& server, const GwCopy& local) {
    GwGetState state = getState(server, local);
    auto* element = new EltGWget();
    element->locked = server.writable ? 0 : 1;
    element->advice = state.advice;
    element->age = state.age;
    element->serverTime = server.time;
    element->localTime = local.exists ? local.time : 0;
    return element;
  });
}

std::string sendRowText(const EltGWsend& element, const GwRoots& roots) {
  return listedName(roots.project, element.path.str()) + "\t" + ageWord(element.age) + "\t" +
         sendRequestWord(element.request);
}

std::string getRowText(const EltGWget& element, const GwRoots& roots) {
  return listedName(roots.server, element.path.str()) + "\t" + lockedWord(element.locked != 0) + "\t" +
         ageWord(element.age) + "\t" + adviceWord(element.advice) + "\t" + getRequestWord(element.request);
}
