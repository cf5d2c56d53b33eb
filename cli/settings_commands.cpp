// kesto settings get|set|list: the settings store from the command line.
#include <cstdlib>
#include <iostream>
#include <memory>

#include "cli/cli_session.h"
#include "cli/command_table.h"
#include "cli/integer_options.h"
#include "cli/json_output.h"
#include "cli/known_settings.h"
#include "foundation/regedit_text.h"
#include "foundation/settings.h"

namespace {

struct SettingsArguments {
  std::string section;
  std::string name;
  std::string value;
  std::string defaultText;
  bool hasDefault = false;
  bool all = false;
  bool json = false;
};

// Lines, or the rows of the --json document when one is given.
void printSection(SettingsBackend& backend, const std::string& section, bool withSection, JsonDocument* document) {
  std::vector<SettingsValue> values;
  if (backend.list(settings().keyPath(section), &values))
    for (const SettingsValue& value : values) {
      if (document)
        document->push_back({{"section", section}, {"name", value.name}, {"value", value.text}});
      else
        std::cout << (withSection ? section + "\t" : "") << value.name << '\t' << value.text << '\n';
    }
  for (const std::string& sub : backend.subkeys(settings().keyPath(section)))
    if (withSection) printSection(backend, section + "\\" + sub, true, document);
}

void get(CliSession& session, const SettingsArguments& args) {
  std::string text;
  if (!settings().readString(args.section, args.name, &text, args.hasDefault ? args.defaultText.c_str() : nullptr)) {
    reportError(args.section + "/" + args.name + " is not set");
    session.exitStatus = kExitNothing;
    return;
  }
  std::cout << text << '\n';
}

void set(CliSession& session, const SettingsArguments& args) {
  // A setting the add-on reads as an integer would read another text as its default.
  const KnownSetting* known = findKnownSetting(args.section, args.name);
  if (known && known->integer && !isDecimalInt32(args.value)) {
    reportError(args.section + "/" + args.name + " takes an integer; " + args.value + " is not one");
    session.exitStatus = kExitUsage;
    return;
  }
  if (!settings().writeString(args.section, args.name, args.value)) {
    reportError("cannot write " + args.section + "/" + args.name + ": " + session.settingsFile().error());
    session.exitStatus = kExitNothing;
  }
}

// The value the add-on works with: an integer setting whose text is no number reads as its default.
std::string effectiveValue(const KnownSetting& setting) {
  if (setting.integer)
    return std::to_string(settings().readInteger(setting.section, setting.name, std::atoi(setting.fallback.c_str())));
  std::string text;
  settings().readString(setting.section, setting.name, &text, setting.fallback.c_str());
  return text;
}

// Every known setting: [SECTION<TAB>]NAME<TAB>VALUE<TAB>DEFAULT<TAB>set|default.
void listKnown(const SettingsArguments& args, JsonDocument* document) {
  for (const KnownSetting& setting : knownSettings()) {
    if (!args.section.empty() && foldedCase(args.section) != foldedCase(setting.section)) continue;
    std::string stored;
    bool isSet = settings().readString(setting.section, setting.name, &stored, nullptr);
    if (document)
      document->push_back({{"section", setting.section},
                           {"name", setting.name},
                           {"value", effectiveValue(setting)},
                           {"default", setting.fallback},
                           {"set", isSet}});
    else
      std::cout << (args.section.empty() ? setting.section + "\t" : "") << setting.name << '\t'
                << effectiveValue(setting) << '\t' << setting.fallback << '\t' << (isSet ? "set" : "default")
                << '\n';
  }
}

void list(CliSession& session, const SettingsArguments& args) {
  JsonDocument rows = JsonDocument::array();
  JsonDocument* document = args.json ? &rows : nullptr;
  SettingsBackend& backend = session.settingsFile();
  if (args.all)
    listKnown(args, document);
  else if (!args.section.empty())
    printSection(backend, args.section, false, document);
  else
    for (const std::string& section : backend.subkeys(settings().root())) printSection(backend, section, true, document);
  if (document) printJson(rows);
}

}  // namespace

void installSettingsCommands(CLI::App& command, CliSession& session) {
  auto args = std::make_shared<SettingsArguments>();
  command.require_subcommand(1);

  CLI::App* getCommand = command.add_subcommand("get", "Print a value (SECTION may hold a list: TopBar\\IDE)");
  getCommand->add_option("section", args->section, "Section")->required();
  getCommand->add_option("name", args->name, "Value name")->required();
  getCommand->add_option("--default", args->defaultText, "Printed when the value is absent")
      ->each([args](const std::string&) { args->hasDefault = true; });
  getCommand->callback([&session, args] { get(session, *args); });

  CLI::App* setCommand = command.add_subcommand("set", "Write a value (numbers are stored as text too)");
  setCommand->add_option("section", args->section, "Section")->required();
  setCommand->add_option("name", args->name, "Value name")->required();
  setCommand->add_option("value", args->value, "Text to store")->required();
  setCommand->callback([&session, args] { set(session, *args); });

  CLI::App* listCommand = command.add_subcommand("list", "List values: NAME<TAB>TEXT, or SECTION<TAB>NAME<TAB>TEXT");
  listCommand->add_option("section", args->section, "Section (default: every section)");
  listCommand->add_flag("--all", args->all,
                        "Every known setting, stored or not: [SECTION<TAB>]NAME<TAB>VALUE<TAB>DEFAULT<TAB>set|default");
  addJsonFlag(*listCommand, args->json);
  listCommand->callback([&session, args] { list(session, *args); });
}
