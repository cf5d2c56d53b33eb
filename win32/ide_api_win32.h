// The IDE's component interfaces as the add-on uses them, and the add-on's own
// client interfaces that the IDE calls back.
//
// Every assumption about the IDE's binary interface (method order, argument
// types, who releases what) lives in this header and nowhere else: aligning
// with the IDE's published tables changes this file only. Methods are declared
// by the role they play. Conventions of every method here:
// - An IdeString argument is borrowed: the callee copies or AddRefs what it keeps.
// - An IdeString result belongs to the caller, who releases it.
// - Views, nodes and tools are opaque non-zero handles; 0 means none.
#pragma once

#include <windows.h>
#include <objbase.h>

#include <cstdint>

// The interface identifiers of the IDE's services: the IDE's own values.
namespace ide_iid {
// {707240xx-4B4B-11CF-9D40-444553540000}
constexpr GUID family(unsigned char low) {
  return GUID{0x70724000ul | low, 0x4B4B, 0x11CF, {0x9D, 0x40, 0x44, 0x45, 0x53, 0x54, 0x00, 0x00}};
}
constexpr GUID kMessageWindow = family(0xC0);
constexpr GUID kStatusLine = family(0xC7);
constexpr GUID kNodeOptions = family(0xCC);
constexpr GUID kMake = family(0xCD);
constexpr GUID kEditor = family(0xD0);
constexpr GUID kProject = family(0xD4);
constexpr GUID kTools = family(0xD9);
constexpr GUID kProjectSave = family(0xED);

// The add-on's client interfaces: our values until the IDE's are aligned here.
constexpr GUID clientFamily(unsigned char low) {
  return GUID{0x4B455300ul | low, 0x4B4B, 0x11CF, {0x9D, 0x40, 0x4B, 0x45, 0x53, 0x54, 0x4F, 0x00}};
}
constexpr GUID kProjectClient = clientFamily(0x01);
constexpr GUID kProjectSaveClient = clientFamily(0x02);
constexpr GUID kMakeClient = clientFamily(0x03);
// The delivery tool's implementor carries the IDE's own tool identifier.
constexpr GUID kToolImplementor = {0x94D38B60, 0xE488, 0x11CE, {0xBA, 0x8F, 0x00, 0x00, 0xC0, 0xF4, 0xA3, 0x55}};
constexpr GUID kMpdChapter = clientFamily(0x05);
constexpr GUID kMpdPage = clientFamily(0x06);
}  // namespace ide_iid

using IdeHandle = uintptr_t;

// A text handed across the interface. The add-on never keeps one.
struct IIdeString : IUnknown {
  virtual void __stdcall SetText(const char* text) = 0;
  // Owned by the object, valid until the next SetText or the last Release.
  virtual const char* __stdcall GetText() = 0;
};

// The pointer given to the add-on's entry: services through QueryInterface.
struct IIdeRoot : IUnknown {
  // A new empty string with one reference; null when out of memory.
  virtual IIdeString* __stdcall CreateString() = 0;
};

// Buffers, their views, the cursor and the text of the IDE's editors.
// Lines and columns are 1-based.
struct IIdeEditor : IUnknown {
  // The view of the open editor holding fileName (full path); 0 when none.
  virtual IdeHandle __stdcall FindView(IIdeString* fileName) = 0;
  // Every edit below happens inside one transaction.
  virtual void __stdcall BeginTransaction() = 0;
  virtual void __stdcall EndTransaction() = 0;
  virtual void __stdcall MakeCurrent(IdeHandle view) = 0;
  virtual void __stdcall GetCursor(IdeHandle view, long* column, long* line) = 0;
  virtual void __stdcall SetCursor(IdeHandle view, long column, long line) = 0;
  virtual void __stdcall ScrollToLine(IdeHandle view, long line) = 0;
  // The line's text without its line end; null past the last line.
  virtual IIdeString* __stdcall GetLine(IdeHandle view, long line) = 0;
  // Inserts at the cursor; the cursor stays where it was.
  virtual void __stdcall InsertText(IdeHandle view, IIdeString* text) = 0;
  // The buffer's whole text, unsaved changes included (the file stream).
  virtual IIdeString* __stdcall ReadBuffer(IdeHandle view) = 0;
  // Saves every modified buffer: how many, and in *names the text naming them.
  virtual long __stdcall SaveAll(IIdeString** names) = 0;
};

