// Looks fuzzed include names up in a small project tree with no project open:
// a search ends, and a path it reports exists.
#include <cstddef>
#include <cstdint>
#include <string>

#include "cli/cli_host.h"
#include "foundation/os.h"
#include "navigation/include_search.h"

namespace {

class QuietHost : public CliHost {
 public:
  void showStatus(const std::string&) override {}
};

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  const std::string root = "fuzz_include_search_tree";
  os().makeDirectories(joinPath(joinPath(root, "inc"), "deep"), nullptr);
  os().writeFile(joinPath(joinPath(joinPath(root, "inc"), "deep"), "frame.h"), "", nullptr);
  os().writeFile(joinPath(root, "main.h"), "", nullptr);
  os().setCurrentDirectory(root, nullptr);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  QuietHost host;
  std::string path;
  std::string name(reinterpret_cast<const char*>(data), size);
  if (findInclude(host, name, "", &path) && !os().exists(path)) __builtin_trap();
  return 0;
}
