// The table of kesto's command groups.
#include "cli/command_table.h"

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
  };
  return groups;
}
