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

BOOL CALLBACK findOtherControl(HWND control, LPARAM found) {
  const int id = GetDlgCtrlID(control);
  // A box holds its buttons (IDOK to IDCONTINUE), its text (0xFFFF) and its icon (20, or 0x440 in Wine).
  if ((id < IDOK || id > 11) && id != 0xFFFF && id != 20 && id != 0x440) {
    *reinterpret_cast<bool*>(found) = true;
    return FALSE;
  }
  return TRUE;
}

// The add-on's own dialogs are the tests' to drive; only message boxes are answered here.
bool isMessageBox(HWND dialog) {
  bool other = false;
  EnumChildWindows(dialog, findOtherControl, reinterpret_cast<LPARAM>(&other));
  return !other;
}

}  // namespace

BOOL CALLBACK MessageBoxWatchdog::answer(HWND window, LPARAM self) {
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  char windowClass[16] = {};
  GetClassNameA(window, windowClass, sizeof windowClass);
  if (process != GetCurrentProcessId() || std::string(windowClass) != "#32770" || !IsWindowVisible(window) ||
      !isMessageBox(window))
    return TRUE;
  char caption[256] = {};
  char text[1024] = {};
  GetWindowTextA(window, caption, sizeof caption);
  GetDlgItemTextA(window, 0xFFFF, text, sizeof text);
  const std::string box = std::string(caption) + ": " + text;
  auto* watchdog = reinterpret_cast<MessageBoxWatchdog*>(self);
  {
    std::lock_guard<std::mutex> lock(watchdog->mutex_);
    watchdog->boxes_.push_back(box);
  }
  if (watchdog->onBox_) watchdog->onBox_(box);
  // Hidden at once, so that the next round does not count it again before it closes.
  ShowWindow(window, SW_HIDE);
  PostMessageA(window, WM_COMMAND, IDOK, 0);
  return TRUE;
}
