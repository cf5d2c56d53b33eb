// kesto gw send|get|locks: the groupware dialogs driven through their presenters.
#include <iostream>
#include <memory>
#include <set>

#include "cli/cli_session.h"
#include "cli/command_table.h"
#include "cli/json_output.h"
#include "delivery/mail.h"
#include "foundation/os.h"
#include "groupware/gw_get_presenter.h"
#include "groupware/gw_send_presenter.h"
#include "groupware/lock_file.h"
#include "groupware/tree_scan.h"

namespace {

// A request button as an option: its name, the presenter's command and its help.
template <typename Presenter>
struct Button {
  const char* option;
  void (Presenter::*press)();
  const char* help;
};

// What one `gw send` or `gw get` run was asked to do.
struct ListArguments {
  std::vector<std::unique_ptr<std::vector<std::string>>> files;  // one per button
  std::vector<CLI::Option*> options;
  bool go = false;
  bool steal = false;  // get: take over a lock that someone else holds
};

// What a get may do with a copy that someone else locked meanwhile; a send has no such choice.
void applyLockPolicy(GwGetPresenter& presenter, const ListArguments& args) { presenter.refuseOthersLocks = !args.steal; }
void applyLockPolicy(GwSendPresenter&, const ListArguments&) {}

// The settings, the project's server and recipients; false when the run cannot go on.
bool openGroupware(CliSession& session, GroupwareSettings* settings) {
  if (!session.openProject()) return false;
  settings->load();
  if (settings->enabled == 0) {
    reportError("groupware is disabled: kesto settings set Groupware Enabled 1");
    session.exitStatus = kExitNothing;
    return false;
  }
  if (const ProjectOptions* options = session.options()) settings->server = options->groupwareServer;
  return true;
}

// The row of each listed name; false with a usage error for a name that is not listed.
template <typename Presenter>
bool rowsNamed(CliSession& session, const Presenter& presenter, const std::vector<std::string>& names,
               std::set<int32_t>* rows) {
  for (const std::string& name : names) {
    // A button given without names leaves one empty value.
    if (name.empty()) continue;
    int32_t row = 0;
    while (row < presenter.list().count() && presenter.rows()[row].substr(0, presenter.rows()[row].find('\t')) != name)
      ++row;
    if (row == presenter.list().count()) {
      reportError(name + " is not in the list");
      session.exitStatus = kExitUsage;
      return false;
    }
    rows->insert(row);
  }
  return true;
}

template <typename Presenter>
void runList(CliSession& session, const std::vector<Button<Presenter>>& buttons, bool (Presenter::*perform)(),
             const CLI::App& command, const ListArguments& args) {
  GroupwareSettings settings;
  if (!openGroupware(session, &settings)) return;
  Mail& mail = session.mail();
  Presenter presenter(session.host(), mail, settings);
  applyLockPolicy(presenter, args);
  if (!presenter.open()) {
    session.exitStatus = kExitNothing;
    return;
  }
  // Every name is checked before any button acts, so a typing error changes nothing.
  std::vector<std::pair<size_t, std::set<int32_t>>> presses;
  for (const CLI::Option* given : command.parse_order()) {
    for (size_t b = 0; b < buttons.size(); ++b) {
      if (given != args.options[b]) continue;
      bool seen = false;
      for (const auto& press : presses) seen = seen || press.first == b;
      if (seen) continue;
      std::set<int32_t> rows;
      if (!rowsNamed(session, presenter, *args.files[b], &rows)) return;
      presses.emplace_back(b, rows);
    }
  }
  for (const auto& [button, rows] : presses) {
    for (int32_t row = 0; row < presenter.list().count(); ++row) presenter.select(row, rows.count(row) > 0);
    (presenter.*buttons[button].press)();
  }
  if (args.go) {
    // Whatever failed (a copy, a lock, the mail) fails the run, once the rest is done.
    if (!(presenter.*perform)() || presenter.failures() > 0) session.exitStatus = kExitNothing;
    std::cerr << presenter.report();
  }
  for (const std::string& row : presenter.rows()) std::cout << row << '\n';
}

template <typename Presenter>
std::shared_ptr<ListArguments> installList(CLI::App& command, CliSession& session,
                                           const std::vector<Button<Presenter>>& buttons, bool (Presenter::*perform)(),
                                           const char* goHelp) {
  auto args = std::make_shared<ListArguments>();
  for (const Button<Presenter>& button : buttons) {
    args->files.push_back(std::make_unique<std::vector<std::string>>());
    CLI::Option* option = command.add_option(button.option, *args->files.back(), button.help);
    option->expected(0, CLI::detail::expected_max_vector_size)->type_name("[FILE...]");
    args->options.push_back(option);
  }
  command.add_flag("--go", args->go, goHelp);
  command.callback([&session, &command, buttons, perform, args] { runList(session, buttons, perform, command, *args); });
  return args;
}

void listLocks(CliSession& session, bool json) {
  GroupwareSettings settings;
  if (!openGroupware(session, &settings)) return;
  GwRoots roots;
  if (!groupwareRoots(session.host(), settings, &roots)) {
    session.exitStatus = kExitNothing;
    return;
  }
  GWgetList list;
  fillGetList(list, roots, settings.filters.str());
  JsonDocument document = JsonDocument::array();
  bool any = false;
  bool damaged = false;
  for (int32_t i = 0; i < list.count(); ++i) {
    if (list[i]->locked == 0) continue;
    std::string user;
    std::string err;
    // A damaged record is named and left as it is; its file is still listed.
    if (readLockFile(list[i]->path.str(), &user, &err) == LockRecord::Damaged) {
      reportError(err);
      damaged = true;
    }
    std::string name = listedName(roots.server, list[i]->path.str());
    if (json)
      document.push_back({{"file", name}, {"holder", user}});
    else
      std::cout << name << '\t' << user << '\n';
    any = true;
  }
  if (json) printJson(document);
  if (damaged)
    session.exitStatus = kExitUsage;
  else if (!any)
    session.exitStatus = kExitNothing;
}

}  // namespace