// The message window: messages under named groups, located or plain.
struct IIdeMessageWindow : IUnknown {
  // Adds under parent (0: top level) in the group, creating the group on first
  // use; file null for a plain message. Returns the new message's handle.
  virtual IdeHandle __stdcall AddMessage(IIdeString* group, IIdeString* groupMenuText, IdeHandle parent,
                                         IIdeString* text, IIdeString* file, long line, unsigned short column,
                                         long kind) = 0;
};

struct IIdeStatusLine : IUnknown {
  virtual void __stdcall SetText(IIdeString* text) = 0;
};

struct IMpdChapter;

// The options of project nodes and of the project, and the options dialog.
struct IIdeNodeOptions : IUnknown {
  // The node's option of that kind (1 include path, 3 source path); FALSE when it has none.
  virtual BOOL __stdcall GetNodeOption(IdeHandle node, long kind, IIdeString** value) = 0;
  // Raw bytes of a named project option: FALSE when the project has none.
  // *size is the buffer's size on entry and the option's on return; a buffer
  // that is too small gets nothing and FALSE with the size needed.
  virtual BOOL __stdcall GetProjectOption(IIdeString* name, void* bytes, unsigned long* size) = 0;
  virtual BOOL __stdcall SetProjectOption(IIdeString* name, const void* bytes, unsigned long size) = 0;
  // Adds the chapter to the options dialog. The service keeps the pointer
  // without a reference and holds references only while its dialog is open;
  // the add-on keeps the chapter alive until it shuts down.
  virtual void __stdcall AddChapter(IMpdChapter* chapter) = 0;
};

// Build notifications.
struct IMakeClient : IUnknown {
  virtual void __stdcall MakeStarted() = 0;
  // succeeded: the Make ended without errors.
  virtual void __stdcall MakeEnded(BOOL succeeded) = 0;
};

struct IIdeMake : IUnknown {
  // The service takes over one reference that the caller added for it, and
  // releases it in RemoveClient. The project services do the same with their clients.
  virtual void __stdcall AddClient(IMakeClient* client) = 0;
  virtual void __stdcall RemoveClient(IMakeClient* client) = 0;
};

struct IProjectClient : IUnknown {
  virtual void __stdcall ProjectOpened(IIdeString* projectFile) = 0;
  virtual void __stdcall ProjectClosed() = 0;
  virtual void __stdcall NodeChanged(IdeHandle node) = 0;
};

struct IProjectSaveClient : IUnknown {
  virtual void __stdcall ProjectSaving() = 0;
};

// The project tree and its clients.
struct IIdeProject : IUnknown {
  // The open project's file; null when none is open.
  virtual IIdeString* __stdcall ProjectFile() = 0;
  virtual IdeHandle __stdcall TopNode() = 0;
  virtual IdeHandle __stdcall FirstChild(IdeHandle node) = 0;
  virtual IdeHandle __stdcall NextSibling(IdeHandle node) = 0;
  virtual IIdeString* __stdcall NodeName(IdeHandle node) = 0;
  virtual IIdeString* __stdcall NodeType(IdeHandle node) = 0;
  virtual IIdeString* __stdcall NodeDescription(IdeHandle node) = 0;
  virtual void __stdcall AddClient(IProjectClient* client) = 0;
  virtual void __stdcall RemoveClient(IProjectClient* client) = 0;
  // A new node under parent; a null type asks for the default one. 0 when refused.
  virtual IdeHandle __stdcall AddNode(IdeHandle parent, IIdeString* name, IIdeString* type) = 0;
  // Takes the node and everything under it out of the project. FALSE when refused.
  virtual BOOL __stdcall RemoveNode(IdeHandle node) = 0;
};

