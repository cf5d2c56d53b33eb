// The test IDE's windows: the frame and its menu commands, the document area,
// the status window, the editors, and the project and message windows.
#include "test_ide.h"

#include <commctrl.h>

namespace {

HWND createChild(HWND documents, const char* windowClass, const std::string& title);

constexpr WPARAM kShowProjectWindow = 13251;
constexpr WPARAM kShowMessageWindow = 13252;
constexpr WPARAM kOptionsDialog = 13492;
constexpr WPARAM kClearMessageList = 1722;
constexpr int kTabHeight = 22;
constexpr int kTabWidth = 70;
const char* const kMessageTabs[] = {"Build", "Search", "Kesto"};
constexpr int kMessageTabCount = 3;

// The frame's menu commands; the test IDE's windows object rides in its user data.
LRESULT CALLBACK frameProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  HWND documents = FindWindowExA(window, nullptr, "MDIClient", nullptr);
  auto* windows = reinterpret_cast<TestIdeWindows*>(GetWindowLongPtrA(window, GWLP_USERDATA));
  if (message == WM_COMMAND && windows) {
    windows->frameCommands.push_back(wParam);
    if (wParam == kShowProjectWindow || wParam == kShowMessageWindow) {
      const char* windowClass = wParam == kShowProjectWindow ? "BCW5Project" : "BCW5Message";
      HWND shown = FindWindowExA(documents, nullptr, windowClass, nullptr);
      if (!shown) shown = createChild(documents, windowClass, wParam == kShowProjectWindow ? "Project" : "Message");
      SendMessageA(documents, WM_MDIACTIVATE, reinterpret_cast<WPARAM>(shown), 0);
      return 0;
    }
    if (wParam == kOptionsDialog) {
      if (windows->onOptionsCommand) windows->onOptionsCommand();
      return 0;
    }
  }
  return DefFrameProcA(window, documents, message, wParam, lParam);
}

// The message window's tab strip: a press on a tab selects it.
LRESULT CALLBACK noteTabProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_LBUTTONDOWN) {
    const int x = static_cast<short>(LOWORD(lParam));
    const int y = static_cast<short>(HIWORD(lParam));
    if (x >= 0 && y >= 0 && y < kTabHeight && x / kTabWidth < kMessageTabCount) {
      SetWindowLongPtrA(window, GWLP_USERDATA, x / kTabWidth);
      InvalidateRect(window, nullptr, TRUE);
    }
    return 0;
  }
  if (message == WM_PAINT) {
    PAINTSTRUCT paint;
    HDC dc = BeginPaint(window, &paint);
    const LONG_PTR selected = GetWindowLongPtrA(window, GWLP_USERDATA);
    SetBkMode(dc, TRANSPARENT);
    for (int tab = 0; tab < kMessageTabCount; ++tab) {
      RECT place = {tab * kTabWidth, tab == selected ? 0 : 3, (tab + 1) * kTabWidth - 2, kTabHeight};
      FillRect(dc, &place, static_cast<HBRUSH>(GetStockObject(tab == selected ? WHITE_BRUSH : LTGRAY_BRUSH)));
      FrameRect(dc, &place, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
      DrawTextA(dc, kMessageTabs[tab], -1, &place, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    }
    EndPaint(window, &paint);
    return 0;
  }
  return DefWindowProcA(window, message, wParam, lParam);
}

WNDPROC gListBoxProcedure = nullptr;

// The message list: a list box that empties itself on the IDE's clear command.
LRESULT CALLBACK msgViewerProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_COMMAND && wParam == kClearMessageList) {
    SendMessageA(window, LB_RESETCONTENT, 0, 0);
    return 0;
  }
  return CallWindowProcA(gListBoxProcedure, window, message, wParam, lParam);
}

// The pane that holds the tab strip over the list.
LRESULT CALLBACK owlWindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_SIZE) {
    MoveWindow(FindWindowExA(window, nullptr, "OWL_NoteTab", nullptr), 0, 0, LOWORD(lParam), kTabHeight, TRUE);
    MoveWindow(FindWindowExA(window, nullptr, "MsgViewer", nullptr), 0, kTabHeight, LOWORD(lParam),
               HIWORD(lParam) - kTabHeight, TRUE);
  }
  return DefWindowProcA(window, message, wParam, lParam);
}

HWND createPlainChild(const char* windowClass, const char* text, DWORD style, HWND parent, int id = 0) {
  return CreateWindowExA(0, windowClass, text, WS_CHILD | WS_VISIBLE | style, 0, 0, 10, 10, parent,
                         reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), GetModuleHandleA(nullptr), nullptr);
}

LRESULT CALLBACK messageWindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_CREATE) {
    HWND pane = createPlainChild("OWL_Window", nullptr, WS_CLIPCHILDREN, window);
    createPlainChild("OWL_NoteTab", nullptr, 0, pane);
    createPlainChild("MsgViewer", nullptr, WS_VSCROLL | LBS_NOINTEGRALHEIGHT, pane);
  }
  if (message == WM_SIZE)
    MoveWindow(FindWindowExA(window, nullptr, "OWL_Window", nullptr), 0, 0, LOWORD(lParam), HIWORD(lParam), TRUE);
  return DefMDIChildProcA(window, message, wParam, lParam);
}

void registerClass(const char* name, WNDPROC procedure) {
  WNDCLASSA windowClass = {};
  windowClass.lpfnWndProc = procedure;
  windowClass.hInstance = GetModuleHandleA(nullptr);
  windowClass.hCursor = LoadCursorA(nullptr, IDC_ARROW);
  windowClass.hbrBackground = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
  windowClass.lpszClassName = name;
  RegisterClassA(&windowClass);
}

