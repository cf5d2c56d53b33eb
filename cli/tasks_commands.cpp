// kesto tasks ... and kesto flash: the project's task list, driven through the
// same presenter as the task list dialog.
#include <cstdio>
#include <iostream>
#include <map>
#include <memory>
#include <optional>

#include "cli/cli_session.h"
#include "cli/command_table.h"
#include "cli/integer_options.h"
#include "cli/json_output.h"
#include "delivery/mail.h"
#include "foundation/text_encoding.h"
#include "tasks/date_entry.h"
#include "tasks/flash.h"
#include "project/project_files.h"
#include "tasks/task_list_presenter.h"
#include "tasks/task_order.h"

namespace {

const std::map<std::string, int32_t> kStateNames = {{"to-do", kToDo}, {"coded", kCoded}, {"tested", kTested},
                                                    {"ended", kEnded}};
const std::map<std::string, int32_t> kSortNames = {
    {"state", kByState}, {"start", kByStartDate}, {"end", kByEndDate}, {"priority", kByPriority}, {"type", kByType}};

const CLI::IsMember kStateChoices({"to-do", "coded", "tested", "ended"});

struct TaskArguments {
  int32_t row = 0;
  std::string name, type, state, start, end, text;
  int32_t priority = 0;
  std::optional<SystemTime> startDate, endDate;  // --start and --end once read
  // The field options, to tell which were given.
  CLI::Option *nameOption = nullptr, *typeOption = nullptr, *stateOption = nullptr, *priorityOption = nullptr,
              *startOption = nullptr, *endOption = nullptr, *textOption = nullptr;
  bool makePublic = false;
  bool makePrivate = false;
  std::string sortName;
  bool reverse = false;
  std::string flagState;
  bool automatic = false;
  bool json = false;
};

// The project's tasks as the dialog sees them, saved afterwards when changed.
class TaskSession {
 public:
  explicit TaskSession(CliSession& session) : session_(session) {}

  bool open() {
    if (!session_.requireProject(ProjectUse::Read, ProjectTasks::Loaded)) return false;
    session_.tasks().rebuildView();
    presenter_ = std::make_unique<TaskListPresenter>(session_.tasks(), session_.mail(), session_.host());
    presenter_->open();
    return true;
  }

  // Saves the task file when the presenter changed something.
  void close() {
    std::string err;
    if (presenter_ && presenter_->modified() && !session_.tasks().save(&err)) {
      reportError(err);
      session_.exitStatus = kExitNothing;
    }
  }

  // Selects a row of the view; a row past the end is a usage error.
  bool select(int32_t row) {
    int32_t count = static_cast<int32_t>(presenter_->rows().size());
    if (row < 0 || row >= count) {
      reportError("row " + std::to_string(row) + " is not in the list: it has " + std::to_string(count) +
                  " row" + (count == 1 ? "" : "s") + (count ? ", counted from 0" : ""));
      session_.exitStatus = kExitUsage;
      return false;
    }
    presenter_->selectRow(row);
    return true;
  }

  TaskList& tasks() { return session_.tasks(); }
  TaskListPresenter& presenter() { return *presenter_; }
  CliSession& cli() { return session_; }

