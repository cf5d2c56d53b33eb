// Any source text must read and document without tripping a consistency check.
#include <cstdint>
#include <string>

#include "html/ht_reader.h"
#include "html_fuzz_support.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static AbortOnAlert abortOnAlert;
  setAlertHandler(&abortOnAlert);
  htProjet project("Fuzz", "", "*.cpp");
  htFile* file = project.addFile("fuzz.cpp");
  std::string_view text(reinterpret_cast<const char*>(data), size);
  readHtSource(project, *file, text);
  // A second reading pairs with the entries of the first, as a companion file does.
  readHtSource(project, *file, text);
  project.sortCollections();
  DiscardPages pages;
  writeHtSite(project, pages);
  return 0;
}
