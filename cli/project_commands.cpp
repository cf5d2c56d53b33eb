// kesto project new|show|set: the project file and its per-project options.
#include <cstdlib>
#include <iostream>
#include <map>
#include <memory>

#include "cli/cli_session.h"
#include "cli/command_table.h"
#include "foundation/file_mask.h"
#include "foundation/os.h"
#include "foundation/settings.h"
#include "groupware/quick_add_presenter.h"

namespace {

struct ProjectArguments {
  std::string file;
  std::string name;
  std::string value;
  std::string type;
  std::string parent;
  std::string at;         // quick-add: the current node
  std::string container;  // quick-add: a new container's name
  std::string level = "parent";
};

const std::map<std::string, ContainerLevel> kLevels = {
    {"sibling", ContainerLevel::Sibling}, {"parent", ContainerLevel::Parent}, {"root", ContainerLevel::Root}};

// Records the options in the order that saving writes them.
class OrderedOptions : public ProjectOptionStore {
 public:
  bool get(const std::string&, std::string*) override { return false; }
  bool set(const std::string& name, const std::string& bytes) override {
    entries.emplace_back(name, bytes);
    return true;
  }
  std::vector<std::pair<std::string, std::string>> entries;
};

// NAME<TAB>TYPE, then the directory options the node sets.
void printNode(const ProjectNode& node, const std::string& indent) {
  std::cout << indent << node.name << '\t' << node.type;
  if (!node.includePath.empty()) std::cout << "\tinclude=" << node.includePath;
  if (!node.sourcePath.empty()) std::cout << "\tsource=" << node.sourcePath;
  std::cout << '\n';
  for (const ProjectNode& child : node.nodes) printNode(child, indent + "  ");
}

std::string optionText(const std::string& name, const std::string& bytes) {
  const ProjectOptionInfo* info = findProjectOption(name);
  int32_t number = 0;
  if (info && info->isInteger && decodeIntegerOption(bytes, &number)) return std::to_string(number);
  std::string text;
  decodeTextOption(bytes, &text);
  return text;
}

void create(CliSession& session, const ProjectArguments& args) {
  std::string err;
  const std::string file = matchesMask(fileNameOf(args.file), "*.kpj") ? args.file : args.file + ".kpj";
  if (os().exists(file)) {
    reportError(file + " exists already");
    session.exitStatus = kExitNothing;
  } else if (!os().writeFileAtomic(file, KpjProject::emptyText(), &err)) {
    reportError(err);
    session.exitStatus = kExitNothing;
  }
}

void show(CliSession& session) {
  if (!session.requireProject()) return;
  KpjProject& project = *session.project();
  std::cout << "nodes:\n";
  for (const ProjectNode& node : project.root().nodes) printNode(node, "  ");
  std::cout << "options:\n";
  OrderedOptions ordered;
  writeProjectOptions(ordered, *session.options());
  for (const auto& [name, bytes] : ordered.entries) std::cout << "  " << name << '\t' << optionText(name, bytes) << '\n';
}

bool parseInteger(const std::string& text, int32_t* value) {
  char* end = nullptr;
  long long parsed = std::strtoll(text.c_str(), &end, 10);
  if (text.empty() || *end != 0 || parsed < INT32_MIN || parsed > INT32_MAX) return false;
  *value = static_cast<int32_t>(parsed);
  return true;
}

void set(CliSession& session, const ProjectArguments& args) {
  if (!session.requireProject(ProjectUse::Update)) return;
  const ProjectOptionInfo* info = findProjectOption(args.name);
  if (!info) {
    std::string names;
    for (const ProjectOptionInfo& known : projectOptionTable()) names += std::string(" ") + known.name;
    reportError("unknown option " + args.name + "; the options are:" + names);
    session.exitStatus = kExitUsage;
    return;
  }
  std::string bytes;
  int32_t number = 0;
  if (info->isInteger) {
    if (!parseInteger(args.value, &number)) {
      reportError(args.name + " takes a whole number, not \"" + args.value + "\"");
      session.exitStatus = kExitUsage;
      return;
    }
    bytes = encodeIntegerOption(number);
  } else {
    bytes = encodeTextOption(info->marker, args.value);
  }
  std::string err;
  if (!session.project()->set(args.name, bytes) || !session.project()->save(&err)) {
    reportError(err.empty() ? "cannot set " + args.name : err);
    session.exitStatus = kExitNothing;
  }
}

// Applies edit to the project's tree and saves the file.
template <typename Edit>
void editTree(CliSession& session, Edit edit) {
  if (!session.requireProject(ProjectUse::Update)) return;
  std::string err;
  if (!edit(*session.project(), &err) || !session.project()->save(&err)) {
    reportError(err);
    session.exitStatus = kExitNothing;
  }
}

// Quick add as the dialog does it, then the project file is saved.
void quickAdd(CliSession& session, const ProjectArguments& args, bool withContainer) {
  if (!session.requireProject(ProjectUse::Update)) return;
  KpjProject& project = *session.project();
  const ProjectNode* current = findNodeNamed(project.root(), args.at);
  if (!current) {
    reportError("no node named " + args.at + " in " + project.path());
    session.exitStatus = kExitNothing;
    return;
  }
  QuickAddPresenter presenter(session.host(), project.root(), *current);
  presenter.name = args.name;
  presenter.newContainer = withContainer;
  presenter.containerName = args.container;
  presenter.level = kLevels.at(args.level);
  std::string err;
  if (!presenter.ok()) {
    session.exitStatus = kExitNothing;
  } else if (!presenter.result()) {
    reportError("the project refused the node " + args.name);
    session.exitStatus = kExitNothing;
  } else if (!project.save(&err)) {
    reportError(err);
    session.exitStatus = kExitNothing;
  } else {
    std::cout << presenter.result()->name << '\n';
  }
}

}  // namespace