void installGroupwareCommands(CLI::App& command, CliSession& session) {
  command.require_subcommand(1);
  static const std::vector<Button<GwSendPresenter>> sendButtons = {
      {"--clear", &GwSendPresenter::clear, "\"Clear\": no request (a CONFLICT only when no file is named)"},
      {"--update", &GwSendPresenter::update, "\"Update\": send keeping the lock (named files: clear instead)"},
      {"--send", &GwSendPresenter::sendAndUnlock, "\"Send && unlock\": send and release the lock"},
  };
  static const std::vector<Button<GwGetPresenter>> getButtons = {
      {"--advised", &GwGetPresenter::asAdvised, "\"As advised\": request what the advice says"},
      {"--clear", &GwGetPresenter::clear, "\"Clear\": no request"},
      {"--refresh", &GwGetPresenter::refresh, "\"Refresh\": copy without the lock (named files: clear instead)"},
      {"--get", &GwGetPresenter::getAndLock, "\"Get && lock\": copy and take the lock (not on locked files)"},
  };
  installList(*command.add_subcommand("send", "List the files being edited against the server; NAME, SERVER AGE, REQUEST"),
              session, sendButtons, &GwSendPresenter::send, "\"SEND !\": copy the requested files to the server");
  CLI::App* get = command.add_subcommand("get", "List the server's files; NAME, LOCKED, SERVER AGE, ADVICE, REQUEST");
  auto getArgs = installList(*get, session, getButtons, &GwGetPresenter::get,
                             "\"GET !\": copy the requested files from the server");
  get->add_flag("--steal", getArgs->steal,
                "Take over a lock that someone else took after the list was made (refused otherwise)");
  CLI::App* locks = command.add_subcommand("locks", "List the locked server files with the user who took each lock");
  auto json = std::make_shared<bool>(false);
  addJsonFlag(*locks, *json);
  locks->callback([&session, json] { listLocks(session, *json); });
}
