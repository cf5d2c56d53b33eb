// Host services on a terminal: status texts on standard error, messages on standard output.
#include "cli/cli_host.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <iostream>

#include "cli/kpj_project.h"
#include "cli/sendmail_transport.h"
#include "foundation/os.h"

namespace {

// Both streams on the same terminal: what goes to one shows beside the other.
bool oneTerminal() {
  struct stat out;
  struct stat err;
  return isatty(STDOUT_FILENO) && isatty(STDERR_FILENO) && fstat(STDOUT_FILENO, &out) == 0 &&
         fstat(STDERR_FILENO, &err) == 0 && out.st_rdev == err.st_rdev;
}

// The add-on's mail goes through MAPI; kesto's through the mail program.
std::string inTermsOfTheMailProgram(const std::string& text) {
  static const std::pair<const char*, const char*> kTexts[] = {
      {"MAPI not present !", "Mail program not found !"},
      {"MAPI not available !", "Mail program not available !"},
      {"MAPI SendMail missed !", "The mail program did not send the mail !"},
  };
  for (const auto& [mapi, program] : kTexts)
    if (text == mapi) return program;
  return text;
}

}  // namespace

void CliHost::showStatus(const std::string& text) {
  if (holding_) {
    held_.push_back(text);
    return;
  }
  if (progress_) progress_->interrupt();
  std::cerr << text << '\n';
}

void CliHost::holdStatus() { holding_ = oneTerminal(); }

void CliHost::releaseStatus(const std::vector<std::string>& results) {
  holding_ = false;
  std::vector<std::string> held;
  held.swap(held_);
  for (const std::string& text : held)
    if (std::find(results.begin(), results.end(), text) == results.end()) showStatus(text);
}

// A terminal has no use for the IDE's beeps: the status text says it all.
void CliHost::beep(unsigned, unsigned) {}

void CliHost::setBusy(bool) {}

void CliHost::showProgress(uint64_t done, uint64_t total, const std::string& item) {
  if (progressTerminal_ < 0) progressTerminal_ = isatty(STDERR_FILENO) ? 1 : 0;
  if (!progress_ && progressTerminal_ == 1) progress_ = std::make_unique<ProgressBar>();
  if (progress_) progress_->show(item, done, total);
}

void CliHost::endProgress() { progress_.reset(); }

Host::MessageHandle CliHost::addMessage(const MessageGroup&, MessageHandle, const std::string& text) {
  if (located_) return ++lastMessage_;
  if (progress_) progress_->interrupt();
  std::cout << text << '\n';
  if (oneTerminal()) messages_.insert(text);
  return ++lastMessage_;
}

Host::MessageHandle CliHost::addLocatedMessage(const MessageGroup&, MessageHandle, const std::string& text,
                                               const std::string& file, int32_t line, uint16_t column, int32_t) {
  if (located_) {
    located_->push_back({file, line, text});
    return ++lastMessage_;
  }
  std::cout << file << ':' << line << ':' << column << ": " << text << '\n';
  return ++lastMessage_;
}

std::string CliHost::mainWindowTitle() {
  if (!project_) return "Kesto";
  std::string name = fileNameOf(project_->path());
  size_t dot = name.rfind('.');
  return "Kesto - " + (dot == std::string::npos ? name : name.substr(0, dot));
}

// There are no editors: the features read the files themselves.
bool CliHost::editorText(const std::string&, std::string*) { return false; }

void CliHost::goToLine(const std::string&, int32_t) {}

std::string CliHost::projectFile() { return project_ ? project_->path() : std::string(); }

const ProjectNode* CliHost::projectRoot() { return project_ ? &project_->root() : nullptr; }

ProjectOptionStore* CliHost::projectOptions() { return project_; }

// The node goes into the project in memory; the command that added it saves the file.
const ProjectNode* CliHost::addProjectNode(const ProjectNode& parent, const std::string& name,
                                           const std::string& type) {
  return project_ ? project_->addNodeUnder(parent, name, type) : nullptr;
}

int CliHost::runTool(const std::string&, const std::string&) { return -1; }

MailResult CliHost::sendMail(const MailMessage& message, std::string* err) {
  // Checked before anything goes: the mail program would send to nobody, or
  // take a name for a local mailbox.
  if (message.recipients.empty()) {
    if (err) *err = "no recipient: the mail is not sent (kesto mail recipients add ADDRESS)";
    return MailResult::Failed;
  }
  for (const std::string& recipient : message.recipients) {
    if (!isMailAddress(recipient)) {
      if (err)
        *err = "recipient \"" + recipient + "\" is no mail address (write name@host or Name <name@host>): the mail is not sent";
      return MailResult::Failed;
    }
  }
  std::string text = composeInternetMessage(message, os().userName(), std::time(nullptr));
  // The mail dialog of a terminal: the message itself, and a question.
  if (message.showDialog && show(text + "\nSend this mail ?", "Mail", kAlertYesNo | kAlertIconQuestion) != kAnswerYes) {
    if (err) *err = "mail not sent";
    return MailResult::Failed;
  }
  return runSendmail(sendmailCommand(), text, err);
}

int CliHost::show(const std::string& shownText, const std::string& caption, unsigned style) {
  const std::string text = inTermsOfTheMailProgram(shownText);
  bool question = (style & 0xF) == kAlertYesNo || (style & 0xF) == kAlertOkCancel;
  if (!question) {
    if (messages_.count(text) == 0) std::cerr << caption << ": " << text << '\n';
    return kAnswerOk;
  }
  int yes = (style & 0xF) == kAlertYesNo ? kAnswerYes : kAnswerOk;
  int no = (style & 0xF) == kAlertYesNo ? kAnswerNo : kAnswerCancel;
  if (answerYes) return yes;
  if (answerNo || !isatty(STDIN_FILENO) || !isatty(STDERR_FILENO)) {
    std::cerr << caption << ": " << text << '\n';
    return no;
  }
  std::cerr << caption << ": " << text << " [y/N] " << std::flush;
  std::string reply;
  std::getline(std::cin, reply);
  return !reply.empty() && (reply[0] == 'y' || reply[0] == 'Y') ? yes : no;
}
