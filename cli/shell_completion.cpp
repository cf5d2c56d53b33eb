// Each script walks the words typed so far down the command tree, then offers
// what the command reached takes: its subcommands, its options, the values its
// positionals allow, and files after an option that takes a value.
#include "cli/shell_completion.h"

#include <vector>

namespace {

// What one command offers, flattened for the generators.
struct CompletionNode {
  std::string path;  // "kesto tasks add"
  const CommandReference* command;
};

void collect(const CommandReference& command, std::vector<const CommandReference*>& trail,
             std::vector<CompletionNode>* nodes) {
  trail.push_back(&command);
  nodes->push_back({CommandReference::pathOf(trail), &command});
  for (const CommandReference& subcommand : command.subcommands) collect(subcommand, trail, nodes);
  trail.pop_back();
}

std::vector<CompletionNode> nodesOf(const CommandReference& root) {
  std::vector<CompletionNode> nodes;
  std::vector<const CommandReference*> trail;
  collect(root, trail, &nodes);
  return nodes;
}

// 'TEXT' for a POSIX shell (fish takes the same form with \' and \\ inside).
std::string quoted(const std::string& text, bool fish) {
  std::string out = "'";
  for (char c : text) {
    if (c == '\n') c = ' ';
    if (c == '\'')
      out += fish ? "\\'" : "'\\''";
    else if (c == '\\' && fish)
      out += "\\\\";
    else
      out += c;
  }
  return out + "'";
}

std::string joined(const std::vector<std::string>& words) {
  std::string text;
  for (const std::string& word : words) text += (text.empty() ? "" : " ") + word;
  return text;
}

std::vector<std::string> optionNames(const CommandReference& command, bool valuedOnly) {
  std::vector<std::string> names;
  for (const OptionReference& option : command.options)
    if (!option.positional && (!valuedOnly || !option.valueName.empty()))
      names.insert(names.end(), option.names.begin(), option.names.end());
  return names;
}

std::vector<std::string> positionalChoices(const CommandReference& command) {
  std::vector<std::string> choices;
  for (const OptionReference& option : command.options)
    if (option.positional) choices.insert(choices.end(), option.choices.begin(), option.choices.end());
  return choices;
}

// The case patterns of every command path below the root, for the walk.
std::string commandPathPatterns(const std::vector<CompletionNode>& nodes) {
  std::string patterns;
  for (size_t i = 1; i < nodes.size(); ++i) patterns += (i > 1 ? "|" : "") + quoted(nodes[i].path, false);
  return patterns;
}

// bash and zsh share the walk; zsh counts its words from 1 and has the command at 1.
std::string posixWalk(const std::vector<CompletionNode>& nodes, const std::string& first, const std::string& last,
                      const std::string& wordAt) {
  return "  local cmdpath=kesto word i\n"
         "  for ((i = " + first + "; i < " + last + "; i++)); do\n"
         "    word=" + wordAt + "\n"
         "    case \"$cmdpath $word\" in\n"
         "      " + commandPathPatterns(nodes) + ") cmdpath=\"$cmdpath $word\" ;;\n"
         "    esac\n"
         "  done\n";
}

std::string bashScript(const std::vector<CompletionNode>& nodes) {
  std::string script =
      "# bash completion for kesto, written by `kesto completion bash`.\n"
      "_kesto() {\n"
      "  local cur=${COMP_WORDS[COMP_CWORD]} prev=${COMP_WORDS[COMP_CWORD-1]}\n" +
      posixWalk(nodes, "1", "COMP_CWORD", "${COMP_WORDS[i]}") +
      "  local words='' valued=''\n"
      "  case $cmdpath in\n";
  for (const CompletionNode& node : nodes) {
    std::vector<std::string> words = optionNames(*node.command, false);
    for (const CommandReference& subcommand : node.command->subcommands) words.push_back(subcommand.name);
    for (const std::string& choice : positionalChoices(*node.command)) words.push_back(choice);
    script += "    " + quoted(node.path, false) + ") words=" + quoted(joined(words), false) +
              "; valued=" + quoted(joined(optionNames(*node.command, true)), false) + " ;;\n";
  }
  script +=
      "  esac\n"
      "  # After an option that takes a value, the shell's own file completion.\n"
      "  if [[ \" $valued \" == *\" $prev \"* ]]; then COMPREPLY=(); return; fi\n"
      "  COMPREPLY=($(compgen -W \"$words\" -- \"$cur\"))\n"
      "}\n"
      "complete -o default -F _kesto kesto\n";
  return script;
}

// "NAME:DESCRIPTION" for _describe, with the colons of the name escaped.
std::string describeEntry(const std::string& name, const std::string& description) {
  std::string entry;
  for (char c : name) entry += c == ':' ? std::string("\\:") : std::string(1, c);
  return quoted(entry + (description.empty() ? "" : ":" + description), false);
}

std::string zshScript(const std::vector<CompletionNode>& nodes) {
  std::string script =
      "#compdef kesto\n"
      "# zsh completion for kesto, written by `kesto completion zsh`.\n"
      "_kesto() {\n" +
      posixWalk(nodes, "2", "CURRENT", "${words[i]}") +
      "  local -a commands options\n"
      "  local valued=''\n"
      "  case $cmdpath in\n";
  for (const CompletionNode& node : nodes) {
    std::string commands, options;
    for (const CommandReference& subcommand : node.command->subcommands)
      commands += " " + describeEntry(subcommand.name, subcommand.summary);
    for (const std::string& choice : positionalChoices(*node.command)) commands += " " + describeEntry(choice, "");
    for (const OptionReference& option : node.command->options)
      if (!option.positional)
        for (const std::string& name : option.names) options += " " + describeEntry(name, option.description);
    script += "    (" + quoted(node.path, false) + ") commands=(" + commands + " ); options=(" + options +
              " ); valued=" + quoted(joined(optionNames(*node.command, true)), false) + " ;;\n";
  }
  script +=
      "  esac\n"
      "  if [[ \" $valued \" == *\" ${words[CURRENT-1]} \"* ]]; then _files; return; fi\n"
      "  if [[ ${words[CURRENT]} == -* ]]; then _describe -t options option options; return; fi\n"
      "  _describe -t commands command commands || _files\n"
      "}\n"
      "if [[ $funcstack[1] == _kesto ]]; then _kesto \"$@\"; else compdef _kesto kesto; fi\n";
  return script;
}

std::string fishScript(const std::vector<CompletionNode>& nodes) {
  std::string paths;
  for (size_t i = 1; i < nodes.size(); ++i) paths += " " + quoted(nodes[i].path, true);
  std::string script =
      "# fish completion for kesto, written by `kesto completion fish`.\n"
      "set -g __kesto_commands" + paths + "\n"
      "function __kesto_at --description 'true when the words typed lead to the command given'\n"
      "    set -l cmdpath kesto\n"
      "    for word in (commandline -opc)[2..-1]\n"
      "        contains -- \"$cmdpath $word\" $__kesto_commands; and set cmdpath \"$cmdpath $word\"\n"
      "    end\n"
      "    test \"$cmdpath\" = \"$argv[1]\"\n"
      "end\n";
  for (const CompletionNode& node : nodes) {
    std::string prefix = "complete -c kesto -n " + quoted("__kesto_at " + quoted(node.path, true), true);
    for (const CommandReference& subcommand : node.command->subcommands)
      script += prefix + " -f -a " + quoted(subcommand.name, true) + " -d " + quoted(subcommand.summary, true) + "\n";
    std::vector<std::string> choices = positionalChoices(*node.command);
    if (!choices.empty()) script += prefix + " -f -a " + quoted(joined(choices), true) + "\n";
    for (const OptionReference& option : node.command->options) {
      if (option.positional) continue;
      std::string line = prefix;
      for (const std::string& name : option.names)
        line += (name.rfind("--", 0) == 0 ? " -l " + name.substr(2) : " -s " + name.substr(1));
      if (!option.valueName.empty()) line += " -r";
      script += line + " -d " + quoted(option.description, true) + "\n";
    }
  }
  return script;
}

}  // namespace

const std::vector<std::string>& completionShells() {
  static const std::vector<std::string> shells = {"bash", "zsh", "fish"};
  return shells;
}

std::string completionScript(const CommandReference& root, const std::string& shell) {
  std::vector<CompletionNode> nodes = nodesOf(root);
  if (shell == "bash") return bashScript(nodes);
  if (shell == "zsh") return zshScript(nodes);
  if (shell == "fish") return fishScript(nodes);
  return "";
}
