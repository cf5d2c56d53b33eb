// The hooks' client on the add-on's objects.
#include "ide/addon_hook_client_win32.h"

#include "completion/completion_engine.h"
#include "ide/addon_slots_win32.h"
#include "ide/general_behaviours_win32.h"
#include "ide/navigation_commands_win32.h"
#include "navigation/quickfind.h"
#include "navigation/source_scanner.h"
#include "navigation/title_bar_win32.h"
#include "tasks/flash_window_win32.h"
#include "tasks/task_list_dialog_win32.h"
#include "topbar/top_bar_win32.h"

namespace {

// The bar's settings as its object holds them; the defaults while it is missing.
const TopBarSettings& topBarSettings() {
  static const TopBarSettings defaults;
  return addon().topBar ? addon().topBar->settings : defaults;
}

class AddonHookClient : public HookClient {
 public:
  bool navigationEnabled() override { return addon().navigation && addon().navigation->settings().enabled; }
  int32_t hitTitleBarButton(HWND editor, POINT point, POINT* popup) override {
    return ::hitTitleBarButton(editor, addonTitleBarOptions(), point, popup);
  }
  uint32_t completionKey() override {
    CompletionEngine* completion = addon().completion.get();
    return completion && completion->enabled ? static_cast<uint32_t>(completion->keyCode) : 0;
  }
  std::array<uint16_t, 4> quickFindKeys() override {
    return addon().quickFind ? addon().quickFind->settings().keys : std::array<uint16_t, 4>{};
  }
  bool rebuildsOnProjectView() override {
    const TopBarSettings& bar = topBarSettings();
    return addon().bar && IsWindowVisible(addon().bar) && bar.hideWithView && bar.construction < 2;
  }
  bool barFollowsFrame() override { return topBarSettings().enabled && topBarSettings().hideWithIde; }
  bool barAlwaysOnTop() override { return topBarSettings().alwaysOnTop != 0; }
  // The IDE's own save restarts the auto-save countdown.
  void frameCommandSeen() override {
    if (addon().general) addon().general->resetAutoSave();
  }
  std::vector<HWND> floatingDialogs() override { return {taskListDialog(), flashWindow()}; }
};

}  // namespace

HookClient& addonHookClient() {
  static AddonHookClient client;
  return client;
}
