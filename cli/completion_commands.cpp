// kesto keywords [add|remove|extract] and kesto complete: the keyword file list
// and keyword completion from the command line.
#include <iostream>
#include <memory>

#include "cli/cli_session.h"
#include "cli/command_table.h"
#include "cli/integer_options.h"
#include "completion/completion_command.h"
#include "completion/completion_engine.h"
#include "completion/keyword_file_commands.h"
#include "foundation/os.h"

namespace {

struct KeywordsArguments {
  std::string file;
};

struct CompleteArguments {
  std::string word;
  std::string line;
  int32_t column = 0;  // 0: just after the end of the line
};

// The IDE keeps the description last shown for its whole session; kesto lives
// for one request, so the description waits in a file beside the settings.
std::string completionStatePath() { return joinPath(directoryOf(settingsFilePath()), "completion.state"); }

void saveSettings(CliSession& session, const CompletionEngine& engine) {
  if (engine.writeSettings()) return;
  reportError("cannot write the settings: " + session.settingsFile().error());
  session.exitStatus = kExitNothing;
}

void listFiles() {
  CompletionEngine engine;
  engine.readSettings();
  for (const std::string& file : engine.files) std::cout << file << '\n';
}

void add(CliSession& session, const KeywordsArguments& args) {
  std::string path = absolutePath(args.file);
  if (!os().exists(path)) {
    reportError(args.file + ": no such keyword file");
    session.exitStatus = kExitNothing;
    return;
  }
  CompletionEngine engine;
  engine.readSettings();
  addKeywordFile(engine, path);
  saveSettings(session, engine);
}

void remove(CliSession& session, const KeywordsArguments& args) {
  CompletionEngine engine;
  engine.readSettings();
  std::string path = absolutePath(args.file);
  size_t index = 0;
  while (index < engine.files.size() && engine.files[index] != args.file && engine.files[index] != path) ++index;
  if (index == engine.files.size()) {
    reportError(args.file + " is not in the keyword file list (see kesto keywords)");
    session.exitStatus = kExitNothing;
    return;
  }
  if (!removeKeywordFile(engine, index)) {
    session.exitStatus = kExitNothing;
    return;
  }
  saveSettings(session, engine);
}

void extract(CliSession& session, const KeywordsArguments& args) {
  CompletionEngine engine;
  engine.readSettings();
  std::string keywordPath;
  std::string err;
  if (!extractAndAddKeywordFile(engine, absolutePath(args.file), &keywordPath, &err)) {
    reportError(err);
    session.exitStatus = kExitNothing;
    return;
  }
  std::cout << keywordPath << '\n';
  saveSettings(session, engine);
}

void complete(CliSession& session, const CompleteArguments& args, bool wholeLine) {
  CompletionEngine engine;
  engine.readSettings();
  std::string skipped;
  std::vector<std::string> damaged;
  if (!engine.load(&skipped, &damaged)) reportError(skipped);
  for (const std::string& fault : damaged) reportError(fault);
  if (!damaged.empty()) {
    session.exitStatus = kExitUsage;
    return;
  }
  std::string statePath = completionStatePath();
  std::string lastShown;
  if (os().exists(statePath) && os().readFile(statePath, &lastShown, nullptr))
    engine.setLastShownDescription(lastShown);

  const std::string& line = wholeLine ? args.line : args.word;
  int32_t column = args.column > 0 ? args.column : static_cast<int32_t>(line.size()) + 1;
  CaretCompletion outcome = completeAtCaret(engine, line, column);

  if (engine.lastShownDescription() != lastShown) {
    std::string err;
    if (!os().writeFileAtomic(statePath, engine.lastShownDescription(), &err)) reportError(err);
  }
  if (wholeLine) {
    std::string newLine = line;
    if (!outcome.insertText.empty()) newLine.insert(static_cast<size_t>(column - 1), outcome.insertText);
    std::cout << newLine << '\n' << outcome.caretColumn << '\n';
  } else if (outcome.completed) {
    std::cout << outcome.insertText << '\n';
  }
  if (!outcome.statusText.empty()) session.host().showStatus(outcome.statusText);
  if (!outcome.completed) session.exitStatus = kExitNothing;
}

}  // namespace

void installKeywordsCommands(CLI::App& command, CliSession& session) {
  auto args = std::make_shared<KeywordsArguments>();
  command.require_subcommand(0, 1);
  command.callback([&command] {
    if (command.get_subcommands().empty()) listFiles();
  });

  CLI::App* addCommand = command.add_subcommand("add", "Append a keyword file to the list");
  addCommand->add_option("file", args->file, "Keyword file (.kwd)")->required();
  addCommand->callback([&session, args] { add(session, *args); });

  CLI::App* removeCommand =
      command.add_subcommand("remove", "Remove a keyword file from the list (asks; --yes answers)");
  removeCommand->add_option("file", args->file, "Keyword file as listed")->required();
  removeCommand->callback([&session, args] { remove(session, *args); });

  CLI::App* extractCommand = command.add_subcommand(
      "extract", "Write SOURCE's function and class names to a .kwd file beside it, add it and print its path");
  extractCommand->add_option("source", args->file, "C/C++ source file")->required();
  extractCommand->callback([&session, args] { extract(session, *args); });
}

void installCompleteCommands(CLI::App& command, CliSession& session) {
  auto args = std::make_shared<CompleteArguments>();
  CLI::Option* word = command.add_option("word", args->word, "Word to complete: prints the text that completes it");
  CLI::Option* line =
      command.add_option("--line", args->line, "Line of text: prints it completed at the caret, then the new column");
  addIntegerOption(command, "--column", args->column, "Caret column, from 1 (default: the end of the line)", 1)
      ->needs(line);
  word->excludes(line);
  command.callback([&session, args, line, word] {
    if (word->count() == 0 && line->count() == 0) throw CLI::RequiredError("WORD or --line");
    complete(session, *args, line->count() > 0);
  });
}
