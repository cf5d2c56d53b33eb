// The reference tree, walked from a parser with every command installed.
#include "cli/command_reference.h"

#include <CLI/CLI.hpp>

#include "cli/cli_session.h"
#include "cli/command_table.h"

namespace {

// A check like IsMember describes itself as "{a,b,c}" after the value's type.
void splitTypeName(const std::string& typeName, OptionReference* option) {
  size_t brace = typeName.find(":{");
  option->valueName = typeName.substr(0, brace);
  if (brace == std::string::npos || typeName.back() != '}') return;
  std::string list = typeName.substr(brace + 2, typeName.size() - brace - 3);
  for (size_t start = 0; start <= list.size();) {
    size_t comma = list.find(',', start);
    if (comma == std::string::npos) comma = list.size();
    option->choices.push_back(list.substr(start, comma - start));
    start = comma + 1;
  }
}

OptionReference optionOf(const CLI::Option& source) {
  OptionReference option;
  option.positional = !source.nonpositional();
  option.required = source.get_required();
  option.description = source.get_description();
  if (option.positional) {
    option.names.push_back(source.get_name(true, false));
  } else {
    for (const std::string& name : source.get_snames()) option.names.push_back("-" + name);
    for (const std::string& name : source.get_lnames()) option.names.push_back("--" + name);
  }
  if (source.get_type_size() != 0) splitTypeName(source.get_type_name(), &option);
  return option;
}

CommandReference referenceOf(const CLI::App& app) {
  CommandReference command;
  command.name = app.get_name();
  command.summary = app.get_description();
  command.footer = app.get_footer();
  std::vector<const CLI::Option*> options = app.get_options();
  for (bool positionals : {false, true})
    for (const CLI::Option* option : options)
      if (option->nonpositional() != positionals) command.options.push_back(optionOf(*option));
  for (const CLI::App* subcommand : app.get_subcommands({})) command.subcommands.push_back(referenceOf(*subcommand));
  return command;
}

}  // namespace

std::string CommandReference::pathOf(const std::vector<const CommandReference*>& path) {
  std::string text;
  for (const CommandReference* command : path) text += (text.empty() ? "" : " ") + command->name;
  return text;
}

CommandReference commandReference() {
  CliSession session;
  CLI::App app;
  installCommandLine(app, session, kAllCommands);
  return referenceOf(app);
}
