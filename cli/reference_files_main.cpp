// Writes kesto's manual page and completion scripts into a directory, at build
// time, for `cmake --install` to put where man and the shells look.
#include <cstdio>
#include <string>

#include "cli/command_reference.h"
#include "cli/command_table.h"
#include "cli/man_page.h"
#include "cli/shell_completion.h"
#include "foundation/os.h"

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: kesto-reference-files DIRECTORY\n");
    return 2;
  }
  const std::string directory = argv[1];
  const CommandReference reference = commandReference();
  const std::pair<std::string, std::string> files[] = {
      {"kesto.1", manPage(reference, kestoVersion())},
      {"kesto.bash", completionScript(reference, "bash")},
      {"_kesto", completionScript(reference, "zsh")},
      {"kesto.fish", completionScript(reference, "fish")},
  };
  for (const auto& [name, text] : files) {
    std::string err;
    if (!os().writeFileAtomic(joinPath(directory, name), text, &err)) {
      std::fprintf(stderr, "kesto-reference-files: %s\n", err.c_str());
      return 1;
    }
  }
  return 0;
}
