// The test IDE: the IDE's interfaces implemented for real over plain data, and
// its windows under their class names. What the add-on does to it is recorded
// for the tests to read.
#pragma once

#include <windows.h>

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "win32/ide_api_win32.h"

class TestOptionsDialog;

// One interface of the test IDE: counted, never deleted (the IDE owns it), so
// that a test can see every reference the add-on took come back.
template <typename Interface>
class Counted : public Interface {
 public:
  explicit Counted(const GUID& iid) : iid_(iid) {}
  HRESULT __stdcall QueryInterface(REFIID iid, void** object) override {
    if (iid != IID_IUnknown && iid != iid_) {
      *object = nullptr;
      return E_NOINTERFACE;
    }
    *object = static_cast<Interface*>(this);
    AddRef();
    return S_OK;
  }
  ULONG __stdcall AddRef() override { return static_cast<ULONG>(++references); }
  ULONG __stdcall Release() override { return static_cast<ULONG>(--references); }
  long references = 0;

 private:
  GUID iid_;
};

// The text of a string argument, "" for null.
std::string textOf(IIdeString* string);

struct TestBuffer {
  std::string file;  // full path as the IDE names it
  std::vector<std::string> lines;
  long column = 1;
  long line = 1;
  HWND window = nullptr;
  bool modified = false;  // saved, and cleared, by SaveAll
};

class TestEditor : public Counted<IIdeEditor> {
 public:
  TestEditor() : Counted(ide_iid::kEditor) {}
  IdeHandle __stdcall FindView(IIdeString* fileName) override;
  void __stdcall BeginTransaction() override;
  void __stdcall EndTransaction() override;
  void __stdcall MakeCurrent(IdeHandle view) override;
  void __stdcall GetCursor(IdeHandle view, long* column, long* line) override;
  void __stdcall SetCursor(IdeHandle view, long column, long line) override;
  void __stdcall ScrollToLine(IdeHandle view, long line) override;
  IIdeString* __stdcall GetLine(IdeHandle view, long line) override;
  void __stdcall InsertText(IdeHandle view, IIdeString* text) override;
  IIdeString* __stdcall ReadBuffer(IdeHandle view) override;
  long __stdcall SaveAll(IIdeString** names) override;

  std::map<IdeHandle, TestBuffer> buffers;
  IdeHandle current = 0;
  int openTransactions = 0;
  std::vector<std::string> log;  // "begin", "current 1", "cursor 1 12", "scroll 13", "insert abc", "end"

 private:
  TestBuffer* buffer(IdeHandle view);
};

class TestIdeWindows;

// The message service; each message also becomes a row of the message window's list.
class TestMessageWindow : public Counted<IIdeMessageWindow> {
 public:
  struct Message {
    std::string group;
    IdeHandle parent;
    std::string text;
    std::string file;
    long line;
    unsigned short column;
  };
  TestMessageWindow() : Counted(ide_iid::kMessageWindow) {}
  IdeHandle __stdcall AddMessage(IIdeString* group, IIdeString* groupMenuText, IdeHandle parent, IIdeString* text,
                                 IIdeString* file, long line, unsigned short column, long kind) override;
  std::vector<Message> messages;
  TestIdeWindows* windows = nullptr;
};

class TestStatusLine : public Counted<IIdeStatusLine> {
 public:
  TestStatusLine() : Counted(ide_iid::kStatusLine) {}
  void __stdcall SetText(IIdeString* text) override { texts.push_back(textOf(text)); }
  std::vector<std::string> texts;
};

class TestNodeOptions : public Counted<IIdeNodeOptions> {
 public:
  TestNodeOptions() : Counted(ide_iid::kNodeOptions) {}
  BOOL __stdcall GetNodeOption(IdeHandle node, long kind, IIdeString** value) override;
  BOOL __stdcall GetProjectOption(IIdeString* name, void* bytes, unsigned long* size) override;
  BOOL __stdcall SetProjectOption(IIdeString* name, const void* bytes, unsigned long size) override;
  void __stdcall AddChapter(IMpdChapter* chapter) override { chapters.push_back(chapter); }

  std::map<std::pair<IdeHandle, long>, std::string> nodeOptions;
  std::map<std::string, std::string> projectOptions;
  std::vector<IMpdChapter*> chapters;
};

class TestMake : public Counted<IIdeMake> {
 public:
  TestMake() : Counted(ide_iid::kMake) {}
  void __stdcall AddClient(IMakeClient* client) override { clients.push_back(client); }
  void __stdcall RemoveClient(IMakeClient* client) override;
  // What the IDE does around a Make.
  void fireMakeStarted();
  void fireMakeEnded(bool succeeded = true);
  std::vector<IMakeClient*> clients;
};

