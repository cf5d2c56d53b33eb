// The test IDE's options dialog over the add-on's chapter.
#include "options_dialog.h"

#include "test_ide.h"

namespace {

constexpr const char* kClass = "TestIdeOptions";
constexpr int kPageLeft = 230;
constexpr int kPageTop = 40;

void registerClassOnce() {
  static bool registered = false;
  if (registered) return;
  WNDCLASSA windowClass = {};
  windowClass.lpfnWndProc = DefWindowProcA;
  windowClass.hInstance = GetModuleHandleA(nullptr);
  windowClass.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
  windowClass.hCursor = LoadCursor(nullptr, IDC_ARROW);
  windowClass.lpszClassName = kClass;
  registered = RegisterClassA(&windowClass) != 0;
}

HWND child(const char* windowClass, const std::string& text, DWORD style, int x, int y, int width, int height,
           HWND parent) {
  return CreateWindowA(windowClass, text.c_str(), WS_CHILD | WS_VISIBLE | style, x, y, width, height, parent, nullptr,
                       GetModuleHandleA(nullptr), nullptr);
}

std::string taken(IIdeString* text) {
  const std::string value = textOf(text);
  if (text) text->Release();
  return value;
}

}  // namespace

TestOptionsDialog::TestOptionsDialog(IMpdChapter* chapter) : chapter_(chapter) {
  registerClassOnce();
  chapter_->AddRef();
  window_ = CreateWindowExA(WS_EX_TOPMOST, kClass, "Environment Options", WS_POPUP | WS_CAPTION | WS_VISIBLE, 20, 60,
                            700, 420, nullptr, nullptr, GetModuleHandleA(nullptr), nullptr);
  list_ = child("LISTBOX", "", WS_BORDER | LBS_NOINTEGRALHEIGHT, 8, 8, 214, 370, window_);
  description_ = child("STATIC", "", SS_LEFT, kPageLeft, 8, 450, 20, window_);
  hint_ = child("STATIC", "", SS_LEFT | WS_BORDER, kPageLeft, 360, 450, 20, window_);
  for (long i = 0; i < chapter_->PageCount(); ++i) {
    IMpdPage* page = chapter_->Page(i);
    if (!page) break;
    pages_.push_back(page);
    const std::string title = taken(page->Title());
    SendMessageA(list_, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(title.c_str()));
    HWND created = page->CreatePage(window_);
    if (created) SetWindowPos(created, nullptr, kPageLeft, kPageTop, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_HIDEWINDOW);
    windows_.push_back(created);
  }
}

TestOptionsDialog::~TestOptionsDialog() {
  // The pages' windows go with the dialog, before the pages are given back.
  DestroyWindow(window_);
  for (IMpdPage* page : pages_) page->Release();
  chapter_->Release();
}

void TestOptionsDialog::select(int index) {
  for (int i = 0; i < pageCount(); ++i)
    if (windows_[static_cast<size_t>(i)]) ShowWindow(windows_[static_cast<size_t>(i)], i == index ? SW_SHOW : SW_HIDE);
  shown_ = index;
  SendMessageA(list_, LB_SETCURSEL, static_cast<WPARAM>(index), 0);
  SetWindowTextA(description_, taken(page(index)->Description()).c_str());
  SetWindowTextA(hint_, "");
  UpdateWindow(window_);
}

std::string TestOptionsDialog::showHint() {
  if (shown_ < 0) return std::string();
  const std::string hint = taken(page(shown_)->ControlHint(GetDlgCtrlID(GetFocus())));
  SetWindowTextA(hint_, hint.c_str());
  return hint;
}

bool TestOptionsDialog::accept() {
  // The click on OK activates the dialog; a box closed before may have left
  // the activation elsewhere.
  SetActiveWindow(window_);
  for (IMpdPage* page : pages_)
    if (!page->Check()) return false;
  for (IMpdPage* page : pages_) page->Store();
  return true;
}
