// kesto html: writes the documentation site of the project, or of a directory.
#include <cstdio>
#include <iostream>
#include <memory>

#include "cli/cli_session.h"
#include "cli/command_table.h"
#include "cli/file_arguments.h"
#include "cli/html_site.h"
#include "foundation/os.h"
#include "html/ht_generation.h"
#include "html/html_settings.h"

namespace {

struct HtmlArguments {
  std::string directory;
  std::string filters;
  std::string name;
  bool open = false;
};

void generate(CliSession& session, const HtmlArguments& args) {
  std::string directory = args.directory;
  std::string filters = args.filters;
  std::string name = args.name;
  if (directory.empty()) {
    if (!session.requireProject()) return;
    directory = session.projectDirectory();
    if (filters.empty()) filters = session.options()->htmlFilters;
    if (name.empty()) name = htProjectName(session.project()->path());
  } else {
    if (!readableDirectoryArgument(session, directory)) return;
    const HtmlSettings html = HtmlSettings::read(directory);
    if (filters.empty()) filters = html.filters;
    if (name.empty()) name = html.siteName;
  }
  if (!writeHtmlSite(session, directory, filters, name)) return;
  std::cout << htFramesetPath(directory, name) << '\n';
  std::string err;
  if (args.open && !openHtmlDocumentation(directory, name, &err)) {
    reportError(err);
    session.exitStatus = kExitNothing;
  }
}

}  // namespace

bool writeHtmlSite(CliSession& session, const std::string& directory, const std::string& filters,
                   const std::string& name) {
  if (refuseWhileHtmlGenerationRuns()) {
    session.exitStatus = kExitNothing;
    return false;
  }
  htGenerationResult result;
  Host& host = session.host();
  bool finished = runHtmlGeneration(directory, filters, name, &result,
                                    [&host](const char* phase, size_t done, size_t total) {
                                      host.showProgress(done, total, phase);
                                    });
  host.endProgress();
  if (!finished) {
    session.exitStatus = kExitNothing;
    return false;
  }
  if (!result.sourcesSkipped.empty()) host.showStatus(skippedPathsText(result.sourcesSkipped));
  if (result.pagesSkipped > 0) {
    reportError(std::to_string(result.pagesSkipped) + " page(s) could not be written, the first: " +
                result.firstSkipped);
    session.exitStatus = kExitNothing;
  }
  return true;
}

void installHtmlCommands(CLI::App& command, CliSession& session) {
  auto args = std::make_shared<HtmlArguments>();
  command.add_option("--dir", args->directory, "Document this directory instead of the project's");
  command.add_option("--filters", args->filters,
                     "File patterns separated by ';' (default: the project's, or the HTML/Filters setting)");
  command.add_option("--name", args->name,
                     "Name that heads the site and its page names (default: the project's, or the directory's)");
  command.add_flag("--open", args->open, "Open the site with the desktop's opener");
  command.callback([&session, args] { generate(session, *args); });
}