class TestProject : public Counted<IIdeProject> {
 public:
  struct Node {
    std::string name;
    std::string type;
    std::string description;
    IdeHandle parent;
    bool removed = false;  // handles are positions: a removed node keeps its place
  };
  TestProject() : Counted(ide_iid::kProject) {}
  IIdeString* __stdcall ProjectFile() override;
  IdeHandle __stdcall TopNode() override { return nodes.empty() ? 0 : 1; }
  IdeHandle __stdcall FirstChild(IdeHandle node) override { return following(node, 0); }
  IdeHandle __stdcall NextSibling(IdeHandle node) override;
  IIdeString* __stdcall NodeName(IdeHandle node) override;
  IIdeString* __stdcall NodeType(IdeHandle node) override;
  IIdeString* __stdcall NodeDescription(IdeHandle node) override;
  void __stdcall AddClient(IProjectClient* client) override { clients.push_back(client); }
  void __stdcall RemoveClient(IProjectClient* client) override;
  IdeHandle __stdcall AddNode(IdeHandle parent, IIdeString* name, IIdeString* type) override;
  BOOL __stdcall RemoveNode(IdeHandle node) override;

  // Node handles are 1-based positions; the first node added is the top one (parent 0).
  IdeHandle addNode(IdeHandle parent, const std::string& name, const std::string& type,
                    const std::string& description = "");
  std::string projectFile;
  std::vector<Node> nodes;
  std::vector<IProjectClient*> clients;

 private:
  IdeHandle following(IdeHandle parent, IdeHandle after);
};

class TestProjectSave : public Counted<IIdeProjectSave> {
 public:
  TestProjectSave() : Counted(ide_iid::kProjectSave) {}
  void __stdcall AddClient(IProjectSaveClient* client) override { clients.push_back(client); }
  void __stdcall RemoveClient(IProjectSaveClient* client) override;
  std::vector<IProjectSaveClient*> clients;
};

class TestTools : public Counted<IIdeTools> {
 public:
  struct Run {
    std::string tool;
    std::string file;
  };
  TestTools();
  IdeHandle __stdcall FindTool(IIdeString* name) override;
  long __stdcall RunTool(IdeHandle tool, IIdeString* file) override;
  BOOL __stdcall AddTool(const IdeToolEntry* tool) override;
  BOOL __stdcall DeleteTool(IdeHandle tool) override;

  // A tool the add-on added, with its texts.
  struct Added {
    long position;
    std::string name;
    unsigned long flags;
    std::string description;
    std::string menuText;
    std::string text;
    IToolImplementor* implementor;  // one reference held while the tool exists
  };
  std::vector<std::string> names;  // handle n is names[n - 1]; "" once deleted
  std::vector<Run> runs;
  long result = 0;  // what every run answers
  std::vector<Added> added;  // in the order added; deleted ones stay with a null implementor
};

// The IDE's frame, document area, status window and editor, project and message windows.
// The frame answers the IDE's menu commands that show the project (13251) and
// message (13252) windows, making them anew when closed, and opens the options
// dialog (13492) through onOptionsCommand; it records every command it gets.
// The message window holds a tab strip ("OWL_NoteTab") over a list ("MsgViewer",
// emptied by command 1722), both inside an "OWL_Window".
class TestIdeWindows {
 public:
  TestIdeWindows();
  ~TestIdeWindows();
  TestIdeWindows(const TestIdeWindows&) = delete;
  TestIdeWindows& operator=(const TestIdeWindows&) = delete;
  // A "BCW5Editor" child of the document area, titled like the IDE's editors,
  // whose "EditWindClass" child holds text.
  HWND openEditor(const std::string& title, const std::string& text = "");
  // The compile status box ("#32770") the IDE shows while it builds: a child of
  // the document area, or a top-level window owned by the frame.
  HWND openCompileStatus(bool inDocumentArea);

  // The open message window's list rows and selected tab; none and -1 without one.
  std::vector<std::string> messageRows() const;
  int messageTab() const;
  // A row at the end of the open message window's list.
  void addMessageRow(const std::string& row);
  // The open window of that class in the document area; null when closed.
  HWND documentWindow(const char* windowClass) const;

  std::vector<WPARAM> frameCommands;
  std::function<void()> onOptionsCommand;
  HWND frame = nullptr;
  HWND documents = nullptr;
  HWND status = nullptr;  // "msctls_statusbar32", where long copies draw their progress
  HWND project = nullptr;
  HWND messages = nullptr;
};

class TestIde : public Counted<IIdeRoot> {
 public:
  TestIde();
  ~TestIde();
  IIdeString* __stdcall CreateString() override;
  HRESULT __stdcall QueryInterface(REFIID iid, void** object) override;

  // Opens an editor on file with text (lines split at LF, CR dropped): a buffer,
  // a view and a window.
  IdeHandle openFile(const std::string& file, const std::string& text);
  // The service answers no more queries, as an IDE that lacks it.
  void withhold(const GUID& iid) { withheld_.insert(serviceKey(iid)); }
  // The references the add-on still holds on the root and every service.
  long referencesHeld() const;

  TestEditor editor;
  TestMessageWindow messageWindow;
  TestStatusLine statusLine;
  TestNodeOptions nodeOptions;
  TestMake make;
  TestProject project;
  TestProjectSave projectSave;
  TestTools tools;
  TestIdeWindows windows;
  // The options dialog over the add-on's chapter, opened by the frame's options
  // command; to be closed (reset) before the add-on stops, as it holds its pages.
  std::unique_ptr<TestOptionsDialog> optionsDialog;

  static long liveStrings;  // strings made and not yet released

 private:
  static std::string serviceKey(const GUID& iid);
  std::set<std::string> withheld_;
};
