// kesto tags: the tags file of a tree, for an editor's jump to a definition.
#include <iostream>
#include <memory>

#include "cli/cli_session.h"
#include "cli/command_table.h"
#include "cli/file_arguments.h"
#include "foundation/os.h"
#include "navigation/quickfind_settings.h"
#include "navigation/tags_file.h"

namespace {

struct TagsArguments {
  std::string dir;            // default: the project directory
  std::string output = "tags";  // "-": standard output
};

// An editor takes a tag's file from the directory of the tags file.
std::string relativeTo(const std::string& dir, const std::string& path) {
  std::string prefix = joinPath(dir, "");
  return path.compare(0, prefix.size(), prefix) == 0 ? path.substr(prefix.size()) : path;
}

void writeTags(CliSession& session, const TagsArguments& args) {
  if (args.dir.empty() && !session.openProject()) return;
  std::string root = absolutePath(args.dir.empty() ? session.projectDirectory() : args.dir);
  if (!readableDirectoryArgument(session, root)) return;
  std::vector<TagEntry> tags = treeTags(session.host(), root, QuickFindSettings::read());
  bool toOutput = args.output == "-";
  std::string base = toOutput ? os().currentDirectory() : directoryOf(absolutePath(args.output));
  for (TagEntry& tag : tags) tag.file = relativeTo(base, tag.file);
  if (tags.empty()) session.exitStatus = kExitNothing;
  std::string text = tagsFileText(std::move(tags));
  if (toOutput) {
    std::cout << text;
    return;
  }
  // An unchanged tree leaves the file alone, so that an editor need not reload it.
  std::string old;
  if (os().readFile(args.output, &old, nullptr) && old == text) return;
  std::string err;
  if (!os().writeFileAtomic(args.output, text, &err)) {
    reportError(err);
    session.exitStatus = kExitNothing;
  }
}

}  // namespace

void installTagsCommand(CLI::App& command, CliSession& session) {
  auto args = std::make_shared<TagsArguments>();
  command.add_option("dir", args->dir, "Directory to scan (default: the project directory)");
  command.add_option("-o,--output", args->output, "Tags file to write, - for standard output (default: tags)");
  command.callback([&session, args] { writeTags(session, *args); });
}
