// kesto make: what the add-on does when a Make starts and ends, around a build command.
#include <spawn.h>
#include <sys/wait.h>

#include <cerrno>
#include <cstring>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "cli/cli_session.h"
#include "cli/command_table.h"
#include "cli/html_site.h"
#include "foundation/settings.h"
#include "html/ht_generation.h"
#include "rcgen/make_sequence.h"

extern char** environ;

namespace {

struct MakeArguments {
  std::vector<std::string> command;
};

// Runs the build command without a shell; its exit status decides success.
bool runBuild(const std::vector<std::string>& command) {
  std::vector<char*> argv;
  for (const std::string& word : command) argv.push_back(const_cast<char*>(word.c_str()));
  argv.push_back(nullptr);
  pid_t child = 0;
  int spawned = posix_spawnp(&child, argv[0], nullptr, nullptr, argv.data(), environ);
  if (spawned != 0) {
    reportError("cannot run " + command[0] + ": " + std::strerror(spawned));
    return false;
  }
  int status = 0;
  while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
  }
  if (WIFEXITED(status) && WEXITSTATUS(status) == 0) return true;
  reportError("the build command failed" +
              (WIFEXITED(status) ? " with status " + std::to_string(WEXITSTATUS(status)) : std::string()));
  return false;
}

void make(CliSession& session, const MakeArguments& args) {
  if (!session.requireProject()) return;
  MakeSequence sequence;
  if (const ProjectOptions* options = session.options()) sequence.setOptions(*options);
  sequence.started(session.host());
  bool succeeded = args.command.empty() || runBuild(args.command);
  const std::string name = htProjectName(session.project()->path());
  sequence.ended(session.host(), succeeded, [&session, &name](const std::string& directory, const std::string& filters) {
    if (writeHtmlSite(session, directory, filters, name)) std::cout << htFramesetPath(directory, name) << '\n';
  });
  if (!succeeded) session.exitStatus = kExitNothing;
}

}  // namespace

void installMakeCommand(CLI::App& command, CliSession& session) {
  auto args = std::make_shared<MakeArguments>();
  command.add_option("command", args->command, "Build command and its arguments, after --");
  command.callback([&session, args] { make(session, *args); });
}
