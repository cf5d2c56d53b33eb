// Documents a small tree of fuzzed sources, each with or without its ".txt"
// companion, as a generation does: no consistency check may trip.
#include <fuzzer/FuzzedDataProvider.h>

#include <cstdint>
#include <string>

#include "foundation/os.h"
#include "html/ht_build.h"
#include "html/ht_pages.h"
#include "html_fuzz_support.h"

namespace {

const char* const kSources[] = {"a.cpp", "b.h", "sub/c.cpp", "sub/d.h"};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static AbortOnAlert abortOnAlert;
  setAlertHandler(&abortOnAlert);
  const std::string root = "fuzz_html_site_tree";
  if (!os().makeDirectories(joinPath(root, "sub"), nullptr)) return 0;
  FuzzedDataProvider input(data, size);
  for (const char* source : kSources) {
    std::string path = joinPath(root, source);
    os().writeFile(path, input.ConsumeRandomLengthString(16384), nullptr);
    if (input.ConsumeBool())
      os().writeFile(path + ".txt", input.ConsumeRandomLengthString(16384), nullptr);
    else
      os().removeFile(path + ".txt", nullptr);
  }
  htProjet project("Fuzz", root, "*.cpp;*.h");
  if (!buildHtProject(project)) return 0;
  DiscardPages pages;
  writeHtSite(project, pages);
  return 0;
}
