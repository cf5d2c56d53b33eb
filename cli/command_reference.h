// kesto's commands as a tree of names, options and texts, read from the parser
// itself so that the completion scripts and the manual never drift from it.
#pragma once

#include <string>
#include <vector>

struct OptionReference {
  std::vector<std::string> names;  // "-h", "--help"; a positional has its name alone
  std::string valueName;           // "TEXT", "INT"...; empty for a flag
  std::vector<std::string> choices;  // the values allowed, when the parser lists them
  std::string description;
  bool positional = false;
  bool required = false;
};

struct CommandReference {
  std::string name;  // "kesto", "tasks", "add"...
  std::string summary;
  std::string footer;
  std::vector<OptionReference> options;  // the flags and options, then the positionals in order
  std::vector<CommandReference> subcommands;

  // "kesto tasks add" for the path of names from the root to a command.
  static std::string pathOf(const std::vector<const CommandReference*>& path);
};

// The whole tree: the global options and every command with all its options.
CommandReference commandReference();
