// The table of kesto's command groups.
#include "cli/command_table.h"

const char* kestoVersion() { return KESTO_VERSION; }

const std::vector<CommandGroup>& commandGroups() {
  static const std::vector<CommandGroup> groups = {
      {"settings", "Read and write the add-on's settings", installSettingsCommands},
      {"project", "Create, show and change a project file", installProjectCommands},
      {"rcgen", "Regenerate the dialog class files of out-of-date directories", installRcgenCommand},
      {"stamp", "Raise the build number of every VERSION.RC of a tree", installStampCommand},
  };
  return groups;
}
