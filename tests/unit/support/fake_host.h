// A Host that records what the features ask of it, with a project and editors the test sets up.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "foundation/alert.h"
#include "project/host.h"

// Options kept in memory, as the IDE keeps them in the project.
class MemoryOptionStore : public ProjectOptionStore {
 public:
  bool get(const std::string& name, std::string* bytes) override {
    auto found = values.find(name);
    if (found == values.end()) return false;
    *bytes = found->second;
    return true;
  }
  bool set(const std::string& name, const std::string& bytes) override {
    values[name] = bytes;
    order.push_back(name);
    return true;
  }
  std::map<std::string, std::string> values;
  std::vector<std::string> order;  // every set, in call order
};

class FakeHost : public Host {
 public:
  struct Message {
    std::string group;
    MessageHandle parent;
    std::string text;
    std::string file;
    int32_t line;
    uint16_t column;
    int32_t kind;
  };
  struct Beep {
    unsigned frequencyHz;
    unsigned durationMs;
  };
  struct Progress {
    uint64_t done;
    uint64_t total;
    std::string item;
  };

  void showStatus(const std::string& text) override { statusTexts.push_back(text); }
  void beep(unsigned frequencyHz, unsigned durationMs) override { beeps.push_back({frequencyHz, durationMs}); }
  void setBusy(bool busy) override { busyChanges.push_back(busy); }
  void showProgress(uint64_t done, uint64_t total, const std::string& item) override {
    progress.push_back({done, total, item});
  }
  void endProgress() override { progressEnds++; }
  MessageHandle addMessage(const MessageGroup& group, MessageHandle parent, const std::string& text) override {
    messages.push_back({group.name, parent, text, "", 0, 0, 0});
    return static_cast<MessageHandle>(messages.size());
  }
  MessageHandle addLocatedMessage(const MessageGroup& group, MessageHandle parent, const std::string& text,
                                  const std::string& file, int32_t line, uint16_t column, int32_t kind) override {
    messages.push_back({group.name, parent, text, file, line, column, kind});
    return static_cast<MessageHandle>(messages.size());
  }
  std::string mainWindowTitle() override { return title; }
  bool editorText(const std::string& file, std::string* text) override {
    auto found = editors.find(file);
    if (found == editors.end()) return false;
    *text = found->second;
    return true;
  }
  void goToLine(const std::string& file, int32_t line) override { wentTo.emplace_back(file, line); }
  std::string projectFile() override { return projectPath; }
  const ProjectNode* projectRoot() override { return projectPath.empty() ? nullptr : &root; }
  ProjectOptionStore* projectOptions() override { return projectPath.empty() ? nullptr : &options; }
  const ProjectNode* addProjectNode(const ProjectNode& parent, const std::string& name,
                                    const std::string& type) override {
    if (type == refusedNodeType) return nullptr;
    ProjectNode* holder = nodeAt(root, &parent);
    if (!holder) return nullptr;
    holder->nodes.push_back(ProjectNode{name, type, "", "", "", {}});
    return &holder->nodes.back();
  }
  int runTool(const std::string& tool, const std::string& file) override {
    toolRuns.emplace_back(tool, file);
    return toolResult;
  }
  MailResult sendMail(const MailMessage& message, std::string* err) override {
    mails.push_back(message);
    if (mailResult != MailResult::Sent && err) *err = "mail refused by the fake";
    return mailResult;
  }

  // What the test sets up.
  std::string title = "Borland C++ - demo";
  std::map<std::string, std::string> editors;
  std::string projectPath;  // empty: no project open
  ProjectNode root;
  MemoryOptionStore options;
  std::string refusedNodeType = "-";  // the project refuses nodes of this type
  int toolResult = 0;
  MailResult mailResult = MailResult::Sent;

  // What the features did.
  std::vector<std::string> statusTexts;
  std::vector<Beep> beeps;
  std::vector<bool> busyChanges;
  std::vector<Progress> progress;
  int progressEnds = 0;
  std::vector<Message> messages;
  std::vector<std::pair<std::string, int32_t>> wentTo;
  std::vector<std::pair<std::string, std::string>> toolRuns;
  std::vector<MailMessage> mails;

 private:
  static ProjectNode* nodeAt(ProjectNode& node, const ProjectNode* wanted) {
    if (&node == wanted) return &node;
    for (ProjectNode& child : node.nodes)
      if (ProjectNode* found = nodeAt(child, wanted)) return found;
    return nullptr;
  }
};

// Records every box and answers with a chosen answer, for the lifetime of the object.
class RecordingAlerts : public AlertHandler {
 public:
  struct Box {
    std::string text;
    std::string caption;
    unsigned style;
  };
  RecordingAlerts() : previous_(setAlertHandler(this)) {}
  ~RecordingAlerts() override { setAlertHandler(previous_); }
  RecordingAlerts(const RecordingAlerts&) = delete;
  RecordingAlerts& operator=(const RecordingAlerts&) = delete;

  int show(const std::string& text, const std::string& caption, unsigned style) override {
    boxes.push_back({text, caption, style});
    return answer;
  }

  std::vector<Box> boxes;
  int answer = kAnswerOk;

 private:
  AlertHandler* previous_;
};
