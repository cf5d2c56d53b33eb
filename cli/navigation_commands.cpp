// kesto functions|includes|include|find|xref: the editor's navigation menus and
// QuickFind's searches on the files of a project.
#include <unistd.h>

#include <cstdio>
#include <iostream>
#include <map>
#include <memory>

#include "cli/cli_session.h"
#include "cli/command_table.h"
#include "cli/file_arguments.h"
#include "cli/integer_options.h"
#include "cli/json_output.h"
#include "foundation/menu_model.h"
#include "navigation/include_search.h"
#include "navigation/navigation_menus.h"
#include "navigation/quickfind.h"
#include "navigation/search_history.h"
#include "navigation/source_scanner.h"

namespace {

struct NavigationArguments {
  std::string file;
  std::string name;
  std::string kind;  // find: function, method or class
  std::string from;  // the file whose project node gives the search paths
  bool unsorted = false;
  int32_t size = 0;  // 0: the "Menus" setting
  bool menu = false;
  bool json = false;
};

// The scanner reads a file it cannot open as an empty one, which would say
// "nothing detected" of a file that was never read.
void listFunctions(CliSession& session, const NavigationArguments& args) {
  if (!readableFileArgument(session, args.file)) return;
  SourceScanner scanner;
  if (args.unsorted) scanner.settings().sorted = false;
  if (args.size > 0) scanner.settings().size = args.size;
  MenuModel menu;
  if (!scanner.functionsMenu(session.host(), args.file, &menu)) {
    session.exitStatus = kExitNothing;
    return;
  }
  if (args.menu) {
    std::cout << describeMenu(menu);
    return;
  }
  const Tableau<Fnc>& functions = scanner.functions();
  JsonDocument document = JsonDocument::array();
  for (int32_t i = 0; i < functions.count(); ++i) {
    const Fnc& entry = *functions[i];
    if (args.json)
      document.push_back({{"id", kFunctionCommands.id(i)},
                          {"line", entry.line()},
                          {"class", entry.className()},
                          {"name", entry.name()}});
    else
      std::cout << kFunctionCommands.id(i) << '\t' << entry.line() << '\t' << entry.className() << '\t'
                << entry.name() << '\n';
  }
  if (args.json) printJson(document);
}

void listIncludes(CliSession& session, const NavigationArguments& args) {
  if (!readableFileArgument(session, args.file)) return;
  SourceScanner scanner;
  MenuModel menu;
  if (!scanner.includesMenu(session.host(), args.file, &menu)) {
    session.exitStatus = kExitNothing;
    return;
  }
  const Tableau<String>& includes = scanner.includes();
  for (int32_t i = 0; i < includes.count(); ++i)
    std::cout << kIncludeCommands.id(i) << '\t' << includes[i]->str() << '\n';
}

void locateInclude(CliSession& session, const NavigationArguments& args) {
  if (!session.openProject()) return;
  std::string path;
  session.host().holdStatus();
  bool found = findInclude(session.host(), args.name, args.from, &path);
  // The status line of a hit is the path itself.
  session.host().releaseStatus({path});
  if (found)
    std::cout << path << '\n';
  else
    session.exitStatus = kExitNothing;
}

// The hits of find, as lines as they come or as one document at the end.
class HitPrinter {
 public:
  explicit HitPrinter(bool json) : json_(json) {}
  void finish() {
    if (json_) printJson(document_);
  }
  void print(const std::string& file, int32_t line, const std::string& text) {
    if (json_)
      document_.push_back({{"file", file}, {"line", line}, {"text", text}});
    else
      std::cout << file << ':' << line << ": " << text << '\n';
  }

