// The test IDE's interfaces.
#include "test_ide.h"

#include <cstdio>
#include <cstring>

#include "options_dialog.h"

long TestIde::liveStrings = 0;

namespace {

class TestString : public IUnknownImp<IIdeString> {
 public:
  TestString() : IUnknownImp(GUID{}) { ++TestIde::liveStrings; }
  ~TestString() override { --TestIde::liveStrings; }
  void __stdcall SetText(const char* text) override { text_ = text ? text : ""; }
  const char* __stdcall GetText() override { return text_.c_str(); }

 private:
  std::string text_;
};

IIdeString* newString(const std::string& text) {
  IIdeString* string = new TestString();
  string->SetText(text.c_str());
  return string;
}

template <typename Client>
void removeClient(std::vector<Client*>* clients, Client* client) {
  for (auto it = clients->begin(); it != clients->end(); ++it) {
    if (*it == client) {
      clients->erase(it);
      client->Release();  // the reference handed over at AddClient
      return;
    }
  }
}

bool sameFile(const std::string& a, const std::string& b) { return lstrcmpiA(a.c_str(), b.c_str()) == 0; }

}  // namespace

std::string textOf(IIdeString* string) {
  const char* text = string ? string->GetText() : nullptr;
  return text ? text : "";
}

TestBuffer* TestEditor::buffer(IdeHandle view) {
  auto found = buffers.find(view);
  return found == buffers.end() ? nullptr : &found->second;
}

IdeHandle __stdcall TestEditor::FindView(IIdeString* fileName) {
  for (auto& entry : buffers)
    if (sameFile(entry.second.file, textOf(fileName))) return entry.first;
  return 0;
}

void __stdcall TestEditor::BeginTransaction() {
  ++openTransactions;
  log.push_back("begin");
}

void __stdcall TestEditor::EndTransaction() {
  --openTransactions;
  log.push_back("end");
}

void __stdcall TestEditor::MakeCurrent(IdeHandle view) {
  current = view;
  log.push_back("current " + std::to_string(view));
}

void __stdcall TestEditor::GetCursor(IdeHandle view, long* column, long* line) {
  if (TestBuffer* found = buffer(view)) {
    *column = found->column;
    *line = found->line;
  }
}

void __stdcall TestEditor::SetCursor(IdeHandle view, long column, long line) {
  if (TestBuffer* found = buffer(view)) {
    found->column = column;
    found->line = line;
    log.push_back("cursor " + std::to_string(column) + " " + std::to_string(line));
  }
}

void __stdcall TestEditor::ScrollToLine(IdeHandle, long line) { log.push_back("scroll " + std::to_string(line)); }

IIdeString* __stdcall TestEditor::GetLine(IdeHandle view, long line) {
  TestBuffer* found = buffer(view);
  if (!found || line < 1 || static_cast<size_t>(line) > found->lines.size()) return nullptr;
  return newString(found->lines[static_cast<size_t>(line) - 1]);
}

void __stdcall TestEditor::InsertText(IdeHandle view, IIdeString* text) {
  TestBuffer* found = buffer(view);
  if (!found || found->line < 1 || static_cast<size_t>(found->line) > found->lines.size()) return;
  std::string& line = found->lines[static_cast<size_t>(found->line) - 1];
  const size_t at = std::min(line.size(), static_cast<size_t>(found->column - 1));
  line.insert(at, textOf(text));
  log.push_back("insert " + textOf(text));
}

IIdeString* __stdcall TestEditor::ReadBuffer(IdeHandle view) {
  TestBuffer* found = buffer(view);
  if (!found) return nullptr;
  std::string text;
  for (const std::string& line : found->lines) text += line + "\r\n";
  return newString(text);
}

