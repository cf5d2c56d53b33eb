// The QuickFind prompt: the clipboard round trip and the "dlgGETDATA" dialog.
#include "navigation/quickfind_prompt_win32.h"

#include <cstring>

#include "win32/ide_windows_win32.h"
#include "navigation/search_history.h"

namespace {

constexpr int kTextList = 101;

// The clipboard, open for the scope; ok() is false when another window holds it.
class OpenClipboardScope {
 public:
  explicit OpenClipboardScope(HWND owner) : open_(OpenClipboard(owner) != FALSE) {}
  ~OpenClipboardScope() {
    if (open_) CloseClipboard();
  }
  OpenClipboardScope(const OpenClipboardScope&) = delete;
  OpenClipboardScope& operator=(const OpenClipboardScope&) = delete;
  bool ok() const { return open_; }

 private:
  bool open_;
};

// The clipboard's text (the clipboard being open); empty when it holds none.
std::string clipboardText() {
  HANDLE data = GetClipboardData(CF_TEXT);
  const char* text = data ? static_cast<const char*>(GlobalLock(data)) : nullptr;
  if (!text) return std::string();
  std::string copy(text, strnlen(text, GlobalSize(data)));
  GlobalUnlock(data);
  return copy;
}

// Puts text on the (open) clipboard; the clipboard owns the memory once it took it.
void setClipboardText(const std::string& text) {
  HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, text.size() + 1);
  if (!memory) return;
  if (void* bytes = GlobalLock(memory)) {
    std::memcpy(bytes, text.c_str(), text.size() + 1);
    GlobalUnlock(memory);
    if (SetClipboardData(CF_TEXT, memory)) return;
  }
  GlobalFree(memory);
}

// The editor's selection, through the clipboard, whose text is kept.
std::string editorSelection(HWND owner, HWND editor) {
  std::string saved;
  {
    OpenClipboardScope clipboard(owner);
    if (!clipboard.ok()) return std::string();
    saved = clipboardText();
    EmptyClipboard();
  }
  if (HWND text = findChildWindow(editor, "EditWindClass", nullptr)) SendMessageA(text, WM_COPY, 0, 0);
  OpenClipboardScope clipboard(owner);
  if (!clipboard.ok()) return std::string();
  const std::string selection = boundedSearchText(clipboardText());
  EmptyClipboard();
  if (!saved.empty()) setClipboardText(saved);
  return selection;
}

struct PromptState {
  const char* title;
  const SearchHistory* history;
  std::string text;
};

INT_PTR CALLBACK promptProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* state = reinterpret_cast<PromptState*>(GetWindowLongPtrA(dialog, DWLP_USER));
  switch (message) {
    case WM_INITDIALOG: {
      state = reinterpret_cast<PromptState*>(lParam);
      SetWindowLongPtrA(dialog, DWLP_USER, lParam);
      SetWindowTextA(dialog, state->title);
      HWND list = GetDlgItem(dialog, kTextList);
      SendMessageA(list, CB_LIMITTEXT, kSearchTextLimit, 0);
      for (const std::string& entry : state->history->entries())
        SendMessageA(list, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(entry.c_str()));
      if (!state->history->entries().empty()) SetWindowTextA(list, state->history->entries().front().c_str());
      SetFocus(list);
      SendMessageA(list, CB_SETEDITSEL, 0, MAKELPARAM(0, -1));
      return FALSE;  // the focus is set
    }
    case WM_COMMAND:
      if (LOWORD(wParam) == IDOK) {
        char text[kSearchTextLimit + 1] = {};
        GetDlgItemTextA(dialog, kTextList, text, sizeof text);
        state->text = text;
        EndDialog(dialog, IDOK);
        return TRUE;
      }
      if (LOWORD(wParam) == IDCANCEL) {
        EndDialog(dialog, IDCANCEL);
        return TRUE;
      }
      return FALSE;
    default:
      return FALSE;
  }
}

}  // namespace

std::string promptSearchText(HINSTANCE module, HWND owner, HWND editor, const char* title, SearchHistory* history) {
  std::string text = editor ? editorSelection(owner, editor) : std::string();
  if (text.empty()) {
    PromptState state{title, history, std::string()};
    DialogBoxParamA(module, "dlgGETDATA", owner, promptProcedure, reinterpret_cast<LPARAM>(&state));
    text = state.text;
  }
  history->enter(text);
  return text;
}
