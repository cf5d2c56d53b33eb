// The quick add dialog: its controls in and out of the presenter.
#include "groupware/quick_add_dialog_win32.h"

#include "groupware/quick_add_presenter.h"
#include "win32/dialog_controls_win32.h"

namespace {

enum Control {
  kName = 102,
  kNewContainer = 107,
  kContainerName = 110,
  kLevelLabel = 111,
};

void enableContainer(HWND dialog, const QuickAddPresenter& presenter) {
  enableControls(dialog,
                 {kContainerName, kLevelLabel, static_cast<int>(ContainerLevel::Sibling),
                  static_cast<int>(ContainerLevel::Parent), static_cast<int>(ContainerLevel::Root)},
                 presenter.containerControlsEnabled());
}

void readControls(HWND dialog, QuickAddPresenter* presenter) {
  presenter->name = dialogItemText(dialog, kName, QuickAddPresenter::kMaxNodeName);
  presenter->newContainer = isChecked(dialog, kNewContainer);
  presenter->containerName = dialogItemText(dialog, kContainerName, QuickAddPresenter::kMaxContainerName);
  for (ContainerLevel level : {ContainerLevel::Sibling, ContainerLevel::Parent, ContainerLevel::Root})
    if (isChecked(dialog, static_cast<int>(level))) presenter->level = level;
}

INT_PTR CALLBACK quickAddProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* presenter = reinterpret_cast<QuickAddPresenter*>(GetWindowLongPtrA(dialog, DWLP_USER));
  switch (message) {
    case WM_INITDIALOG:
      SetWindowLongPtrA(dialog, DWLP_USER, lParam);
      presenter = reinterpret_cast<QuickAddPresenter*>(lParam);
      setChecked(dialog, static_cast<int>(presenter->level), true);
      enableContainer(dialog, *presenter);
      return TRUE;
    case WM_COMMAND:
      if (!presenter) return FALSE;
      switch (LOWORD(wParam)) {
        case kNewContainer:
          presenter->newContainer = isChecked(dialog, kNewContainer);
          enableContainer(dialog, *presenter);
          return TRUE;
        case IDOK:
          readControls(dialog, presenter);
          if (presenter->ok()) EndDialog(dialog, 1);
          return TRUE;
        case IDCANCEL:
          EndDialog(dialog, 0);
          return TRUE;
        default:
          return FALSE;
      }
    default:
      return FALSE;
  }
}

}  // namespace

const ProjectNode* runQuickAddDialog(HINSTANCE instance, HWND owner, Host& host, const ProjectNode& top,
                                     const ProjectNode& current) {
  QuickAddPresenter presenter(host, top, current);
  const INT_PTR ended =
      DialogBoxParamA(instance, "QuickAdd", owner, quickAddProc, reinterpret_cast<LPARAM>(&presenter));
  return ended == 1 ? presenter.result() : nullptr;
}
