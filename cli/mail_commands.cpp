// kesto mail recipients ... and kesto mail send: the project's recipients,
// edited through the mail options page's presenter, and a mail by hand.
#include <iostream>
#include <iterator>
#include <memory>

#include "cli/cli_session.h"
#include "cli/command_table.h"
#include "cli/integer_options.h"
#include "cli/file_arguments.h"
#include "delivery/mail_page.h"
#include "project/project_files.h"

namespace {

struct MailArguments {
  std::string recipient;
  int32_t row = -1;
  std::string subject;
  std::string include;
};

// Opens the page on the project's recipients, runs edit, accepts and saves the project.
template <typename Edit>
void editRecipients(CliSession& session, Edit edit) {
  if (!session.requireProject(ProjectUse::Update)) return;
  MailPagePresenter page(session.mail());
  page.show(true);
  if (!edit(page)) return;
  page.accept();
  std::string err;
  if (!session.saveProject(&err)) {
    reportError("cannot save the recipients: " + err);
    session.exitStatus = kExitNothing;
  }
}

bool selectRecipient(CliSession& session, MailPagePresenter& page, int32_t row) {
  int32_t count = static_cast<int32_t>(page.rows.size());
  if (row >= 0 && row < count) {
    page.selectRow(row);
    return true;
  }
  reportError("recipient " + std::to_string(row) + " does not exist: there are " + std::to_string(count) +
              ", counted from 0");
  session.exitStatus = kExitUsage;
  return false;
}

void listRecipients(CliSession& session) {
  if (!session.requireProject()) return;
  const Mail& mail = session.mail();
  for (const std::string& recipient : mail.recipientTexts()) std::cout << recipient << '\n';
  if (mail.recipients.count() == 0) session.exitStatus = kExitNothing;
}

void send(CliSession& session, const MailArguments& args) {
  if (!session.requireProject()) return;
  if (!args.include.empty() && !readableFileArgument(session, args.include)) return;
  std::string body(std::istreambuf_iterator<char>(std::cin), {});
  // The mail consumes the file it includes, which is right for the project's
  // own notes only: any other file is the user's, so its lines go in the body.
  const bool notes = absolutePath(args.include) == notificationFilePath(session.project()->path());
  const std::string note = notes ? body : buildMailNote(body, args.include);
  if (!session.mail().send(session.host(), args.subject, note, notes ? args.include : std::string())) {
    reportError("the mail was not sent");
    session.exitStatus = kExitNothing;
  }
}

}  // namespace

void installMailCommands(CLI::App& command, CliSession& session) {
  auto args = std::make_shared<MailArguments>();
  command.require_subcommand(1);

  CLI::App* recipients = command.add_subcommand("recipients", "List the project's recipients, one per line, or change them");
  recipients->callback([recipients, &session] {
    if (recipients->get_subcommands().empty()) listRecipients(session);
  });
  recipients->add_subcommand("list", "List the recipients, one per line")->callback([&session] { listRecipients(session); });

  CLI::App* add = recipients->add_subcommand("add", "Add a recipient (a name or an address), at the end or after ROW");
  add->add_option("recipient", args->recipient, "Name or address (299 characters kept)")->required();
  addIntegerOption(*add, "--after", args->row, "Row to insert after, from 0", 0);
  add->callback([&session, args] {
    if (args->recipient.find_first_not_of(" \t") == std::string::npos) {
      reportError("a recipient needs an address: name@host or Name <name@host>");
      session.exitStatus = kExitUsage;
      return;
    }
    editRecipients(session, [&session, args](MailPagePresenter& page) {
      int32_t after = args->row >= 0 ? args->row : static_cast<int32_t>(page.rows.size()) - 1;
      if (after >= 0 && !selectRecipient(session, page, after)) return false;
      page.createEntry();
      page.changeEditText(args->recipient);
      return true;
    });
  });

  CLI::App* remove = recipients->add_subcommand("remove", "Remove the recipient of ROW");
  addIntegerOption(*remove, "row", args->row, "Row, from 0", 0)->required();
  remove->callback([&session, args] {
    editRecipients(session, [&session, args](MailPagePresenter& page) {
      if (!selectRecipient(session, page, args->row)) return false;
      page.deleteEntry();
      return true;
    });
  });

  CLI::App* sendCommand = command.add_subcommand("send", "Mail standard input to the project's recipients");
  sendCommand->add_option("subject", args->subject, "Subject")->required();
  sendCommand->add_option("--include", args->include,
                          "A text file whose lines follow the body; the project's own notes file "
                          "(NAME.kpj.tsk.txt) is deleted once the mail is sent, any other is kept");
  sendCommand->callback([&session, args] { send(session, *args); });
}
