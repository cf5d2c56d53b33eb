// Synthesised input, the pump and the modal driver.
#include "ui_driver.h"

#include <string>

#include "win32/gdi_win32.h"

ModalDriver* ModalDriver::active_ = nullptr;

namespace {

constexpr int kWatchdogTicks = 80;  // 50 ms each

void send(INPUT* inputs, UINT count) { SendInput(count, inputs, sizeof(INPUT)); }

INPUT keyInput(WORD virtualKey, bool up) {
  INPUT input = {};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = virtualKey;
  input.ki.dwFlags = up ? KEYEVENTF_KEYUP : 0;
  return input;
}

// The first visible top-level window of this process with that class.
HWND ownWindow(const char* windowClass) {
  for (HWND window = FindWindowExA(nullptr, nullptr, windowClass, nullptr); window;
       window = FindWindowExA(nullptr, window, windowClass, nullptr)) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process == GetCurrentProcessId() && IsWindowVisible(window)) return window;
  }
  return nullptr;
}

void describeItems(HMENU menu, const std::string& indent, std::string* out) {
  for (int i = 0; i < GetMenuItemCount(menu); ++i) {
    char text[256] = {};
    GetMenuStringA(menu, static_cast<UINT>(i), text, sizeof text, MF_BYPOSITION);
    HMENU submenu = GetSubMenu(menu, i);
    // A submenu's item count fills the high byte, over the flags' bits.
    const UINT state = GetMenuState(menu, static_cast<UINT>(i), MF_BYPOSITION) & (submenu ? 0xFF : ~0u);
    if (state & (MF_MENUBARBREAK | MF_MENUBREAK)) *out += indent + "--\n";
    if (state & MF_SEPARATOR) {
      *out += indent + "-\n";
    } else if (submenu) {
      *out += indent + text + "\n";
      describeItems(submenu, indent + "  ", out);
    } else {
      *out += indent + std::to_string(GetMenuItemID(menu, i)) + " " + text + "\n";
    }
  }
}

void postKey(HWND window, WPARAM key) { PostMessageA(window, WM_KEYDOWN, key, 0); }

}  // namespace

void pumpMessages(DWORD ms) {
  pumpUntil([] { return false; }, ms);
}

bool pumpUntil(const std::function<bool()>& done, DWORD timeoutMs) {
  const DWORD start = GetTickCount();
  for (;;) {
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
      TranslateMessage(&message);
      DispatchMessageA(&message);
    }
    if (done()) return true;
    if (GetTickCount() - start > timeoutMs) return false;
    Sleep(10);
  }
}

void clickAt(POINT point, bool rightButton) {
  INPUT inputs[3] = {};
  for (INPUT& input : inputs) input.type = INPUT_MOUSE;
  inputs[0].mi.dx = point.x * 65535 / (GetSystemMetrics(SM_CXSCREEN) - 1);
  inputs[0].mi.dy = point.y * 65535 / (GetSystemMetrics(SM_CYSCREEN) - 1);
  inputs[0].mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
  inputs[1].mi.dwFlags = rightButton ? MOUSEEVENTF_RIGHTDOWN : MOUSEEVENTF_LEFTDOWN;
  inputs[2].mi.dwFlags = rightButton ? MOUSEEVENTF_RIGHTUP : MOUSEEVENTF_LEFTUP;
  send(inputs, 3);
}

void pressKey(WORD virtualKey, bool ctrl, bool shift) {
  std::vector<INPUT> inputs;
  if (ctrl) inputs.push_back(keyInput(VK_CONTROL, false));
  if (shift) inputs.push_back(keyInput(VK_SHIFT, false));
  inputs.push_back(keyInput(virtualKey, false));
  inputs.push_back(keyInput(virtualKey, true));
  if (shift) inputs.push_back(keyInput(VK_SHIFT, true));
  if (ctrl) inputs.push_back(keyInput(VK_CONTROL, true));
  send(inputs.data(), static_cast<UINT>(inputs.size()));
}

