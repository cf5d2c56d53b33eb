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

}  // namespace

void fillSendList(GWsendList& list, const GwRoots& roots, const std::string& filters) {
  list.clear();
  scanTree(roots.project, filters, [&](const std::string& path) {
    if (inOtherTree(path, roots.project, roots.server)) return;
    GwCopy local = readCopy(path);
    // Read-only local copies are reference copies: never sent.
    if (!local.exists || !local.writable) return;
    GwCopy server = readCopy(joinPath(roots.server, listedName(roots.project, path)));
    GwSendState state = sendState(local, server);
    auto* element = new EltGWsend();
    element->request = state.request;
    element->age = state.age;
    element->localTime = local.time;
    element->serverTime = server.exists ? server.time : 0;
    element->path = path;
    element->size = local.size;
    insertByPath(list, element);
  });
}

void fillGetList(GWgetList& list, const GwRoots& roots, const std::string& filters) {
  list.clear();
  scanTree(roots.server, filters, [&](const std::string& path) {
    if (inOtherTree(path, roots.server, roots.project)) return;
    GwCopy server = readCopy(path);
    if (!server.exists) return;
    GwCopy local = readCopy(joinPath(roots.project, listedName(roots.server, path)));
    GwGetState state = getState(server, local);
    auto* element = new EltGWget();
    element->locked = server.writable ? 0 : 1;
    element->advice = state.advice;
    element->age = state.age;
    element->serverTime = server.time;
    element->localTime = local.exists ? local.time : 0;
    element->path = path;
    element->size = server.size;
    insertByPath(list, element);
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
