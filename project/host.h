// What the features ask of their host: the IDE inside the add-on, a terminal and a
// project file in the command-line host, a recorder in the tests.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "project/project_options.h"
#include "project/project_tree.h"

// A message group of the message window, created on first use and kept.
struct MessageGroup {
  std::string name;      // "Cross reference"
  std::string menuText;  // "&Cross reference"
};

// A plain-text mail to every recipient.
struct MailMessage {
  std::string subject;
  std::string note;
  std::vector<std::string> recipients;  // as typed: names or addresses
  bool showDialog = false;              // the user asked to see the mail before it goes
};

enum class MailResult {
  Sent,
  TransportMissing,      // the mail system cannot be loaded at all
  TransportUnavailable,  // it loaded but has no sending entry
  Failed,                // the sending itself failed
};

// Message boxes and questions go through alert() (foundation/alert.h), which
// every host routes to its own way of asking.
class Host {
 public:
  using MessageHandle = int32_t;  // 0 means none (a top-level parent)

  virtual ~Host() = default;

  // Status line and sounds.
  virtual void showStatus(const std::string& text) = 0;
  virtual void beep(unsigned frequencyHz, unsigned durationMs) = 0;
  // The wait cursor during long work.
  virtual void setBusy(bool busy) = 0;
  // Progress of a long action: bytes done of total, and the item being worked on.
  virtual void showProgress(uint64_t done, uint64_t total, const std::string& item) = 0;
  // The action ended: the host removes its progress display.
  virtual void endProgress() = 0;

  // Message window: a message under parent (0 for top level); returns its handle.
  virtual MessageHandle addMessage(const MessageGroup& group, MessageHandle parent, const std::string& text) = 0;
  virtual MessageHandle addLocatedMessage(const MessageGroup& group, MessageHandle parent, const std::string& text,
                                          const std::string& file, int32_t line, uint16_t column, int32_t kind) = 0;

  // The main window's title ("Borland C++ - demo" in the IDE).
  virtual std::string mainWindowTitle() = 0;

  // The current text of an open editor on file, unsaved changes included;
  // false when no editor has that file open.
  virtual bool editorText(const std::string& file, std::string* text) = 0;
  // Puts the editor of file on line (1-based); nothing when none is open.
  virtual void goToLine(const std::string& file, int32_t line) = 0;

  // The open project's file, full path; empty when no project is open.
  virtual std::string projectFile() = 0;
  // The project's top node; null when no project is open.
  virtual const ProjectNode* projectRoot() = 0;
  // The project's own option storage; null when no project is open.
  virtual ProjectOptionStore* projectOptions() = 0;
  // Adds a node named name under parent, a node of projectRoot()'s tree, with
  // the node type type ("" for the IDE's default). Returns the new node, or null
  // when the project refused it. Other nodes of the tree may move: only the
  // returned pointer is valid afterwards.
  virtual const ProjectNode* addProjectNode(const ProjectNode& parent, const std::string& name,
                                            const std::string& type) = 0;

  // Runs an IDE tool ("EditText", "Project", ...) on a file: -1 not handled,
  // 0 fine, 1 warnings, 2 errors, 3 fatal error.
  virtual int runTool(const std::string& tool, const std::string& file) = 0;

  // Hands a mail to the transport. err gets the transport's own words on failure.
  virtual MailResult sendMail(const MailMessage& message, std::string* err) = 0;
};
