// The Host of the features on the IDE's services.
#include "ide/ide_host_win32.h"

#include <windows.h>

#include <map>
#include <vector>

#include "delivery/mapi_win32.h"
#include "ide/addon_slots_win32.h"
#include "ide/ide_services_win32.h"
#include "win32/status_progress_win32.h"

namespace {

// The project's named options through the options service.
class IdeProjectOptionStore : public ProjectOptionStore {
 public:
  bool get(const std::string& name, std::string* bytes) override {
    IIdeNodeOptions* options = service();
    IdeText ideName(name);
    if (!options || !ideName) return false;
    unsigned long size = 0;
    options->GetProjectOption(ideName.get(), nullptr, &size);
    std::vector<char> buffer(size);
    if (!options->GetProjectOption(ideName.get(), buffer.data(), &size) || size > buffer.size()) return false;
    bytes->assign(buffer.data(), size);
    return true;
  }
  bool set(const std::string& name, const std::string& bytes) override {
    IIdeNodeOptions* options = service();
    IdeText ideName(name);
    return options && ideName && options->SetProjectOption(ideName.get(), bytes.data(), bytes.size());
  }

 private:
  static IIdeNodeOptions* service() { return addon().options ? addon().options->get() : nullptr; }
};

class IdeHost : public Host {
 public:
  void showStatus(const std::string& text) override { showStatusText(text.c_str()); }
  void beep(unsigned frequencyHz, unsigned durationMs) override { Beep(frequencyHz, durationMs); }
  void setBusy(bool busy) override { SetCursor(LoadCursorA(nullptr, busy ? IDC_WAIT : IDC_ARROW)); }
  void showProgress(uint64_t done, uint64_t total, const std::string& item) override {
    drawStatusProgress(done, total, item);
  }
  void endProgress() override { endStatusProgress(); }

  MessageHandle addMessage(const MessageGroup& group, MessageHandle parent, const std::string& text) override {
    return add(group, parent, text, nullptr, 0, 0, 0);
  }
  MessageHandle addLocatedMessage(const MessageGroup& group, MessageHandle parent, const std::string& text,
                                  const std::string& file, int32_t line, uint16_t column, int32_t kind) override {
    return add(group, parent, text, &file, line, column, kind);
  }

  std::string mainWindowTitle() override {
    char title[256] = {};
    if (HWND frame = FindWindowA("CPPFRAME", nullptr)) GetWindowTextA(frame, title, sizeof title);
    return title;
  }

  bool editorText(const std::string& file, std::string* text) override {
    // Read through the view alone: reading must not change the current buffer.
    IIdeEditor* editor = addon().editor ? addon().editor->get() : nullptr;
    IdeText name(file);
    if (!editor || !name) return false;
    const IdeHandle view = editor->FindView(name.get());
    return view && takeIdeText(editor->ReadBuffer(view), text);
  }
  void goToLine(const std::string& file, int32_t line) override { ::goToLine(file, line); }

  std::string projectFile() override {
    IdeRef<IIdeProject> project(getService<IIdeProject>(ide_iid::kProject));
    std::string file;
    if (project) takeIdeText(project->ProjectFile(), &file);
    return file;
  }
  const ProjectNode* projectRoot() override {
    IdeRef<IIdeProject> project(getService<IIdeProject>(ide_iid::kProject));
    const IdeHandle top = project ? project->TopNode() : 0;
    if (!top) return nullptr;
    root_ = ProjectNode();
    readNode(project.get(), top, &root_);
    handles_.clear();
    noteHandles(project.get(), top, root_);
    return &root_;
  }
  ProjectOptionStore* projectOptions() override { return projectFile().empty() ? nullptr : &options_; }

  const ProjectNode* addProjectNode(const ProjectNode& parent, const std::string& name,
                                    const std::string& type) override {
    IdeRef<IIdeProject> project(getService<IIdeProject>(ide_iid::kProject));
    auto found = handles_.find(&parent);
    IdeText ideName(name);
    IdeText ideType(type);
    if (!project || found == handles_.end() || !ideName || !ideType) return nullptr;
    const IdeHandle added = project->AddNode(found->second, ideName.get(), type.empty() ? nullptr : ideType.get());
    // The tree is read again so that it shows the IDE's own view of the new node.
    if (!added || !projectRoot()) return nullptr;
    for (const auto& [node, handle] : handles_)
      if (handle == added) return node;
    return nullptr;
  }

  bool removeProjectNode(const ProjectNode& node) {
    IdeRef<IIdeProject> project(getService<IIdeProject>(ide_iid::kProject));
    auto found = handles_.find(&node);
    return project && found != handles_.end() && project->RemoveNode(found->second);
  }

  int runTool(const std::string& tool, const std::string& file) override {
    IdeRef<IIdeTools> tools(getService<IIdeTools>(ide_iid::kTools));
    IdeText name(tool);
    IdeText path(file);
    if (!tools || !name || !path) return -1;
    const IdeHandle found = tools->FindTool(name.get());
    return found ? static_cast<int>(tools->RunTool(found, path.get())) : -1;
  }

  // The active window (a dialog when one sends) parents any dialog of the mail system.
  MailResult sendMail(const MailMessage& message, std::string* err) override {
    return sendMapiMail(GetActiveWindow(), message, err);
  }

 private:
  static MessageHandle add(const MessageGroup& group, MessageHandle parent, const std::string& text,
                           const std::string* file, int32_t line, uint16_t column, int32_t kind) {
    IdeRef<IIdeMessageWindow> messages(getService<IIdeMessageWindow>(ide_iid::kMessageWindow));
    IdeText name(group.name);
    IdeText menuText(group.menuText);
    IdeText ideText(text);
    IdeText ideFile(file ? *file : std::string());
    if (!messages || !name || !menuText || !ideText || !ideFile) return 0;
    return static_cast<MessageHandle>(messages->AddMessage(name.get(), menuText.get(), static_cast<IdeHandle>(parent),
                                                           ideText.get(), file ? ideFile.get() : nullptr, line,
                                                           column, kind));
  }

  static void readNode(IIdeProject* project, IdeHandle handle, ProjectNode* node) {
    takeIdeText(project->NodeName(handle), &node->name);
    takeIdeText(project->NodeType(handle), &node->type);
    takeIdeText(project->NodeDescription(handle), &node->description);
    String value;
    if (getNodeOption(handle, static_cast<long>(NodeOptionKind::IncludePath), &value)) node->includePath = value.str();
    if (getNodeOption(handle, static_cast<long>(NodeOptionKind::SourcePath), &value)) node->sourcePath = value.str();
    for (IdeHandle child = project->FirstChild(handle); child; child = project->NextSibling(child)) {
      node->nodes.emplace_back();
      readNode(project, child, &node->nodes.back());
    }
  }

  // Once the tree is complete, its nodes no longer move: the handle of each.
  void noteHandles(IIdeProject* project, IdeHandle handle, const ProjectNode& node) {
    handles_[&node] = handle;
    size_t i = 0;
    for (IdeHandle child = project->FirstChild(handle); child && i < node.nodes.size();
         child = project->NextSibling(child))
      noteHandles(project, child, node.nodes[i++]);
  }

  ProjectNode root_;
  std::map<const ProjectNode*, IdeHandle> handles_;
  IdeProjectOptionStore options_;
};

}  // namespace

namespace {

IdeHost& theIdeHost() {
  static IdeHost host;
  return host;
}

}  // namespace

Host& ideHost() { return theIdeHost(); }

bool removeIdeProjectNode(const ProjectNode& node) { return theIdeHost().removeProjectNode(node); }
