// kesto make: what the add-on does when a Make starts and ends, around a build command.
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>

#include <cerrno>
#include <cstring>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "cli/build_number.h"
#include "cli/cli_session.h"
#include "cli/command_table.h"
#include "cli/html_site.h"
#include "cli/integer_options.h"
#include "html/ht_generation.h"
#include "rcgen/make_sequence.h"

extern char** environ;

namespace {

struct MakeArguments {
  std::vector<std::string> command;
  int32_t build = -1;  // -1: the counter kept in the settings
};

// The build being waited for; the handler passes it Ctrl-C and SIGTERM, so
// that kesto ends with the build, not before it.
volatile sig_atomic_t buildProcess = 0;

void forwardSignal(int signal) {
  if (buildProcess > 0) kill(static_cast<pid_t>(buildProcess), signal);
}

// Forwards SIGINT and SIGTERM to the build while it runs.
class ForwardedSignals {
 public:
  explicit ForwardedSignals(pid_t child) {
    buildProcess = child;
    struct sigaction action {};
    action.sa_handler = forwardSignal;
    sigaction(SIGINT, &action, &previousInterrupt_);
    sigaction(SIGTERM, &action, &previousTerminate_);
  }
  ~ForwardedSignals() {
    sigaction(SIGINT, &previousInterrupt_, nullptr);
    sigaction(SIGTERM, &previousTerminate_, nullptr);
    buildProcess = 0;
  }
  ForwardedSignals(const ForwardedSignals&) = delete;
  ForwardedSignals& operator=(const ForwardedSignals&) = delete;

 private:
  struct sigaction previousInterrupt_ {};
  struct sigaction previousTerminate_ {};
};

// Runs the build command without a shell. Returns its exit status, 128 + the
// signal that ended it, or 127 when it could not be run, as a shell would.
int runBuild(const std::vector<std::string>& command) {
  std::vector<char*> argv;
  for (const std::string& word : command) argv.push_back(const_cast<char*>(word.c_str()));
  argv.push_back(nullptr);
  pid_t child = 0;
  int spawned = posix_spawnp(&child, argv[0], nullptr, nullptr, argv.data(), environ);
  if (spawned != 0) {
    reportError("cannot run " + command[0] + ": " + std::strerror(spawned));
    return 127;
  }
  int status = 0;
  {
    ForwardedSignals forwarded(child);
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
  }
  if (WIFEXITED(status) && WEXITSTATUS(status) == 0) return 0;
  int code = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
  reportError("the build command failed with status " + std::to_string(code));
  return code;
}

void make(CliSession& session, const MakeArguments& args) {
  if (!session.requireProject()) return;
  MakeSequence sequence;
  if (const ProjectOptions* options = session.options()) sequence.setOptions(*options);
  RcGenerator& generator = sequence.generator;
  generator.buildNumber = args.build >= 0 ? args.build : storedBuildNumber();
  sequence.started(session.host());
  if (generator.versionGeneration) storeBuildNumber(generator.buildNumber);
  int status = args.command.empty() ? 0 : runBuild(args.command);
  const std::string name = htProjectName(session.project()->path());
  sequence.ended(session.host(), status == 0, [&session, &name](const std::string& directory, const std::string& filters) {
    if (writeHtmlSite(session, directory, filters, name)) std::cout << htFramesetPath(directory, name) << '\n';
  });
  if (status != 0) session.exitStatus = status;
}

}  // namespace

void installMakeCommand(CLI::App& command, CliSession& session) {
  auto args = std::make_shared<MakeArguments>();
  command.add_option("command", args->command, "Build command and its arguments, after --");
  addIntegerOption(command, "--build", args->build,
                   "Build counter before the run, which stamping raises (default: the one kept in the settings)", 0);
  command.footer("Ends with the build command's exit status.");
  command.callback([&session, args] { make(session, *args); });
}