long __stdcall TestEditor::SaveAll(IIdeString** names) {
  long saved = 0;
  std::string text;
  for (auto& [view, buffer] : buffers) {
    if (!buffer.modified) continue;
    text += (saved++ ? ", " : "") + buffer.file;
    buffer.modified = false;
  }
  *names = newString(text);
  log.push_back("save all " + std::to_string(saved));
  return saved;
}

IdeHandle __stdcall TestMessageWindow::AddMessage(IIdeString* group, IIdeString*, IdeHandle parent, IIdeString* text,
                                                  IIdeString* file, long line, unsigned short column, long) {
  messages.push_back({textOf(group), parent, textOf(text), textOf(file), line, column});
  if (windows) windows->addMessageRow(textOf(group) + ": " + textOf(text));
  return messages.size();
}

BOOL __stdcall TestNodeOptions::GetNodeOption(IdeHandle node, long kind, IIdeString** value) {
  auto found = nodeOptions.find({node, kind});
  if (found == nodeOptions.end()) return FALSE;
  *value = newString(found->second);
  return TRUE;
}

BOOL __stdcall TestNodeOptions::GetProjectOption(IIdeString* name, void* bytes, unsigned long* size) {
  auto found = projectOptions.find(textOf(name));
  if (found == projectOptions.end()) return FALSE;
  const unsigned long room = *size;
  *size = static_cast<unsigned long>(found->second.size());
  if (!bytes || room < *size) return FALSE;
  std::memcpy(bytes, found->second.data(), found->second.size());
  return TRUE;
}

BOOL __stdcall TestNodeOptions::SetProjectOption(IIdeString* name, const void* bytes, unsigned long size) {
  projectOptions[textOf(name)].assign(static_cast<const char*>(bytes), size);
  return TRUE;
}

void __stdcall TestMake::RemoveClient(IMakeClient* client) { removeClient(&clients, client); }

void TestMake::fireMakeStarted() {
  for (IMakeClient* client : clients) client->MakeStarted();
}

void TestMake::fireMakeEnded(bool succeeded) {
  for (IMakeClient* client : clients) client->MakeEnded(succeeded ? TRUE : FALSE);
}

IIdeString* __stdcall TestProject::ProjectFile() {
  return projectFile.empty() ? nullptr : newString(projectFile);
}

IdeHandle TestProject::following(IdeHandle parent, IdeHandle after) {
  for (size_t i = after; i < nodes.size(); ++i)
    if (nodes[i].parent == parent && !nodes[i].removed) return i + 1;
  return 0;
}

IdeHandle __stdcall TestProject::NextSibling(IdeHandle node) {
  return node && node <= nodes.size() && nodes[node - 1].parent ? following(nodes[node - 1].parent, node) : 0;
}

IIdeString* __stdcall TestProject::NodeName(IdeHandle node) {
  return node && node <= nodes.size() ? newString(nodes[node - 1].name) : nullptr;
}

IIdeString* __stdcall TestProject::NodeType(IdeHandle node) {
  return node && node <= nodes.size() ? newString(nodes[node - 1].type) : nullptr;
}

IIdeString* __stdcall TestProject::NodeDescription(IdeHandle node) {
  return node && node <= nodes.size() ? newString(nodes[node - 1].description) : nullptr;
}

void __stdcall TestProject::RemoveClient(IProjectClient* client) { removeClient(&clients, client); }

IdeHandle __stdcall TestProject::AddNode(IdeHandle parent, IIdeString* name, IIdeString* type) {
  if (!parent || parent > nodes.size() || !name) return 0;
  return addNode(parent, textOf(name), type ? textOf(type) : "");
}

BOOL __stdcall TestProject::RemoveNode(IdeHandle node) {
  // The top node is the project itself: the IDE never removes it.
  if (node < 2 || node > nodes.size() || nodes[node - 1].removed) return FALSE;
  nodes[node - 1].removed = true;
  return TRUE;
}

IdeHandle TestProject::addNode(IdeHandle parent, const std::string& name, const std::string& type,
                               const std::string& description) {
  nodes.push_back({name, type, description, parent});
  return nodes.size();
}

