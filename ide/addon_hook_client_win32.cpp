// The hooks' client on the add-on's objects. The top bar's settings are read
// from the store, where the bar keeps them.
#include "ide/addon_hook_client_win32.h"

#include "completion/completion_engine.h"
#include "foundation/settings.h"
#include "ide/addon_slots_win32.h"
#include "ide/general_behaviours_win32.h"
#include "navigation/navigation_commands_win32.h"
#include "navigation/quickfind.h"
#include "navigation/source_scanner.h"
#include "navigation/title_bar_win32.h"

namespace {

constexpr const char* kTopBar = "TopBar";

bool topBarSetting(const char* name, int32_t defaultValue) {
  return settings().readInteger(kTopBar, name, defaultValue) != 0;
}

class AddonHookClient : public HookClient {
 public:
  bool navigationEnabled() override { return addon().navigation && addon().navigation->settings().enabled; }
  int32_t hitTitleBarButton(HWND editor, POINT point, POINT* popup) override {
    return ::hitTitleBarButton(editor, addonTitleBarOptions(), point, popup);
  }
  uint32_t completionKey() override {
    CompletionEngine* completion = addon().completion;
    return completion && completion->enabled ? static_cast<uint32_t>(completion->keyCode) : 0;
  }
  std::array<uint16_t, 4> quickFindKeys() override {
    return addon().quickFind ? addon().quickFind->settings().keys : std::array<uint16_t, 4>{};
  }
  bool rebuildsOnProjectView() override {
    return addon().bar && IsWindowVisible(addon().bar) && topBarSetting("HideWithView", 0) &&
           settings().readInteger(kTopBar, "Hierarchical", 0) < 2;
  }
  bool barFollowsFrame() override { return topBarSetting("Enabled", 1) && topBarSetting("HideWithBCW", 1); }
  bool barAlwaysOnTop() override { return topBarSetting("AlwaysOnTop", 0); }
  // The IDE's own save restarts the auto-save countdown.
  void frameCommandSeen() override {
    if (addon().general) addon().general->resetAutoSave();
  }
};

}  // namespace

HookClient& addonHookClient() {
  static AddonHookClient client;
  return client;
}