void pressButton(HWND dialog, int id) {
  SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), reinterpret_cast<LPARAM>(GetDlgItem(dialog, id)));
}

HWND ownDialog(const std::string& caption) {
  HWND dialog = FindWindowA("#32770", caption.c_str());
  DWORD process = 0;
  GetWindowThreadProcessId(dialog, &process);
  return dialog && process == GetCurrentProcessId() && IsWindowVisible(dialog) ? dialog : nullptr;
}

std::vector<std::string> listBoxRows(HWND dialog, int id) {
  std::vector<std::string> rows;
  const int count = static_cast<int>(SendDlgItemMessageA(dialog, id, LB_GETCOUNT, 0, 0));
  for (int i = 0; i < count; ++i) {
    std::string row(static_cast<size_t>(SendDlgItemMessageA(dialog, id, LB_GETTEXTLEN, i, 0)) + 1, '\0');
    row.resize(static_cast<size_t>(
        SendDlgItemMessageA(dialog, id, LB_GETTEXT, i, reinterpret_cast<LPARAM>(&row[0]))));
    rows.push_back(row);
  }
  return rows;
}

bool saveScreenshot(const std::string& name) {
  // Wine starts Unix programs too: the X server's own picture of the screen,
  // read from the root window alone (reading window by window fails when one
  // goes away meanwhile). Wine cannot wait for a Unix process, so the picture
  // is written under a temporary name and waited for under its own.
  const std::string folder = KESTO_SCREENSHOT_DIR;
  const std::string file = folder + "/" + name + ".png";
  std::string command = "/bin/sh -c \"mkdir -p '" + folder + "' && rm -f '" + file +
                        "' && /usr/bin/import -silent -window root '" + file + ".tmp.png' && mv '" + file +
                        ".tmp.png' '" + file + "'\"";
  std::string windowsFile = "Z:" + file;
  for (char& c : windowsFile)
    if (c == '/') c = '\\';
  DeleteFileA(windowsFile.c_str());
  STARTUPINFOA startup = {};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION process = {};
  // A Unix program gets no process or thread handle: Wine leaves both fields as
  // whatever its own stack held, often a live handle of this process (the 32-bit
  // build's watchdog thread, whose join then fails), so they are not closed.
  if (!CreateProcessA(nullptr, &command[0], nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process))
    return false;
  for (int waited = 0; waited < 200; ++waited) {
    if (GetFileAttributesA(windowsFile.c_str()) != INVALID_FILE_ATTRIBUTES) return true;
    Sleep(50);
  }
  return false;
}

int bitmapPixelsShown(HWND window, HMODULE module, const char* bitmap, POINT at) {
  GdiObject<HBITMAP> loaded(LoadBitmapA(module, bitmap));
  BITMAP size = {};
  if (!loaded.get() || !GetObjectA(loaded.get(), sizeof size, &size)) return 0;
  WindowDc shown(window, GetWindowDC(window));
  MemoryDc memory(CreateCompatibleDC(shown.get()));
  Selection selected(memory.get(), loaded.get());
  int same = 0;
  for (int y = 0; y < size.bmHeight; ++y)
    for (int x = 0; x < size.bmWidth; ++x)
      same += GetPixel(memory.get(), x, y) == GetPixel(shown.get(), at.x + x, at.y + y);
  return same;
}

std::string describeWin32Menu(HMENU menu) {
  std::string out;
  describeItems(menu, "", &out);
  return out;
}

ModalDriver::ModalDriver() {
  active_ = this;
  timer_ = SetTimer(nullptr, 0, 50, tick);
}

ModalDriver::~ModalDriver() {
  KillTimer(nullptr, timer_);
  active_ = nullptr;
}

void CALLBACK ModalDriver::tick(HWND, UINT, UINT_PTR, DWORD) {
  if (active_) active_->onTick();
}

bool menuShown() { return ownWindow("#32768") != nullptr; }

