// The Host of the command-line host: standard streams and the project file.
#pragma once

#include <memory>
#include <set>
#include <string>
#include <vector>

#include "cli/progress_bar.h"
#include "foundation/alert.h"
#include "project/host.h"

class KpjProject;

class CliHost : public Host, public AlertHandler {
 public:
  void setProject(KpjProject* project) { project_ = project; }

  // --yes and --no: how questions are answered without asking.
  bool answerYes = false;
  bool answerNo = false;

  void showStatus(const std::string& text) override;
  void beep(unsigned frequencyHz, unsigned durationMs) override;
  void setBusy(bool busy) override;
  // A bar on a terminal, nothing when standard error is piped.
  void showProgress(uint64_t done, uint64_t total, const std::string& item) override;
  void endProgress() override;
  MessageHandle addMessage(const MessageGroup& group, MessageHandle parent, const std::string& text) override;
  MessageHandle addLocatedMessage(const MessageGroup& group, MessageHandle parent, const std::string& text,
                                  const std::string& file, int32_t line, uint16_t column, int32_t kind) override;
  std::string mainWindowTitle() override;
  bool editorText(const std::string& file, std::string* text) override;
  void goToLine(const std::string& file, int32_t line) override;
  std::string projectFile() override;
  const ProjectNode* projectRoot() override;
  ProjectOptionStore* projectOptions() override;
  const ProjectNode* addProjectNode(const ProjectNode& parent, const std::string& name,
                                    const std::string& type) override;
  int runTool(const std::string& tool, const std::string& file) override;
  MailResult sendMail(const MailMessage& message, std::string* err) override;

  // When standard output and standard error are one terminal, a status line
  // that repeats a result would show it twice. From holdStatus to
  // releaseStatus, status lines wait; then those equal to one of results are
  // dropped and the others printed. Elsewhere status lines go out at once.
  void holdStatus();
  void releaseStatus(const std::vector<std::string>& results);

  // While a sink is set, located message lines go to it instead of standard
  // output and the other message lines (headers) are dropped: --json prints
  // the lines as one document at the end.
  struct LocatedLine {
    std::string file;
    int32_t line;
    std::string text;
  };
  void collectLocatedMessages(std::vector<LocatedLine>* sink) { located_ = sink; }

  // Boxes print "CAPTION: TEXT" on standard error (on a terminal shared with
  // standard output, not when a message line already said TEXT); a question is asked on a
  // terminal and otherwise answered by --yes/--no (No when neither was given).
  int show(const std::string& text, const std::string& caption, unsigned style) override;

 private:
  KpjProject* project_ = nullptr;
  bool holding_ = false;
  std::vector<std::string> held_;
  std::set<std::string> messages_;  // texts of the message lines, on a shared terminal
  MessageHandle lastMessage_ = 0;
  std::vector<LocatedLine>* located_ = nullptr;
  std::unique_ptr<ProgressBar> progress_;
  // Whether standard error is a terminal, asked once: a long job reports progress thousands of times.
  int progressTerminal_ = -1;
};
