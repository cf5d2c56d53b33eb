// kesto recent and kesto bar: the top bar's recent lists and its menus for the project.
#include <iostream>
#include <memory>

#include "cli/cli_session.h"
#include "cli/command_table.h"
#include "groupware/groupware_settings.h"
#include "topbar/bar_menu.h"
#include "topbar/top_bar_settings.h"

namespace {

struct RecentArguments {
  std::string list;
};

void listRecent(CliSession& session, const RecentArguments& args) {
  RecentFiles recent;
  recent.load();
  const bool projects = args.list.empty() || args.list == "projects";
  const bool headers = args.list.empty() || args.list == "headers";
  size_t listed = 0;
  if (projects) {
    for (const std::string& path : recent.projects) std::cout << (headers ? "project\t" : "") << path << '\n';
    listed += recent.projects.size();
  }
  if (headers) {
    for (const std::string& path : recent.headers) std::cout << (projects ? "header\t" : "") << path << '\n';
    listed += recent.headers.size();
  }
  if (listed == 0) session.exitStatus = kExitNothing;
}

void printBar(CliSession& session) {
  if (!session.openProject()) return;
  RecentFiles recent;
  recent.load();
  BarMenuInputs inputs;
  inputs.recent = &recent;
  inputs.menuSize = TopBarSettings::read(true).menuSize;
  GroupwareSettings groupware;
  groupware.load();
  inputs.groupwareActive = groupware.enabled != 0;
  if (const ProjectOptions* options = session.options()) {
    inputs.project = &session.project()->root();
    inputs.construction = options->hierarchical;
    inputs.htmlActive = options->htmlEnabled != 0;
  }
  std::cout << describeMenu(buildBarMenu(inputs).bar);
}

}  // namespace

void installRecentCommand(CLI::App& command, CliSession& session) {
  auto args = std::make_shared<RecentArguments>();
  command.add_option("list", args->list, "projects or headers (default: both, each line led by its kind)")
      ->check(CLI::IsMember({"projects", "headers"}));
  command.callback([&session, args] { listRecent(session, *args); });
}

void installBarCommand(CLI::App& command, CliSession& session) {
  command.callback([&session] { printBar(session); });
}