void ModalDriver::onTick() {
  if (HWND menuWindow = ownWindow("#32768")) {
    driveMenu(menuWindow);
  } else if (menuTicks_ > 0) {
    menuTicks_ = 0;
  }
  if (HWND dialog = findDialog()) {
    driveDialog(dialog);
  } else {
    dialogTicks_ = 0;
  }
}

void ModalDriver::driveMenu(HWND menuWindow) {
  const int tick = ++menuTicks_;
  HMENU menu = reinterpret_cast<HMENU>(SendMessageA(menuWindow, MN_GETHMENU, 0, 0));
  if (tick == 1) {
    menus.push_back(describeWin32Menu(menu));
    if (onMenu) onMenu(menu);
    if (openFirstSubmenu) {
      for (int i = 0; i < GetMenuItemCount(menu); ++i) {
        postKey(menuWindow, VK_DOWN);
        if (GetSubMenu(menu, i)) break;
      }
      postKey(menuWindow, VK_RIGHT);
    }
    return;
  }
  if (tick == 6 && !menuScreenshot.empty()) saveScreenshot(menuScreenshot);
  if (tick == 8) {
    // A menu seen a few ticks from now is the next one: this one closes on the keys.
    menuTicks_ = -3;
    const size_t index = menus.size() - 1;
    const uint32_t chooseId = index < choices.size() ? choices[index] : 0;
    if (openFirstSubmenu || chooseId == 0) {
      EndMenu();
      return;
    }
    // Down once per selectable item up to the chosen one, then Return.
    for (int i = 0; i < GetMenuItemCount(menu); ++i) {
      if (!(GetMenuState(menu, static_cast<UINT>(i), MF_BYPOSITION) & MF_SEPARATOR)) postKey(menuWindow, VK_DOWN);
      if (GetMenuItemID(menu, i) == chooseId) break;
    }
    postKey(menuWindow, VK_RETURN);
    return;
  }
  if (tick > kWatchdogTicks) {
    ++watchdogFired;
    EndMenu();
  }
}

HWND ModalDriver::findDialog() const { return dialogTitle.empty() ? ownWindow("#32770") : ownDialog(dialogTitle); }

void ModalDriver::driveDialog(HWND dialog) {
  const int tick = ++dialogTicks_;
  if (tick == 1) {
    char text[256] = {};
    GetWindowTextA(dialog, text, sizeof text);
    dialogCaption = text;
    GetDlgItemTextA(dialog, 101, text, sizeof text);
    dialogFirstText = text;
    HWND list = GetDlgItem(dialog, 101);
    char listClass[32] = {};
    GetClassNameA(list, listClass, sizeof listClass);
    const bool isListBox = lstrcmpiA(listClass, "ListBox") == 0;
    if (isListBox) dialogList = listBoxRows(dialog, 101);
    const int count = isListBox ? 0 : static_cast<int>(SendMessageA(list, CB_GETCOUNT, 0, 0));
    for (int i = 0; i < count; ++i) {
      char entry[256] = {};
      SendMessageA(list, CB_GETLBTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(entry));
      dialogList.push_back(entry);
    }
    if (!dialogText.empty()) SetDlgItemTextA(dialog, 101, dialogText.c_str());
    if (onDialog) onDialog(dialog);
    return;
  }
  if (tick == 4 && !dialogScreenshot.empty()) saveScreenshot(dialogScreenshot);
  // A press may open a message box: the next one waits a few ticks for it to be answered.
  const size_t press = tick >= 6 && tick % 4 == 2 ? static_cast<size_t>((tick - 6) / 4) : dialogButtons.size();
  if (press < dialogButtons.size()) {
    const int button = dialogButtons[press];
    // Posted: the dialog's modal loop must not run inside this timer.
    PostMessageA(dialog, WM_COMMAND, MAKEWPARAM(button, BN_CLICKED),
                 reinterpret_cast<LPARAM>(GetDlgItem(dialog, button)));
  }
  if (tick > kWatchdogTicks) {
    ++watchdogFired;
    PostMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
  }
}