 private:
  bool json_;
  JsonDocument document_ = JsonDocument::array();
};

// An empty text ends a QuickFind command silently, as an empty prompt does. A
// name longer than the prompt's slot is refused: cut, it would find the hits
// of another name.
bool searchable(CliSession& session, const std::string& name) {
  if (name.size() > kSearchTextLimit) {
    reportError("a search name holds at most " + std::to_string(kSearchTextLimit) + " bytes; this one has " +
                std::to_string(name.size()));
    session.exitStatus = kExitUsage;
    return false;
  }
  if (name.empty()) session.exitStatus = kExitNothing;
  return !name.empty() && session.openProject();
}

void findDefinition(CliSession& session, const NavigationArguments& args, QuickCommand command) {
  const std::string& name = args.name;
  if (!searchable(session, name)) return;
  QuickFind quickFind;
  QuickHit hit;
  HitPrinter printer(args.json);
  bool found = false;
  if (command == kQuickMethod) {
    found = quickFind.findMethods(session.host(), name, args.from);
    const Tableau<QuickResu>& results = quickFind.methodResults();
    for (int32_t i = 0; i < results.count(); ++i)
      printer.print(results[i]->file(), results[i]->line(), results[i]->text());
  } else {
    session.host().holdStatus();
    found = command == kQuickFunction ? quickFind.findFunction(session.host(), name, args.from, &hit)
                                      : quickFind.findClass(session.host(), name, args.from, &hit);
    // The status line of a hit names its place as "PATH : LINE".
    session.host().releaseStatus({hit.file + " : " + std::to_string(hit.line)});
    if (found) printer.print(hit.file, hit.line, hit.text);
  }
  printer.finish();
  if (!found) session.exitStatus = kExitNothing;
}

void crossReference(CliSession& session, const NavigationArguments& args) {
  const std::string& name = args.name;
  if (!searchable(session, name)) return;
  // Hundreds of thousands of hits are written far faster through a large buffer
  // than through the default one of 4 kB; a terminal keeps its line buffering.
  if (!isatty(STDOUT_FILENO)) std::setvbuf(stdout, nullptr, _IOFBF, 1 << 16);
  std::vector<CliHost::LocatedLine> uses;
  if (args.json) session.host().collectLocatedMessages(&uses);
  QuickFind quickFind;
  if (!quickFind.crossReference(session.host(), name)) session.exitStatus = kExitNothing;
  session.host().collectLocatedMessages(nullptr);
  if (!args.json) return;
  JsonDocument document = JsonDocument::array();
  for (const CliHost::LocatedLine& use : uses)
    document.push_back({{"file", use.file}, {"line", use.line}, {"text", use.text}});
  printJson(document);
}

}  // namespace

void installFunctionsCommand(CLI::App& command, CliSession& session) {
  auto args = std::make_shared<NavigationArguments>();
  command.add_option("file", args->file, "Source file to scan")->required();
  command.add_flag("--unsorted", args->unsorted, "Keep file order instead of sorting by class, then name");
  addIntegerOption(command, "--size", args->size, "Items per menu column (default: the Menus setting Size)", 1);
  command.add_flag("--menu", args->menu, "Print the menu (ID TEXT, submenus indented, -- before a new column)");
  addJsonFlag(command, args->json);
  command.footer("Prints ID<TAB>LINE<TAB>CLASS<TAB>NAME per entry, in menu order.");
  command.callback([&session, args] { listFunctions(session, *args); });
}

void installIncludesCommand(CLI::App& command, CliSession& session) {
  auto args = std::make_shared<NavigationArguments>();
  command.add_option("file", args->file, "Source file to scan")->required();
  command.footer("Prints ID<TAB>NAME per include.");
  command.callback([&session, args] { listIncludes(session, *args); });
}

void installIncludeCommand(CLI::App& command, CliSession& session) {
  auto args = std::make_shared<NavigationArguments>();
  command.add_option("name", args->name, "Include name, as written between <> or double quotes")->required();
  command.add_option("--from", args->from, "File whose project node gives the include path");
  command.callback([&session, args] { locateInclude(session, *args); });
}

void installFindCommands(CLI::App& command, CliSession& session) {
  auto args = std::make_shared<NavigationArguments>();
  static const std::map<std::string, QuickCommand> kinds = {
      {"function", kQuickFunction}, {"method", kQuickMethod}, {"class", kQuickClass}};
  command.add_option("kind", args->kind, "function: first definition; method: every Class::Name definition; "
                                         "class: first class declaration on the include and source paths")
      ->required()
      ->check(CLI::IsMember({"function", "method", "class"}));
  command.add_option("name", args->name, "Name to find")->required();
  command.add_option("--from", args->from, "File whose project node gives the source and include paths");
  addJsonFlag(command, args->json);
  command.footer("Prints PATH:LINE: TEXT: the matching line of the first hit, or Class::Name for every method.");
  command.callback([&session, args] { findDefinition(session, *args, kinds.at(args->kind)); });
}

void installXrefCommand(CLI::App& command, CliSession& session) {
  auto args = std::make_shared<NavigationArguments>();
  command.add_option("name", args->name, "Name whose uses inside bodies are listed")->required();
  addJsonFlag(command, args->json);
  command.footer("Prints a header line, then PATH:LINE:1: LINE per use, in the order found.");
  command.callback([&session, args] { crossReference(session, *args); });
}
