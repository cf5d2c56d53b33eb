// The table of kesto's command groups.
#include "cli/command_table.h"

const char* kestoVersion() { return KESTO_VERSION; }

const std::vector<CommandGroup>& commandGroups() {
  static const std::vector<CommandGroup> groups = {
      {"settings", "Read and write the add-on's settings", installSettingsCommands},
      {"project", "Create, show and change a project file", installProjectCommands},
      {"keywords", "List the keyword files, or add, remove or extract one", installKeywordsCommands},
      {"complete", "Complete a word, or the word before the caret of a line, from the keywords", installCompleteCommands},
      {"html", "Write the HTML documentation site of the project or of a directory", installHtmlCommands},
      {"rcgen", "Regenerate the dialog class files of out-of-date directories", installRcgenCommand},
      {"stamp", "Raise the build number of every VERSION.RC of a tree", installStampCommand},
      {"tasks", "List, add, edit, remove and sort the project's tasks; today's report", installTasksCommands},
      {"flash", "Print today's report and mark the day as flashed", installFlashCommands},
      {"mail", "The project's mail recipients, and a mail by hand", installMailCommands},
  };
  return groups;
}