void installProjectCommands(CLI::App& command, CliSession& session) {
  auto args = std::make_shared<ProjectArguments>();
  command.require_subcommand(1);

  CLI::App* newCommand = command.add_subcommand("new", "Create an empty project file");
  newCommand->add_option("file", args->file, "Project file to create (NAME.kpj)")->required();
  newCommand->callback([&session, args] { create(session, *args); });

  CLI::App* showCommand = command.add_subcommand("show", "Print the node tree and the options' effective values");
  showCommand->callback([&session] { show(session); });

  CLI::App* setCommand = command.add_subcommand("set", "Set a per-project option (integer or text by its kind)");
  setCommand->add_option("name", args->name, "Option name, such as Kesto_HIERARCH")->required();
  setCommand->add_option("value", args->value, "Value; texts are stored with their marker")->required();
  setCommand->callback([&session, args] { set(session, *args); });

  CLI::App* addCommand = command.add_subcommand("add", "Add a node under the top node or under --parent");
  addCommand->add_option("name", args->name, "The node's file, relative to the project or absolute")->required();
  addCommand->add_option("--type", args->type, "Node type, such as .exe or .cpp")->required();
  addCommand->add_option("--parent", args->parent, "Name of the node to add it under (default: the top node)");
  addCommand->callback([&session, args] {
    // A node of type "" would make a delivery group that nothing can set.
    if (args->name.find_first_not_of(" \t") == std::string::npos ||
        args->type.find_first_not_of(" \t") == std::string::npos) {
      reportError("a node needs a name and a type, such as: kesto project add util.cpp --type .cpp");
      session.exitStatus = kExitUsage;
      return;
    }
    editTree(session, [args](KpjProject& project, std::string* err) {
      return project.addNode(args->parent, args->name, args->type, err);
    });
  });

  CLI::App* removeCommand = command.add_subcommand("remove", "Remove the first node of that name and its children");
  removeCommand->add_option("name", args->name, "Name of the node")->required();
  removeCommand->callback([&session, args] {
    editTree(session, [args](KpjProject& project, std::string* err) { return project.removeNode(args->name, err); });
  });

  CLI::App* quickAddCommand =
      command.add_subcommand("quick-add", "Add a source node beside a node, optionally in a new container");
  quickAddCommand->add_option("name", args->name, "The new node's name (\".cpp\" is added when it has no dot)")
      ->required();
  quickAddCommand->add_option("--at", args->at, "The node the new one goes beside")->required();
  CLI::Option* container =
      quickAddCommand->add_option("--container", args->container, "Put the node in a new container of this name");
  quickAddCommand->add_option("--level", args->level, "Where the container goes (default parent)")
      ->check(CLI::IsMember({"sibling", "parent", "root"}))
      ->needs(container);
  quickAddCommand->callback([&session, args, container] { quickAdd(session, *args, container->count() > 0); });
}
