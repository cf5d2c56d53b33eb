// The kesto commands as data: the table that builds the parser also prints the help.
#pragma once

#include <CLI/CLI.hpp>

class CliSession;

struct CommandGroup {
  const char* name;
  const char* summary;
  // Adds the group's options and subcommands to its subcommand and binds their actions.
  void (*install)(CLI::App& command, CliSession& session);
};

// "1.0.0": the version of this build.
const char* kestoVersion();

// Every command group, in the order of the help text.
const std::vector<CommandGroup>& commandGroups();

// installCommandLine's command that installs the options of every group.
extern const char* const kAllCommands;

// Sets up kesto's parser: its name, the global options, and every command
// group, of which only `command` (or all, for kAllCommands) gets its options
// and subcommands: a run pays for its own command alone.
void installCommandLine(CLI::App& app, CliSession& session, const std::string& command);

// The installers, one per command file.
void installSettingsCommands(CLI::App& command, CliSession& session);
void installProjectCommands(CLI::App& command, CliSession& session);
void installFunctionsCommand(CLI::App& command, CliSession& session);
void installIncludesCommand(CLI::App& command, CliSession& session);
void installIncludeCommand(CLI::App& command, CliSession& session);
void installFindCommands(CLI::App& command, CliSession& session);
void installXrefCommand(CLI::App& command, CliSession& session);
void installTagsCommand(CLI::App& command, CliSession& session);
void installKeywordsCommands(CLI::App& command, CliSession& session);
void installCompleteCommands(CLI::App& command, CliSession& session);
void installHtmlCommands(CLI::App& command, CliSession& session);
void installRcgenCommand(CLI::App& command, CliSession& session);
void installStampCommand(CLI::App& command, CliSession& session);
void installTasksCommands(CLI::App& command, CliSession& session);
void installFlashCommands(CLI::App& command, CliSession& session);
void installMailCommands(CLI::App& command, CliSession& session);
void installDeliverCommand(CLI::App& command, CliSession& session);
void installDeliveryCommands(CLI::App& command, CliSession& session);
void installMakeCommand(CLI::App& command, CliSession& session);
void installRecentCommand(CLI::App& command, CliSession& session);
void installBarCommand(CLI::App& command, CliSession& session);
void installGroupwareCommands(CLI::App& command, CliSession& session);
void installShellCompletionCommand(CLI::App& command, CliSession& session);