 private:
  CliSession& session_;
  std::unique_ptr<TaskListPresenter> presenter_;
};

// The report's CR LF lines printed as the terminal's lines.
void printReport(const std::string& report) {
  std::string out;
  for (size_t i = 0; i < report.size(); ++i)
    if (!(report[i] == '\r' && i + 1 < report.size() && report[i + 1] == '\n')) out += report[i];
  std::cout << out << '\n';
}

bool given(const CLI::Option* option) { return option->count() > 0; }

bool anyFieldGiven(const TaskArguments& args) {
  for (const CLI::Option* option : {args.nameOption, args.typeOption, args.stateOption, args.priorityOption,
                                    args.startOption, args.endOption, args.textOption})
    if (given(option)) return true;
  return args.makePublic || args.makePrivate;
}

// Puts the given options into the edit area, then applies it like "Ok".
void applyFields(TaskSession& session, const TaskArguments& args) {
  TaskEditArea& edit = session.presenter().edit;
  if (given(args.nameOption)) edit.name = args.name;
  if (given(args.typeOption)) edit.type = args.type;
  if (given(args.stateOption)) edit.state = kStateNames.at(args.state);
  if (given(args.priorityOption)) edit.priority = std::to_string(args.priority);
  // A shown date is never read back: its text holds no century.
  edit.readStart = false;
  edit.readEnd = false;
  edit.startDate = args.startDate;
  edit.endDate = args.endDate;
  // Line feeds typed on a command line become the CR LF of the dialog's edit control.
  if (given(args.textOption)) edit.text = withCrLfLines(args.text);
  if (args.makePublic) edit.isPublic = true;
  if (args.makePrivate) edit.isPublic = false;
  if (!session.presenter().apply()) session.cli().exitStatus = kExitNothing;
}

void addFieldOptions(CLI::App* command, TaskArguments& args) {
  args.nameOption = command->add_option("--name", args.name, "Name (79 characters kept)");
  args.typeOption = command->add_option("--type", args.type, "Type (79 characters kept)");
  args.stateOption = command->add_option("--state", args.state, "State")->check(kStateChoices);
  args.priorityOption = addIntegerOption(*command, "--priority", args.priority, "Priority, an unsigned number", 0);
  args.startOption = command->add_option("--start", args.start, "Start date: YYYY-MM-DD, or in the order of your short dates");
  args.endOption = command->add_option("--end", args.end, "End date: YYYY-MM-DD, or in the order of your short dates");
  args.textOption = command->add_option("--text", args.text, "Description (1022 characters kept)");
  auto* makePublic = command->add_flag("--public", args.makePublic, "Make the task public");
  command->add_flag("--private", args.makePrivate, "Make the task private")->excludes(makePublic);
}

// Reads the date of option, when given, into *date. A date that is not one is
// a usage error; a short year is read as the task dialog reads it, and the
// user is told which year that is.
bool readDateOption(CliSession& session, const CLI::Option* option, const std::string& text,
                    std::optional<SystemTime>* date) {
  if (!given(option)) return true;
  const bool dayFirst = userDatesPutDayFirst();
  const std::string forms = std::string("YYYY-MM-DD or ") + (dayFirst ? "DD/MM/YYYY" : "MM/DD/YYYY");
  const std::string name = option->get_name();
  SystemTime read = os().localTime();
  switch (readCheckedDate(text, dayFirst, &read)) {
    case CheckedDate::Refused:
      reportError(name + " " + text + " is not a date: write " + forms);
      session.exitStatus = kExitUsage;
      return false;
    case CheckedDate::CenturyAdded:
      reportError(name + " " + text + " is stored with the year " + std::to_string(read.year) +
                  "; for another, write the year in full: " + forms);
      break;
    case CheckedDate::AsWritten:
      break;
  }
  *date = read;
  return true;
}

// The dates are read before the task file is opened, so that a refused one changes nothing.
bool readDateOptions(CliSession& session, TaskArguments& args) {
  return readDateOption(session, args.startOption, args.start, &args.startDate) &&
         readDateOption(session, args.endOption, args.end, &args.endDate);
}

template <typename Action>
std::function<void()> withTasks(CliSession& session, Action action) {
  return [&session, action] {
    TaskSession tasks(session);
    if (!tasks.open()) return;
    action(tasks);
    tasks.close();
  };
}

std::string isoDate(const SystemTime& date) {
  char text[24];
  std::snprintf(text, sizeof text, "%04u-%02u-%02u", date.year, date.month, date.day);
  return text;
}

// Dates in ISO form and the text's lines joined by LF: a script needs no locale
// to read them.
JsonDocument taskDocument(size_t row, const Task& task) {
  std::string text;
  for (char c : task.text.str())
    if (c != '\r') text += c;
  return {{"row", row},
          {"name", task.name.str()},
          {"type", task.type.str()},
          {"state", stateWord(task.state, false)},
          {"public", task.isPublic != 0},
          {"priority", task.priority},
          {"start", isoDate(task.start)},
          {"end", isoDate(task.end)},
          {"text", text}};
}

void listTasks(TaskSession& session, bool json) {
  const std::vector<std::string>& rows = session.presenter().rows();
  if (json) {
    JsonDocument document = JsonDocument::array();
    for (size_t row = 0; row < rows.size(); ++row) document.push_back(taskDocument(row, *session.tasks().view[row]));
    printJson(document);
  } else {
    // The row number first: the one that edit and remove take.
    for (size_t row = 0; row < rows.size(); ++row) std::cout << row << '\t' << rows[row] << '\n';
  }
  if (rows.empty()) session.cli().exitStatus = kExitNothing;
}

// Prints the new task's row when it is in the list.
void add(TaskSession& session, const TaskArguments& args) {
  session.presenter().create();
  const Task* created = session.tasks().view[session.presenter().selectedRow()];
  if (anyFieldGiven(args)) applyFields(session, args);
  int32_t row = session.tasks().viewIndexOf(created);
  if (row != BasicTableau::kNotFound) std::cout << row << '\n';
}

void edit(TaskSession& session, const TaskArguments& args) {
  if (session.select(args.row)) applyFields(session, args);
}

void remove(TaskSession& session, const TaskArguments& args) {
  if (!session.select(args.row)) return;
  if (!session.presenter().editingEnabled()) {
    reportError("row " + std::to_string(args.row) + " is an ended task and ended tasks are read-only (\"Tasks\"/\"EndedReadOnly\")");
    session.cli().exitStatus = kExitNothing;
    return;
  }
  if (!session.presenter().remove()) session.cli().exitStatus = kExitNothing;
}

void report(TaskSession& session) {
  String text;
  if (!session.tasks().todayReport(text)) session.cli().exitStatus = kExitNothing;
  printReport(text.str());
}

void flash(TaskSession& session, const TaskArguments& args) {
  std::string marker = flashMarkerPath(session.cli().project()->path());
  std::string text;
  if (args.automatic) {
    if (shouldFlashAtProjectOpen(session.tasks(), marker)) text = automaticFlashText(session.tasks());
    if (text.empty()) {
      session.cli().exitStatus = kExitNothing;
      return;
    }
  } else {
    text = flashOnDemandText(session.tasks());
  }
  FlashWindow window;
  window.show(marker, text);
  printReport(window.text());
}

}  // namespace

