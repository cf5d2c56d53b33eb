// kesto: the add-on's features on a project file, from the command line.
#include <CLI/CLI.hpp>

#include "cli/cli_session.h"
#include "cli/command_table.h"

int main(int argc, char** argv) {
  CliSession session;
  CLI::App app{"Kesto AddOn on the command line: navigation, completion, tasks, documentation and generators."};
  app.name("kesto");
  app.set_version_flag("--version", std::string("kesto ") + kestoVersion());
  app.require_subcommand(1);
  app.fallthrough();
  app.add_option("--project", session.projectOption, "Project file (default: the one *.kpj here)");
  auto* yes = app.add_flag("--yes", session.host().answerYes, "Answer Yes to every question");
  app.add_flag("--no", session.host().answerNo, "Answer No to every question")->excludes(yes);
  for (const CommandGroup& group : commandGroups()) group.install(*app.add_subcommand(group.name, group.summary), session);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? kExitOk : kExitUsage;
  }
  return session.exitStatus;
}
