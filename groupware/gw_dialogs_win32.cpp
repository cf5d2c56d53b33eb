// One dialog procedure for both groupware lists: the list box's selection goes
// to the presenter before a button, and the rows and selection come back after.
#include "groupware/gw_dialogs_win32.h"

#include <functional>
#include <vector>

#include "groupware/gw_get_presenter.h"
#include "groupware/gw_send_presenter.h"
#include "win32/dialog_controls_win32.h"

namespace {

constexpr int kList = 101;

// What the dialog procedure needs of either presenter.
struct GwDialog {
  std::vector<int> tabStops;
  std::function<const std::vector<std::string>&()> rows;
  std::function<bool(int32_t)> isSelected;
  std::function<void(int32_t, bool)> select;
  // Runs the button's action; false when id is none of the dialog's buttons.
  std::function<bool(int id)> press;
};

template <typename Presenter>
struct Button {
  int id;
  std::function<void(Presenter&)> action;
};

template <typename Presenter>
GwDialog dialogOver(Presenter& presenter, std::vector<int> tabStops, std::vector<Button<Presenter>> buttons) {
  GwDialog dialog;
  dialog.tabStops = std::move(tabStops);
  dialog.rows = [&presenter]() -> const std::vector<std::string>& { return presenter.rows(); };
  dialog.isSelected = [&presenter](int32_t row) { return presenter.isSelected(row); };
  dialog.select = [&presenter](int32_t row, bool on) { presenter.select(row, on); };
  dialog.press = [&presenter, buttons](int id) {
    for (const Button<Presenter>& button : buttons)
      if (button.id == id) {
        button.action(presenter);
        return true;
      }
    return false;
  };
  return dialog;
}

void showRows(HWND window, const GwDialog& dialog) {
  // Disabled while it is rewritten, as a long list takes a while.
  EnableWindow(GetDlgItem(window, kList), FALSE);
  fillListBox(window, kList, dialog.rows());
  for (size_t row = 0; row < dialog.rows().size(); ++row)
    if (dialog.isSelected(static_cast<int32_t>(row)))
      SendDlgItemMessageA(window, kList, LB_SETSEL, TRUE, static_cast<LPARAM>(row));
  EnableWindow(GetDlgItem(window, kList), TRUE);
}

INT_PTR CALLBACK gwDialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* dialog = reinterpret_cast<GwDialog*>(GetWindowLongPtrA(window, DWLP_USER));
  switch (message) {
    case WM_INITDIALOG: {
      SetWindowLongPtrA(window, DWLP_USER, lParam);
      dialog = reinterpret_cast<GwDialog*>(lParam);
      setTabStops(window, kList, dialog->tabStops);
      showRows(window, *dialog);
      return TRUE;
    }
    case WM_COMMAND: {
      const int id = LOWORD(wParam);
      if (!dialog) return FALSE;
      if (id == IDCANCEL) {
        EndDialog(window, 0);
        return TRUE;
      }
      for (size_t row = 0; row < dialog->rows().size(); ++row)
        dialog->select(static_cast<int32_t>(row), SendDlgItemMessageA(window, kList, LB_GETSEL, row, 0) > 0);
      if (!dialog->press(id)) return FALSE;
      showRows(window, *dialog);
      return TRUE;
    }
    case WM_CLOSE:
      EndDialog(window, 0);
      return TRUE;
    default:
      return FALSE;
  }
}

void runDialog(HINSTANCE instance, HWND owner, const char* templateName, GwDialog dialog) {
  DialogBoxParamA(instance, templateName, owner, gwDialogProc, reinterpret_cast<LPARAM>(&dialog));
}

// The presenter's last action, when the dialog ran one.
template <typename Presenter>
void keepLastAction(const Presenter& presenter, GwActionReport* last) {
  if (!presenter.lastAction().projectFile.empty()) *last = presenter.lastAction();
}

}  // namespace

void runGroupwareSendDialog(HINSTANCE instance, HWND owner, Host& host, Mail& mail, const GroupwareSettings& settings,
                            GwActionReport* last) {
  GwSendPresenter presenter(host, mail, settings);
  if (!presenter.open()) return;
  runDialog(instance, owner, "GroupwareSend",
            dialogOver<GwSendPresenter>(presenter, {292, 332, 380, 500, 600},
                                        {{102, &GwSendPresenter::clear},
                                         {103, &GwSendPresenter::update},
                                         {104, &GwSendPresenter::sendAndUnlock},
                                         {105, [](GwSendPresenter& p) { p.send(); }}}));
  keepLastAction(presenter, last);
}

void runGroupwareGetDialog(HINSTANCE instance, HWND owner, Host& host, Mail& mail, const GroupwareSettings& settings,
                           GwActionReport* last) {
  GwGetPresenter presenter(host, mail, settings);
  if (!presenter.open()) return;
  runDialog(instance, owner, "GroupwareGet",
            dialogOver<GwGetPresenter>(presenter, {219, 251, 291, 332, 380},
                                       {{106, &GwGetPresenter::asAdvised},
                                        {102, &GwGetPresenter::clear},
                                        {103, &GwGetPresenter::refresh},
                                        {104, &GwGetPresenter::getAndLock},
                                        {105, [](GwGetPresenter& p) { p.get(); }}}));
  keepLastAction(presenter, last);
}