void installTasksCommands(CLI::App& command, CliSession& session) {
  auto args = std::make_shared<TaskArguments>();
  addJsonFlag(command, args->json);
  command.footer("Prints ROW<TAB>NAME<TAB>TYPE<TAB>STATE<TAB>PRIORITY<TAB>START<TAB>END per task.");
  command.callback([&command, &session, args] {
    if (command.get_subcommands().empty()) withTasks(session, [args](TaskSession& s) { listTasks(s, args->json); })();
  });

  CLI::App* addCommand = command.add_subcommand("add", "Create a task like \"Create\", then apply the options given; prints its row");
  auto addArgs = std::make_shared<TaskArguments>();
  addFieldOptions(addCommand, *addArgs);
  addCommand->callback([&session, addArgs] {
    if (readDateOptions(session, *addArgs)) withTasks(session, [addArgs](TaskSession& s) { add(s, *addArgs); })();
  });

  CLI::App* editCommand = command.add_subcommand("edit", "Change the task of ROW like \"Ok\" (an ended public task is notified)");
  addIntegerOption(*editCommand, "row", args->row, "Row in the list, from 0", 0)->required();
  addFieldOptions(editCommand, *args);  // the only field options on args
  editCommand->callback([&session, args] {
    if (readDateOptions(session, *args)) withTasks(session, [args](TaskSession& s) { edit(s, *args); })();
  });

  CLI::App* removeCommand = command.add_subcommand("remove", "Remove the task of ROW (asks; --yes answers)");
  addIntegerOption(*removeCommand, "row", args->row, "Row in the list, from 0", 0)->required();
  removeCommand->callback(withTasks(session, [args](TaskSession& s) { remove(s, *args); }));

  CLI::App* sortCommand = command.add_subcommand("sort", "Set the order of the list");
  sortCommand->add_option("key", args->sortName, "Sort key")->required()->check(
      CLI::IsMember({"state", "start", "end", "priority", "type"}));
  sortCommand->add_flag("--reverse", args->reverse, "Inverted order");
  sortCommand->callback(withTasks(session, [args](TaskSession& s) {
    s.presenter().setSortKey(kSortNames.at(args->sortName));
    s.presenter().setReverse(args->reverse);
  }));

  for (bool on : {true, false}) {
    CLI::App* flagCommand = command.add_subcommand(on ? "show" : "hide",
                                                   on ? "List the tasks of STATE" : "Leave the tasks of STATE out");
    flagCommand->add_option("state", args->flagState, "State")->required()->check(kStateChoices);
    flagCommand->callback(withTasks(session, [args, on](TaskSession& s) {
      s.presenter().setShowFlag(kStateNames.at(args->flagState), on);
    }));
  }

  command.add_subcommand("report", "Print today's report of the flash states (status 1 when no task is current)")
      ->callback(withTasks(session, report));
}

void installFlashCommands(CLI::App& command, CliSession& session) {
  auto args = std::make_shared<TaskArguments>();
  command.add_flag("--auto", args->automatic,
                   "Only once a day and only with a current task, as when the project opens (status 1 otherwise)");
  command.callback(withTasks(session, [args](TaskSession& s) { flash(s, *args); }));
}
