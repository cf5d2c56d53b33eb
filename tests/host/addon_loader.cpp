// Loading the add-on and answering its message boxes.
#include "addon_loader.h"

#include <fstream>
#include <sstream>

#include "foundation/settings.h"
#include "foundation/settings_registry_win32.h"

std::string testFolder(const std::string& name) {
  char program[MAX_PATH] = {};
  GetModuleFileNameA(nullptr, program, sizeof program);
  std::string folder(program);
  folder = folder.substr(0, folder.rfind('\\') + 1) + name;
  CreateDirectoryA(folder.c_str(), nullptr);
  return folder;
}

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

std::vector<std::string> MessageBoxWatchdog::owners() {
  std::lock_guard<std::mutex> lock(mutex_);
  return owners_;
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

BOOL CALLBACK findDefaultButton(HWND control, LPARAM found) {
  char windowClass[16] = {};
  GetClassNameA(control, windowClass, sizeof windowClass);
  if (lstrcmpiA(windowClass, "Button") != 0) return TRUE;
  int* id = reinterpret_cast<int*>(found);
  const bool isDefault = (GetWindowLongA(control, GWL_STYLE) & 0x0F) == BS_DEFPUSHBUTTON;
  if (*id == 0 || isDefault) *id = GetDlgCtrlID(control);
  return !isDefault;
}

// The box's default button: the one so styled, else its first ("Yes" of "Yes" and "No").
int defaultButton(HWND box) {
  int id = 0;
  EnumChildWindows(box, findDefaultButton, reinterpret_cast<LPARAM>(&id));
  return id != 0 ? id : IDOK;
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
  std::string owner;
  if (HWND ownerWindow = GetWindow(window, GW_OWNER)) {
    char ownerCaption[256] = {};
    GetWindowTextA(ownerWindow, ownerCaption, sizeof ownerCaption);
    owner = std::string(ownerCaption) + (IsWindowEnabled(ownerWindow) ? ", enabled" : ", disabled");
  }
  auto* watchdog = reinterpret_cast<MessageBoxWatchdog*>(self);
  {
    std::lock_guard<std::mutex> lock(watchdog->mutex_);
    watchdog->boxes_.push_back(box);
    watchdog->owners_.push_back(owner);
  }
  if (watchdog->onBox_) watchdog->onBox_(box);
  // Hidden at once, so that the next round does not count it again before it closes.
  ShowWindow(window, SW_HIDE);
  PostMessageA(window, WM_COMMAND, defaultButton(window), 0);
  return TRUE;
}

RecordedMail::RecordedMail(const std::string& name) : path_(testFolder("mail") + "\\" + name) {
  DeleteFileA(path_.c_str());
  SetEnvironmentVariableA("KESTO_TEST_MAPI_LOG", path_.c_str());
}

RecordedMail::~RecordedMail() { SetEnvironmentVariableA("KESTO_TEST_MAPI_LOG", nullptr); }

std::string RecordedMail::text() const { return readWholeFile(path_); }

void putAddonSetting(const std::string& section, const std::string& name, const std::string& value) {
  SettingsRegistry().write(std::string(SettingsStore::kAddOnRoot) + "\\" + section, name, value);
}

void sendBarCommand(UINT id) { SendMessageA(FindWindowA("KADO", nullptr), WM_COMMAND, id, 0); }

std::string readWholeFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::stringstream text;
  text << in.rdbuf();
  return text.str();
}
