// kesto rcgen and kesto stamp: the resource class generator and the version
// stamping that run at each Make, on a directory tree.
#include <iostream>
#include <memory>

#include "cli/cli_session.h"
#include "cli/command_table.h"
#include "cli/file_arguments.h"
#include "cli/integer_options.h"
#include "rcgen/rc_generator.h"

namespace {

struct RcgenArguments {
  std::string directory;
  int32_t build = 0;
};

// The directory to work on: DIR, else the project's directory, else the current one.
bool chooseDirectory(CliSession& session, const RcgenArguments& args, std::string* directory) {
  if (args.directory.empty()) {
    if (!session.openProject()) return false;
    *directory = session.projectDirectory();
    return true;
  }
  if (!readableDirectoryArgument(session, args.directory)) return false;
  *directory = args.directory;
  return true;
}

// Written files on standard output, failures on standard error; a failure ends with status 1.
void printReport(CliSession& session, const RcRunReport& report) {
  for (const std::string& path : report.written) std::cout << path << '\n';
  for (const std::string& error : report.errors) reportError(error);
  if (!report.errors.empty()) session.exitStatus = kExitNothing;
}

void generate(CliSession& session, const RcgenArguments& args) {
  std::string directory;
  if (!chooseDirectory(session, args, &directory)) return;
  RcGenerator generator;
  generator.windowsGeneration = 1;
  RcRunReport report;
  generator.run(directory, &report);
  printReport(session, report);
}

void stamp(CliSession& session, const RcgenArguments& args) {
  std::string directory;
  if (!chooseDirectory(session, args, &directory)) return;
  RcGenerator generator;
  generator.versionGeneration = 1;
  generator.buildNumber = args.build;
  RcRunReport report;
  generator.run(directory, &report);
  printReport(session, report);
  if (report.written.empty() && report.errors.empty()) {
    reportError("no VERSION.RC in " + directory + " or below");
    session.exitStatus = kExitNothing;
  }
}

void addDirectoryArgument(CLI::App& command, RcgenArguments* args) {
  command.add_option("directory", args->directory,
                     "Project directory (default: the project's directory, else the current one)");
}

}  // namespace

void installRcgenCommand(CLI::App& command, CliSession& session) {
  auto args = std::make_shared<RcgenArguments>();
  addDirectoryArgument(command, args.get());
  command.callback([&session, args] { generate(session, *args); });
}

void installStampCommand(CLI::App& command, CliSession& session) {
  auto args = std::make_shared<RcgenArguments>();
  addDirectoryArgument(command, args.get());
  addIntegerOption(command, "--build", args->build, "Build counter before the run, which adds 1 (default: 0)", 0);
  command.callback([&session, args] { stamp(session, *args); });
}
