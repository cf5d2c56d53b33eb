// The task list dialog: controls in and out of the presenter, one command at a time.
#include "tasks/task_list_dialog_win32.h"

#include <memory>
#include <new>

#include "win32/dialog_controls_win32.h"
#include "tasks/task_list_presenter.h"
#include "tasks/task_order.h"

namespace {

enum Control {
  kSortList = 102,
  kTaskList = 103,
  kFirstShowFlag = 104,  // 104 to 107, one per state
  kReverse = 116,
  kCreate = 109,
  kRemove = 110,
  kName = 111,
  kPriority = 112,
  kPublic = 113,
  kStart = 114,
  kState = 115,
  kEnd = 117,
  kText = 118,
  kType = 119,
  kApply = 121,
};

struct OpenDialog {
  HWND window = nullptr;
  TaskList* tasks = nullptr;
  Host* host = nullptr;
  std::unique_ptr<TaskListPresenter> presenter;
};

OpenDialog gDialog;

void showEditArea(HWND dialog, const TaskEditArea& edit) {
  setDialogItemText(dialog, kName, edit.name);
  setDialogItemText(dialog, kType, edit.type);
  SendDlgItemMessageA(dialog, kState, CB_SETCURSEL, static_cast<WPARAM>(edit.state), 0);
  setDialogItemText(dialog, kPriority, edit.priority);
  setChecked(dialog, kPublic, edit.isPublic);
  setDialogItemText(dialog, kStart, edit.start);
  setDialogItemText(dialog, kEnd, edit.end);
  setDialogItemText(dialog, kText, edit.text);
}

void readEditArea(HWND dialog, TaskEditArea* edit) {
  edit->name = dialogItemText(dialog, kName, TaskListPresenter::kMaxFieldLength);
  edit->type = dialogItemText(dialog, kType, TaskListPresenter::kMaxFieldLength);
  edit->state = static_cast<int32_t>(SendDlgItemMessageA(dialog, kState, CB_GETCURSEL, 0, 0));
  edit->priority = dialogItemText(dialog, kPriority, 20);
  edit->isPublic = isChecked(dialog, kPublic);
  edit->start = dialogItemText(dialog, kStart, TaskListPresenter::kMaxFieldLength);
  edit->end = dialogItemText(dialog, kEnd, TaskListPresenter::kMaxFieldLength);
  edit->text = dialogItemText(dialog, kText, TaskListPresenter::kMaxTextLength);
}

// Everything the presenter holds, into the controls.
void update(HWND dialog, const TaskListPresenter& presenter, const TaskList& tasks) {
  fillListBox(dialog, kTaskList, presenter.rows());
  SendDlgItemMessageA(dialog, kTaskList, LB_SETCURSEL, static_cast<WPARAM>(presenter.selectedRow()), 0);
  for (int32_t state = 0; state < kTaskStateCount; ++state) {
    setDialogItemText(dialog, kFirstShowFlag + state, presenter.caption(state));
    setChecked(dialog, kFirstShowFlag + state, tasks.showFlags[state] != 0);
  }
  showEditArea(dialog, presenter.edit);
  enableControls(dialog, {kRemove, kName, kType, kState, kPriority, kPublic, kStart, kEnd, kText, kApply},
                 presenter.editingEnabled());
}

void initialise(HWND dialog) {
  TaskList& tasks = *gDialog.tasks;
  setChecked(dialog, kReverse, tasks.reverse != 0);
  std::vector<std::string> sortKeys;
  for (int32_t key = 0; key < 5; ++key) sortKeys.push_back(sortKeyText(key));
  fillComboBox(dialog, kSortList, sortKeys);
  SendDlgItemMessageA(dialog, kSortList, CB_SETCURSEL, static_cast<WPARAM>(tasks.sortKey), 0);
  fillComboBox(dialog, kType, tasks.typeNames());
  std::vector<std::string> states;
  for (int32_t state = 0; state < kTaskStateCount; ++state) states.push_back(stateWord(state, false));
  fillComboBox(dialog, kState, states);
  setTabStops(dialog, kTaskList, {147, 249, 286, 309, 327});
  gDialog.presenter->open();
  update(dialog, *gDialog.presenter, tasks);
}

void onCommand(HWND dialog, int id, int notification) {
  TaskListPresenter& presenter = *gDialog.presenter;
  switch (id) {
    case kSortList:
      if (notification != CBN_SELCHANGE) return;
      presenter.setSortKey(static_cast<int32_t>(SendDlgItemMessageA(dialog, kSortList, CB_GETCURSEL, 0, 0)));
      break;
    case kTaskList:
      if (notification != LBN_SELCHANGE) return;
      presenter.selectRow(static_cast<int32_t>(SendDlgItemMessageA(dialog, kTaskList, LB_GETCURSEL, 0, 0)));
      break;
    case kFirstShowFlag:
    case kFirstShowFlag + 1:
    case kFirstShowFlag + 2:
    case kFirstShowFlag + 3:
      presenter.setShowFlag(id - kFirstShowFlag, isChecked(dialog, id));
      break;
    case kReverse:
      presenter.setReverse(isChecked(dialog, kReverse));
      break;
    case kCreate:
      presenter.create();
      break;
    case kRemove:
      presenter.remove();
      break;
    case kApply:
      readEditArea(dialog, &presenter.edit);
      presenter.apply();
      break;
    case IDCANCEL:
      DestroyWindow(dialog);
      return;
    default:
      return;
  }
  update(dialog, presenter, *gDialog.tasks);
}

void onDestroy() {
  std::string err;
  if (gDialog.presenter && gDialog.presenter->modified() && !gDialog.tasks->save(&err)) gDialog.host->showStatus(err);
  gDialog.presenter.reset();
  gDialog.window = nullptr;
}

INT_PTR CALLBACK taskListProc(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
  switch (message) {
    case WM_INITDIALOG:
      gDialog.window = dialog;
      initialise(dialog);
      return TRUE;
    case WM_COMMAND:
      if (!gDialog.presenter) return FALSE;
      onCommand(dialog, LOWORD(wParam), HIWORD(wParam));
      return TRUE;
    case WM_CLOSE:
      DestroyWindow(dialog);
      return TRUE;
    case WM_DESTROY:
      onDestroy();
      return TRUE;
    default:
      return FALSE;
  }
}

}  // namespace

HWND taskListDialog() { return gDialog.window; }

void openTaskListDialog(HINSTANCE instance, HWND parent, TaskList& tasks, Mail& mail, Host& host) {
  if (gDialog.window) {
    SetWindowPos(gDialog.window, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    return;
  }
  gDialog.presenter.reset(new (std::nothrow) TaskListPresenter(tasks, mail, host));
  if (!gDialog.presenter) return;
  gDialog.tasks = &tasks;
  gDialog.host = &host;
  if (!CreateDialogParamA(instance, "taches", parent, taskListProc, 0)) gDialog.presenter.reset();
  if (gDialog.window) ShowWindow(gDialog.window, SW_SHOW);
}
