// The table of kesto's command groups.
#include "cli/command_table.h"

#include "cli/cli_session.h"

const char* kestoVersion() { return KESTO_VERSION; }

const std::vector<CommandGroup>& commandGroups() {
  static const std::vector<CommandGroup> groups = {
      {"settings", "Read and write the add-on's settings", installSettingsCommands},
      {"project", "Create, show and change a project file", installProjectCommands},
      {"functions", "List the functions and methods defined in a source file", installFunctionsCommand},
      {"includes", "List the files a source file includes", installIncludesCommand},
      {"include", "Find an include on the project's search path", installIncludeCommand},
      {"find", "Find where a name is defined as a function, a method or a class", installFindCommands},
      {"xref", "List every use of a name inside a body in the project's sources", installXrefCommand},
      {"tags", "Write the tags file of every function, method and class of a tree, for an editor's jumps",
       installTagsCommand},
      {"keywords", "List the keyword files, or add, remove or extract one", installKeywordsCommands},
      {"complete", "Complete a word, or the word before the caret of a line, from the keywords", installCompleteCommands},
      {"html", "Write the HTML documentation site of the project or of a directory", installHtmlCommands},
      {"rcgen", "Regenerate the dialog class files of out-of-date directories", installRcgenCommand},
      {"stamp", "Raise the build number of every VERSION.RC of a tree", installStampCommand},
      {"tasks", "List, add, edit, remove and sort the project's tasks; today's report", installTasksCommands},
      {"flash", "Print today's report and mark the day as flashed", installFlashCommands},
      {"mail", "The project's mail recipients, and a mail by hand", installMailCommands},
      {"deliver", "Copy the project's changed targets to their delivery directories and mail the report",
       installDeliverCommand},
      {"delivery", "List the delivery groups (type, directory, state), or set one", installDeliveryCommands},
      {"make", "Run what the add-on does around a Make, with a build command in between", installMakeCommand},
      {"recent", "List the top bar's recent projects and headers", installRecentCommand},
      {"bar", "Print the top bar's menus for the project", installBarCommand},
      {"gw", "Exchange files with the project's groupware server: send, get, locks", installGroupwareCommands},
      {"completion", "Print the completion script of a shell (bash, zsh or fish) for kesto",
       installShellCompletionCommand},
  };
  return groups;
}

const char* const kAllCommands = "*";

void installCommandLine(CLI::App& app, CliSession& session, const std::string& command) {
  app.description("Kesto AddOn on the command line: navigation, completion, tasks, documentation and generators.");
  app.name("kesto");
  app.set_version_flag("--version", std::string("kesto ") + kestoVersion());
  app.require_subcommand(1);
  app.fallthrough();
  app.add_option("--project", session.projectOption, "Project file (default: the one *.kpj here)");
  auto* yes = app.add_flag("--yes", session.host().answerYes, "Answer Yes to every question");
  app.add_flag("--no", session.host().answerNo, "Answer No to every question")->excludes(yes);
  for (const CommandGroup& group : commandGroups()) {
    CLI::App* subcommand = app.add_subcommand(group.name, group.summary);
    if (command == group.name || command == kAllCommands) group.install(*subcommand, session);
  }
}