void __stdcall TestProjectSave::RemoveClient(IProjectSaveClient* client) { removeClient(&clients, client); }

TestTools::TestTools()
    : Counted(ide_iid::kTools),
      names{"RunExecutable", "EditText",       "Project",        "ClassExpert",
            "EditResource",  "EditBitmapFile", "EditCursorFile", "EditIconFile"} {}

IdeHandle __stdcall TestTools::FindTool(IIdeString* name) {
  for (size_t i = 0; i < names.size(); ++i)
    if (names[i] == textOf(name)) return i + 1;
  return 0;
}

long __stdcall TestTools::RunTool(IdeHandle tool, IIdeString* file) {
  if (!tool || tool > names.size()) return -1;
  runs.push_back({names[tool - 1], textOf(file)});
  return result;
}

BOOL __stdcall TestTools::AddTool(const IdeToolEntry* tool) {
  names.push_back(textOf(tool->name));
  tool->implementor->AddRef();
  added.push_back({tool->position, textOf(tool->name), tool->flags, textOf(tool->description), textOf(tool->menuText),
                   textOf(tool->text), tool->implementor});
  return TRUE;
}

BOOL __stdcall TestTools::DeleteTool(IdeHandle tool) {
  if (!tool || tool > names.size() || names[tool - 1].empty()) return FALSE;
  for (Added& entry : added)
    if (entry.name == names[tool - 1] && entry.implementor) {
      entry.implementor->Release();
      entry.implementor = nullptr;
    }
  names[tool - 1].clear();
  return TRUE;
}

TestIde::TestIde() : Counted(GUID{}) {
  references = 1;
  messageWindow.windows = &windows;
  // The IDE's options dialog shows every chapter; the add-on adds the only one here.
  windows.onOptionsCommand = [this] {
    if (!optionsDialog && !nodeOptions.chapters.empty())
      optionsDialog = std::make_unique<TestOptionsDialog>(nodeOptions.chapters[0]);
  };
}

TestIde::~TestIde() = default;

IIdeString* __stdcall TestIde::CreateString() { return newString(""); }

std::string TestIde::serviceKey(const GUID& iid) {
  char key[40];
  std::snprintf(key, sizeof key, "%08lx", static_cast<unsigned long>(iid.Data1));
  return key;
}

HRESULT __stdcall TestIde::QueryInterface(REFIID iid, void** object) {
  *object = nullptr;
  if (withheld_.count(serviceKey(iid))) return E_NOINTERFACE;
  IUnknown* services[] = {&editor, &messageWindow, &statusLine, &nodeOptions, &make, &project, &projectSave, &tools};
  for (IUnknown* service : services)
    if (service->QueryInterface(iid, object) == S_OK) return S_OK;
  if (iid == IID_IUnknown) {
    *object = static_cast<IIdeRoot*>(this);
    AddRef();
    return S_OK;
  }
  return E_NOINTERFACE;
}

IdeHandle TestIde::openFile(const std::string& file, const std::string& text) {
  TestBuffer buffer;
  buffer.file = file;
  size_t start = 0;
  while (start < text.size()) {
    size_t end = text.find('\n', start);
    if (end == std::string::npos) end = text.size();
    std::string line = text.substr(start, end - start);
    if (!line.empty() && line.back() == '\r') line.pop_back();
    buffer.lines.push_back(line);
    start = end + 1;
  }
  buffer.window = windows.openEditor(file, text);
  const IdeHandle view = editor.buffers.size() + 1;
  editor.buffers[view] = buffer;
  return view;
}

long TestIde::referencesHeld() const {
  // The root keeps the one reference the IDE itself holds.
  return references - 1 + editor.references + messageWindow.references + statusLine.references +
         nodeOptions.references + make.references + project.references + projectSave.references + tools.references;
}
