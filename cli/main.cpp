// kesto: the add-on's features on a project file, from the command line.
#include <CLI/CLI.hpp>

#include <unistd.h>

#include <cstdio>
#include <cstring>
#include <iostream>
#include <string>

#include "cli/cli_session.h"
#include "cli/command_table.h"

namespace {

// The first word that is not a global option: the command; "" when there is none.
std::string commandWord(int argc, char** argv) {
  for (int i = 1; i < argc; ++i) {
    std::string word = argv[i];
    if (word == "--project") {
      ++i;
      continue;
    }
    if (!word.empty() && word[0] != '-') return word;
  }
  return "";
}

// The command must be known; otherwise the user is told the valid ones rather
// than only that one is missing.
bool commandIsKnown(const std::string& word) {
  if (word.empty()) return true;
  for (const CommandGroup& group : commandGroups())
    if (word == group.name) return true;
  std::string names;
  for (const CommandGroup& group : commandGroups()) names += std::string(names.empty() ? "" : ", ") + group.name;
  std::cerr << "kesto: unknown command '" << word << "'; the commands are: " << names << '\n';
  return false;
}

}  // namespace

int main(int argc, char** argv) {
  // The version alone is what scripts ask most: it needs neither the parser nor the settings.
  if (argc == 2 && std::strcmp(argv[1], "--version") == 0) {
    std::printf("kesto %s\n", kestoVersion());
    return kExitOk;
  }
  const std::string command = commandWord(argc, argv);
  if (!commandIsKnown(command)) return kExitUsage;
  // Into a pipe, each line as it is made: a log shows a long delivery as it goes.
  // The searches, which print many lines fast, set their own buffer.
  if (!isatty(STDOUT_FILENO)) std::setvbuf(stdout, nullptr, _IOLBF, 1 << 16);
  CliSession session;
  CLI::App app;
  installCommandLine(app, session, command);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? kExitOk : kExitUsage;
  }
  return session.exitStatus;
}