// A system control under an IDE class name, with procedure in place of its own
// when given; returns the control's own procedure.
WNDPROC registerControlAs(const char* control, const char* name, WNDPROC procedure = nullptr) {
  WNDCLASSA windowClass = {};
  GetClassInfoA(nullptr, control, &windowClass);
  const WNDPROC own = windowClass.lpfnWndProc;
  if (procedure) windowClass.lpfnWndProc = procedure;
  windowClass.hInstance = GetModuleHandleA(nullptr);
  windowClass.lpszClassName = name;
  RegisterClassA(&windowClass);
  return own;
}

HWND createChild(HWND documents, const char* windowClass, const std::string& title) {
  return CreateMDIWindowA(windowClass, title.c_str(), WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW, 0, 0, 400, 300,
                          documents, GetModuleHandleA(nullptr), 0);
}

// A control of the open message window's pane; null without a message window.
HWND messagePane(const TestIdeWindows& windows, const char* windowClass) {
  HWND pane = FindWindowExA(windows.documentWindow("BCW5Message"), nullptr, "OWL_Window", nullptr);
  return pane ? FindWindowExA(pane, nullptr, windowClass, nullptr) : nullptr;
}

}  // namespace

TestIdeWindows::TestIdeWindows() {
  registerClass("CPPFRAME", frameProcedure);
  registerClass("BCW5Editor", DefMDIChildProcA);
  registerClass("BCW5Project", DefMDIChildProcA);
  registerClass("BCW5Message", messageWindowProcedure);
  registerClass("OWL_Window", owlWindowProcedure);
  registerClass("OWL_NoteTab", noteTabProcedure);
  // The editor's text pane is an edit control, so that selections and WM_COPY behave as in an editor.
  registerControlAs("EDIT", "EditWindClass");
  gListBoxProcedure = registerControlAs("LISTBOX", "MsgViewer", msgViewerProcedure);
  frame = CreateWindowExA(0, "CPPFRAME", "Borland C++ - demo", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN | WS_VISIBLE, 0,
                          40, 800, 560, nullptr, nullptr, GetModuleHandleA(nullptr), nullptr);
  SetWindowLongPtrA(frame, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  CLIENTCREATESTRUCT documentsCreate = {};
  documents = CreateWindowExA(0, "MDIClient", nullptr, WS_CHILD | WS_CLIPCHILDREN | WS_VISIBLE, 0, 0, 800, 500, frame,
                              nullptr, GetModuleHandleA(nullptr), &documentsCreate);
  INITCOMMONCONTROLSEX controls = {sizeof controls, ICC_BAR_CLASSES};
  InitCommonControlsEx(&controls);
  status = CreateWindowExA(0, STATUSCLASSNAMEA, "Ready", WS_CHILD | WS_VISIBLE, 0, 0, 0, 0, frame, nullptr,
                           GetModuleHandleA(nullptr), nullptr);
  project = createChild(documents, "BCW5Project", "Project : c:\\projects\\demo\\demo.ide");
  messages = createChild(documents, "BCW5Message", "Message");
}

TestIdeWindows::~TestIdeWindows() {
  if (frame) DestroyWindow(frame);
}

HWND TestIdeWindows::openEditor(const std::string& title, const std::string& text) {
  HWND editor = createChild(documents, "BCW5Editor", title);
  RECT client = {};
  GetClientRect(editor, &client);
  CreateWindowExA(0, "EditWindClass", text.c_str(), WS_CHILD | WS_VISIBLE | ES_MULTILINE | WS_VSCROLL, 0, 0,
                  client.right, client.bottom, editor, nullptr, GetModuleHandleA(nullptr), nullptr);
  return editor;
}

HWND TestIdeWindows::openCompileStatus(bool inDocumentArea) {
  const DWORD style = WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX | (inDocumentArea ? WS_CHILD : WS_POPUP);
  HWND box = CreateWindowExA(0, "#32770", "Compile Status", style, 420, 160, 260, 120,
                             inDocumentArea ? documents : frame, nullptr, GetModuleHandleA(nullptr), nullptr);
  // Controls of their own, there before the box shows, so that no watchdog takes it for a message box.
  HWND file = createPlainChild("STATIC", "Compiling: DEMO.CPP", SS_LEFT, box, 1001);
  HWND lines = createPlainChild("STATIC", "Lines: 1204", SS_LEFT, box, 1002);
  MoveWindow(file, 10, 10, 230, 20, TRUE);
  MoveWindow(lines, 10, 36, 230, 20, TRUE);
  ShowWindow(box, SW_SHOW);
  return box;
}

HWND TestIdeWindows::documentWindow(const char* windowClass) const {
  return FindWindowExA(documents, nullptr, windowClass, nullptr);
}

std::vector<std::string> TestIdeWindows::messageRows() const {
  std::vector<std::string> rows;
  HWND list = messagePane(*this, "MsgViewer");
  const LRESULT count = list ? SendMessageA(list, LB_GETCOUNT, 0, 0) : 0;
  for (LRESULT i = 0; i < count; ++i) {
    std::string row(static_cast<size_t>(SendMessageA(list, LB_GETTEXTLEN, i, 0)) + 1, '\0');
    row.resize(static_cast<size_t>(SendMessageA(list, LB_GETTEXT, i, reinterpret_cast<LPARAM>(&row[0]))));
    rows.push_back(row);
  }
  return rows;
}

int TestIdeWindows::messageTab() const {
  HWND tabs = messagePane(*this, "OWL_NoteTab");
  return tabs ? static_cast<int>(GetWindowLongPtrA(tabs, GWLP_USERDATA)) : -1;
}

void TestIdeWindows::addMessageRow(const std::string& row) {
  if (HWND list = messagePane(*this, "MsgViewer"))
    SendMessageA(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(row.c_str()));
}
