// The table of kesto's command groups.
#include "cli/command_table.h"

const char* kestoVersion() { return KESTO_VERSION; }

const std::vector<CommandGroup>& commandGroups() {
  static const std::vector<CommandGroup> groups = {
      {"settings", "Read and write the add-on's settings", installSettingsCommands},
      {"project", "Create, show and change a project file", installProjectCommands},
      {"html", "Write the HTML documentation site of the project or of a directory", installHtmlCommands},
  };
  return groups;
}