struct IIdeProjectSave : IUnknown {
  virtual void __stdcall AddClient(IProjectSaveClient* client) = 0;
  virtual void __stdcall RemoveClient(IProjectSaveClient* client) = 0;
};

// A tool of the add-on in the IDE's Tool menu.
struct IToolImplementor : IUnknown {
  // Runs on the file the IDE gives; the result as the tool service reports it.
  virtual long __stdcall Execute(IIdeString* file) = 0;
};

// What a tool of the Tool menu is made of.
struct IdeToolEntry {
  long position;  // place in the menu, as the IDE counts it
  IIdeString* name;
  unsigned long flags;
  IIdeString* description;
  IIdeString* menuText;
  IIdeString* text;  // the tool's help line
  IToolImplementor* implementor;
};

// Registration and running of IDE tools.
struct IIdeTools : IUnknown {
  // The tool of that name; 0 when unknown.
  virtual IdeHandle __stdcall FindTool(IIdeString* name) = 0;
  // -1 not handled, 0 fine, 1 warnings, 2 errors, 3 fatal error.
  virtual long __stdcall RunTool(IdeHandle tool, IIdeString* file) = 0;
  // Adds a tool to the Tool menu; the service takes a reference to the implementor.
  virtual BOOL __stdcall AddTool(const IdeToolEntry* tool) = 0;
  // Removes a tool and releases its implementor.
  virtual BOOL __stdcall DeleteTool(IdeHandle tool) = 0;
};

// One page of the add-on's chapter in the IDE's options dialog.
struct IMpdPage : IUnknown {
  virtual IIdeString* __stdcall Title() = 0;
  // The page's window, a child of parent filled from the current settings, each
  // time the dialog opens; the IDE destroys it with the dialog. Null on failure.
  virtual HWND __stdcall CreatePage(HWND parent) = 0;
  // The help text shown while the control has the focus; null for none.
  virtual IIdeString* __stdcall ControlHint(int controlId) = 0;
  // Check and Store come while the page's window exists; a page whose window
  // was not created, or is gone, accepts and stores nothing.
  // FALSE refuses the dialog's acceptance (the page has told the user why).
  virtual BOOL __stdcall Check() = 0;
  virtual void __stdcall Store() = 0;
  // The page's own description text, shown by the IDE above the page.
  virtual IIdeString* __stdcall Description() = 0;
  // 0x1000 for the chapter's first page, 1 for the others.
  virtual long __stdcall Kind() = 0;
  // The id of the page's dialog template in the add-on's resources.
  virtual long __stdcall DialogId() = 0;
};

struct IMpdChapter : IUnknown {
  virtual IIdeString* __stdcall Title() = 0;
  virtual long __stdcall PageCount() = 0;
  // The page with one reference for the caller; null past the end.
  virtual IMpdPage* __stdcall Page(long index) = 0;
};

// Plain reference counting for the add-on's objects that the IDE holds:
// the count starts at 1 (the creator's reference) and the object deletes
// itself when it reaches 0. Not thread-safe: everything runs on the IDE's thread.
template <typename T>
class IUnknownImp : public T {
 public:
  IUnknownImp(const IUnknownImp&) = delete;
  IUnknownImp& operator=(const IUnknownImp&) = delete;

  HRESULT __stdcall QueryInterface(REFIID iid, void** object) override {
    if (!object) return E_POINTER;
    if (iid == IID_IUnknown || iid == interfaceId_) {
      *object = static_cast<T*>(this);
      AddRef();
      return S_OK;
    }
    *object = nullptr;
    return E_NOINTERFACE;
  }
  ULONG __stdcall AddRef() override { return ++references_; }
  ULONG __stdcall Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

 protected:
  explicit IUnknownImp(const GUID& interfaceId) : interfaceId_(interfaceId) {}
  virtual ~IUnknownImp() = default;

 private:
  GUID interfaceId_;
  ULONG references_ = 1;
};
