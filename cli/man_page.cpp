// The page's sections beyond the commands (exit status, environment, files)
// are the parts of the README's "Using kesto" that every command shares.
#include "cli/man_page.h"

#include <vector>

namespace {

// Text for roff: backslashes doubled, a leading dot or quote made literal,
// hyphens kept as hyphens so that options can be searched and copied.
std::string escaped(const std::string& text) {
  std::string out;
  bool lineStart = true;
  for (char c : text) {
    if (lineStart && (c == '.' || c == '\'')) out += "\\&";
    if (c == '\\')
      out += "\\e";
    else if (c == '-')
      out += "\\-";
    else
      out += c;
    lineStart = c == '\n';
  }
  return out;
}

// Positionals are written in capitals, as the commands' texts name them.
std::string positionalName(const OptionReference& option) {
  std::string name = option.names.front();
  for (char& c : name) c = static_cast<char>(c >= 'a' && c <= 'z' ? c - 'a' + 'A' : c);
  return name;
}

std::string optionLine(const OptionReference& option) {
  if (option.positional) return "\\fI" + escaped(positionalName(option)) + "\\fR";
  std::string line;
  for (const std::string& name : option.names) line += (line.empty() ? "" : ", ") + ("\\fB" + escaped(name) + "\\fR");
  if (!option.valueName.empty()) line += " \\fI" + escaped(option.valueName) + "\\fR";
  return line;
}

std::string optionText(const OptionReference& option) {
  std::string text = escaped(option.description);
  if (!option.choices.empty()) {
    std::string choices;
    for (const std::string& choice : option.choices) choices += (choices.empty() ? "" : ", ") + choice;
    text += " (one of: " + escaped(choices) + ")";
  }
  if (option.positional && !option.required) text += " (optional)";
  return text;
}

// Every command has --help; the page names it once, among the global options.
void appendOptions(const CommandReference& command, bool withHelp, std::string* page) {
  for (const OptionReference& option : command.options)
    if (withHelp || option.names.back() != "--help")
      *page += ".TP\n" + optionLine(option) + "\n" + optionText(option) + "\n";
}

// "kesto tasks add [OPTIONS] ROW": each command under the one above it, with its
// own options, then its footer as a paragraph of its own.
void appendCommand(const CommandReference& command, std::vector<const CommandReference*>& trail, std::string* page) {
  trail.push_back(&command);
  std::string synopsis = CommandReference::pathOf(trail);
  for (const OptionReference& option : command.options)
    if (option.positional) synopsis += option.required ? " " + positionalName(option) : " [" + positionalName(option) + "]";
  *page += ".SS \"" + escaped(synopsis) + "\"\n" + escaped(command.summary) + "\n";
  appendOptions(command, false, page);
  if (!command.footer.empty()) *page += ".PP\n.nf\n" + escaped(command.footer) + "\n.fi\n";
  for (const CommandReference& subcommand : command.subcommands) appendCommand(subcommand, trail, page);
  trail.pop_back();
}

const char* const kSharedSections =
    ".SH OUTPUT\n"
    "Results go to standard output: locations as PATH:LINE:COL: TEXT, lists one item per line with columns "
    "separated by tabs, or one JSON document with \\fB\\-\\-json\\fR where a list command has it. What the add-on "
    "shows on the IDE's status line goes to standard error, and so do message boxes, as CAPTION: TEXT. A question "
    "is asked on a terminal; elsewhere \\fB\\-\\-yes\\fR or \\fB\\-\\-no\\fR answers it (No by default).\n"
    ".SH EXIT STATUS\n"
    ".TP\n0\nThe command did what it was asked.\n"
    ".TP\n1\nThe command ran and found nothing or was refused, or a part of a larger job failed: a copy, a lock "
    "not taken, a mail that did not go out.\n"
    ".TP\n2\nA usage error, an argument that cannot be read, or a damaged file (named with its line on standard "
    "error and left as it was).\n"
    ".SH ENVIRONMENT\n"
    ".TP\nKESTO_SETTINGS\nThe settings file, instead of $XDG_CONFIG_HOME/kesto/settings.reg.\n"
    ".TP\nKESTO_CEILING_DIRECTORY\nA directory above which no project file is looked for.\n"
    ".TP\nKESTO_LOCK_WAIT\nThe seconds a run waits for another one that holds a file it changes.\n"
    ".TP\nLOGNAME, USER\nThe name written in groupware lock records.\n"
    ".TP\nLC_ALL, LC_TIME, LANG\nThe date formats of tasks and reports.\n"
    ".SH FILES\n"
    ".TP\n~/.config/kesto/settings.reg\nThe add-on's settings, in a REGEDIT4 file that a Windows registry editor "
    "imports as it stands.\n"
    ".TP\n*.kpj\nThe project file: with no \\fB\\-\\-project\\fR, the one of the current directory, else of the "
    "nearest parent directory that has one.\n";

}  // namespace

std::string manPage(const CommandReference& root, const std::string& version) {
  std::string page = ".TH KESTO 1 \"\" \"kesto " + escaped(version) + "\" \"User Commands\"\n";
  page += ".SH NAME\nkesto \\- " + escaped(root.summary) + "\n";
  page += ".SH SYNOPSIS\n.B kesto\n[\\fIOPTIONS\\fR] \\fICOMMAND\\fR [\\fIARGS\\fR]\n";
  page += ".SH OPTIONS\n";
  appendOptions(root, true, &page);
  page += ".SH COMMANDS\n";
  std::vector<const CommandReference*> trail{&root};
  for (const CommandReference& command : root.subcommands) appendCommand(command, trail, &page);
  return page + kSharedSections;
}
