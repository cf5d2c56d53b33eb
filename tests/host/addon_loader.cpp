// Loading the add-on and answering its message boxes.
#include "addon_loader.h"

std::string windowsPath(std::string path) {
  for (char& c : path)
    if (c == '/') c = '\\';
  return path;
}

LoadedAddon::LoadedAddon(const std::string& path) : module_(LoadLibraryA(path.c_str())) {
  if (module_) entry_ = reinterpret_cast<Entry>(reinterpret_cast<void*>(GetProcAddress(module_, "BcwAddOnEntry")));
}

LoadedAddon::~LoadedAddon() {
  if (module_) FreeLibrary(module_);
}

bool LoadedAddon::start(TestIde* ide) {
  if (!entry_) return false;
  ide->AddRef();
  entry_(reinterpret_cast<intptr_t>(static_cast<IIdeRoot*>(ide)));
  return true;
}

void LoadedAddon::stop() {
  if (entry_) entry_(0);
}

MessageBoxWatchdog::MessageBoxWatchdog(BoxListener onBox) : onBox_(onBox), thread_([this] {
  for (;;) {
    {
      std::lock_guard<std::mutex> lock(mutex_);
      if (stopping_) return;
    }
    Sleep(100);
    EnumWindows(answer, reinterpret_cast<LPARAM>(this));
  }
}) {}

MessageBoxWatchdog::~MessageBoxWatchdog() {
  {
    std::lock_guard<std::mutex> lock(mutex_);
    stopping_ = true;
  }
  thread_.join();
}

std::vector<std::string> MessageBoxWatchdog::boxes() {
  std::lock_guard<std::mutex> lock(mutex_);
  return boxes_;
}

namespace {

// The box's default push button, else its first button.
int defaultButton(HWND box) {
  int first = 0;
  for (int id : {IDOK, IDYES, IDNO, IDCANCEL, IDABORT, IDRETRY, IDIGNORE}) {
    HWND button = GetDlgItem(box, id);
    if (!button) continue;
    if ((GetWindowLongA(button, GWL_STYLE) & 0x0F) == BS_DEFPUSHBUTTON) return id;
    if (!first) first = id;
  }
  return first ? first : IDOK;
}

}  // namespace

BOOL CALLBACK MessageBoxWatchdog::answer(HWND window, LPARAM self) {
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  char windowClass[16] = {};
  GetClassNameA(window, windowClass, sizeof windowClass);
  // A message box is a dialog with its text in control 0xFFFF; the add-on's
  // other dialogs are driven by the tests themselves.
  if (process != GetCurrentProcessId() || std::string(windowClass) != "#32770" || !IsWindowVisible(window) ||
      !GetDlgItem(window, 0xFFFF))
    return TRUE;
  char caption[256] = {};
  char text[1024] = {};
  GetWindowTextA(window, caption, sizeof caption);
  GetDlgItemTextA(window, 0xFFFF, text, sizeof text);
  const std::string box = std::string(caption) + ": " + text;
  auto* watchdog = reinterpret_cast<MessageBoxWatchdog*>(self);
  int button = 0;
  {
    std::lock_guard<std::mutex> lock(watchdog->mutex_);
    watchdog->boxes_.push_back(box);
    button = watchdog->answer_;
  }
  if (watchdog->onBox_) watchdog->onBox_(box);
  // Hidden at once, so that the next round does not count it again before it closes.
  ShowWindow(window, SW_HIDE);
  PostMessageA(window, WM_COMMAND, static_cast<WPARAM>(button ? button : defaultButton(window)), 0);
  return TRUE;
}
