// kesto deliver and kesto delivery [set]: the project's delivery and its groups.
#include <iostream>
#include <memory>

#include "cli/cli_session.h"
#include "cli/command_table.h"
#include "delivery/delivery_run.h"
#include "delivery/delivery_selection.h"
#include "foundation/alert.h"
#include "foundation/settings.h"
#include "tasks/task_list.h"

namespace {

struct DeliveryArguments {
  bool noMail = false;
  bool dryRun = false;
  std::string type;
  std::string directory;
  bool active = false;
  bool inactive = false;
};

// The rows, then the question that the confirmation's "Proceed" answers.
bool confirmOnTerminal(DeliveryConfirmation& confirmation, const DeliveryArguments& args) {
  for (const std::string& row : confirmation.rows()) std::cout << row << '\n';
  std::cout.flush();
  if (args.noMail) confirmation.setSendMail(false);
  if (args.dryRun) return false;
  return alert("Deliver these files ?", DeliveryConfirmation::kTitle, kAlertYesNo | kAlertIconQuestion) == kAnswerYes;
}

// The groups of the delivery node, rebuilt as the delivery does.
Tableau<OneDelRep>& rebuiltGroups(CliSession& session) {
  rebuildDeliveryGroups(session.delivery().groups, &session.project()->root());
  return session.delivery().groups;
}

// Every group whose directory is missing, each with the command that fixes it;
// false when there is one.
bool groupsHaveDirectories(CliSession& session) {
  bool complete = true;
  const Tableau<OneDelRep>& groups = rebuiltGroups(session);
  for (int32_t i = 0; i < groups.count(); ++i) {
    const OneDelRep* group = groups[i];
    const std::string type = group->type.str();
    const std::string directory = group->directory.str();
    if (deliveryDirectoryExists(session.projectDirectory(), directory)) continue;
    reportError("group " + type + (directory.empty() ? " has no delivery directory" : ": " + directory + " does not exist") +
                ": kesto delivery set " + type + " --dir DIR");
    complete = false;
  }
  return complete;
}

void deliver(CliSession& session, const DeliveryArguments& args) {
  if (!session.requireProject()) return;
  if (!groupsHaveDirectories(session)) {
    session.exitStatus = kExitNothing;
    return;
  }
  const TaskList& tasks = session.tasks();
  DeliveryOutcome outcome =
      session.delivery().run(session.host(), session.mail(), tasks.mainOn && tasks.keyIsDelivery,
                   [&args](DeliveryConfirmation& confirmation) { return confirmOnTerminal(confirmation, args); });
  bool listedOnly = outcome == DeliveryOutcome::Cancelled && args.dryRun;
  if (outcome != DeliveryOutcome::Delivered && !listedOnly) session.exitStatus = kExitNothing;
}

void listGroups(CliSession& session) {
  if (!session.requireProject()) return;
  const Tableau<OneDelRep>& groups = rebuiltGroups(session);
  for (int32_t i = 0; i < groups.count(); ++i) {
    const OneDelRep& group = *groups[i];
    std::cout << group.type.c_str() << '\t' << group.directory.c_str() << '\t'
              << (group.active ? "active" : "inactive") << '\n';
  }
  if (groups.count() == 0) session.exitStatus = kExitNothing;
}

void setGroup(CliSession& session, const DeliveryArguments& args) {
  if (!session.requireProject(ProjectUse::Update)) return;
  Tableau<OneDelRep>& groups = rebuiltGroups(session);
  OneDelRep* group = findDeliveryGroup(groups, args.type);
  if (!group) {
    std::string types;
    for (int32_t i = 0; i < groups.count(); ++i) types += std::string(" ") + groups[i]->type.c_str();
    reportError("no delivery group of type " + args.type + "; the types under the DELIVERY node are:" +
                (types.empty() ? std::string(" none") : types));
    session.exitStatus = kExitUsage;
    return;
  }
  if (!args.directory.empty() && !deliveryDirectoryExists(session.projectDirectory(), args.directory)) {
    reportError("delivery directory " + args.directory + " does not exist");
    session.exitStatus = kExitUsage;
    return;
  }
  if (!args.directory.empty()) group->directory = args.directory;
  if (args.active || args.inactive) group->active = args.active ? 1 : 0;
  std::string err;
  if (!session.saveProject(&err)) {
    reportError(err);
    session.exitStatus = kExitNothing;
  }
}

}  // namespace

void installDeliverCommand(CLI::App& command, CliSession& session) {
  auto args = std::make_shared<DeliveryArguments>();
  command.add_flag("--no-mail", args->noMail, "Do not mail the report");
  command.add_flag("--dry-run", args->dryRun, "List what would be delivered and stop");
  command.callback([&session, args] { deliver(session, *args); });
}

void installDeliveryCommands(CLI::App& command, CliSession& session) {
  auto args = std::make_shared<DeliveryArguments>();
  command.callback([&command, &session] {
    if (command.get_subcommands().empty()) listGroups(session);
  });
  CLI::App* set = command.add_subcommand("set", "Set the directory or the state of the group of TYPE");
  set->add_option("type", args->type, "Node type of the group, as listed")->required();
  set->add_option("--dir", args->directory, "Delivery directory");
  auto* active = set->add_flag("--active", args->active, "Deliver the group's files");
  set->add_flag("--inactive", args->inactive, "Do not deliver the group's files")->excludes(active);
  set->callback([&session, args] { setGroup(session, *args); });
}
