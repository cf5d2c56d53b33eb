// The send and get lists: one element per exchanged file, sorted by full path.
#pragma once

#include <cstdint>
#include <cstring>
#include <string>

#include "foundation/kstring.h"
#include "foundation/tableau.h"
#include "groupware/gw_rules.h"

// Times are whole seconds; they are kept in 64 bits since these records never
// reach a file. Sizes too, so that the progress total of large files cannot wrap.
class EltGWsend : public Basic {
 public:
  int32_t request = kSendNothing;
  int32_t age = kAgeSame;
  int64_t localTime = 0;
  int64_t serverTime = 0;  // 0 when the server copy does not exist
  String path;             // the local file
  uint64_t size = 0;       // the local file's
};

class EltGWget : public Basic {
 public:
  int32_t locked = 0;  // the server copy is read-only
  int32_t advice = kAdviceNothing;
  int32_t request = kGetNothing;
  int32_t age = kAgeSame;
  int64_t serverTime = 0;
  int64_t localTime = 0;  // 0 when the local copy does not exist
  String path;            // the server file
  uint64_t size = 0;      // the server file's
};

using GWsendList = Tableau<EltGWsend>;
using GWgetList = Tableau<EltGWget>;

// Puts element at its place in byte order of path (binary search); an element
// of the same path is replaced and deleted. The list takes ownership.
template <typename T>
void insertByPath(Tableau<T>& list, T* element) {
  int32_t low = 0;
  int32_t high = list.count();
  while (low < high) {
    int32_t middle = low + (high - low) / 2;
    int order = std::strcmp(list[middle]->path.c_str(), element->path.c_str());
    if (order == 0) {
      delete list[middle];
      list.set(middle, element);
      return;
    }
    if (order < 0)
      low = middle + 1;
    else
      high = middle;
  }
  if (!list.insert(low, element)) delete element;
}

// The two roots of an exchange, normalized (tree_scan.h).
struct GwRoots {
  std::string project;
  std::string server;
};

// Empties list, then lists the writable local files matching filters, each
// compared with its server copy.
void fillSendList(GWsendList& list, const GwRoots& roots, const std::string& filters);
// Empties list, then lists every server file matching filters that can be
// read, each compared with its local copy.
void fillGetList(GWgetList& list, const GwRoots& roots, const std::string& filters);

// The rows as the dialogs show them, with the name relative to its root.
std::string sendRowText(const EltGWsend& element, const GwRoots& roots);
std::string getRowText(const EltGWget& element, const GwRoots& roots);
