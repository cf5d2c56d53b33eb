// The option page's dialog: a switchboard between the controls and the presenter.
#include "ide/addon_page_win32.h"

#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "ide/addon_slots_win32.h"
#include "ide/help_file_win32.h"
#include "win32/ide_access_win32.h"
#include "ide/key_capture_win32.h"

namespace {

std::string controlText(HWND dialog, int32_t id) {
  HWND control = GetDlgItem(dialog, id);
  std::string text(static_cast<size_t>(GetWindowTextLengthA(control)) + 1, '\0');
  text.resize(static_cast<size_t>(GetWindowTextA(control, &text[0], static_cast<int>(text.size()))));
  return text;
}

void setControlText(HWND dialog, int32_t id, const std::string& text) {
  // Only a real change: rewriting an edit would move its caret and notify again.
  if (controlText(dialog, id) != text) SetDlgItemTextA(dialog, id, text.c_str());
}

// A signed decimal number; anything else, too large a number included, reads
// as 0, which the page's check judges.
int32_t numberOf(const std::string& text) {
  char* end = nullptr;
  errno = 0;
  const long long value = std::strtoll(text.c_str(), &end, 10);
  if (text.empty() || *end != '\0' || errno == ERANGE || value < INT32_MIN || value > INT32_MAX) return 0;
  return static_cast<int32_t>(value);
}

void fillList(HWND list, const PageControl& control) {
  SendMessageA(list, LB_RESETCONTENT, 0, 0);
  for (const std::string& row : *control.rows) SendMessageA(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(row.c_str()));
  SendMessageA(list, LB_SETCURSEL, static_cast<WPARAM>(*control.selected), 0);
}

bool checked(const PageControl& control) {
  switch (control.kind) {
    case PageControlKind::Check: return control.flag ? *control.flag : *control.value != 0;
    case PageControlKind::Radio: return *control.value == control.radioValue;
    default: return false;
  }
}

}  // namespace

AddonPageBase::AddonPageBase(HINSTANCE instance, int32_t dialogId, int32_t kind, const OptionPageEntry& entry,
                             PageBehaviour behaviour)
    : IUnknownImp(ide_iid::kMpdPage),
      instance_(instance),
      dialogId_(dialogId),
      kind_(kind),
      entry_(entry),
      behaviour_(std::move(behaviour)) {}

IIdeString* __stdcall AddonPageBase::Title() { return makeIdeString(entry_.title); }

IIdeString* __stdcall AddonPageBase::Description() { return makeIdeString(entry_.description); }

HWND __stdcall AddonPageBase::CreatePage(HWND parent) {
  presenter_ = behaviour_.make();
  dialog_ = CreateDialogParamA(instance_, MAKEINTRESOURCEA(dialogId_), parent, dialogProc, reinterpret_cast<LPARAM>(this));
  return dialog_;
}

IIdeString* __stdcall AddonPageBase::ControlHint(int controlId) {
  // A page not shown has no values to store: a passing presenter tells the hint.
  std::unique_ptr<OptionPage> passing;
  OptionPage* page = presenter_.get();
  if (!page) page = (passing = behaviour_.make()).get();
  const std::string hint = page ? page->hint(controlId) : std::string();
  return hint.empty() ? nullptr : makeIdeString(hint.c_str());
}

BOOL __stdcall AddonPageBase::Check() {
  if (!presenter_) return TRUE;
  // An edit's last keystrokes are taken even if a notification was lost.
  if (dialog_)
    for (const PageControl& control : presenter_->controls())
      if (control.kind == PageControlKind::Number || control.kind == PageControlKind::Text) pull(control, EN_CHANGE);
  return presenter_->check() ? TRUE : FALSE;
}

void __stdcall AddonPageBase::Store() {
  if (!presenter_) return;
  presenter_->store();
  if (behaviour_.stored) behaviour_.stored(*presenter_);
}

INT_PTR CALLBACK AddonPageBase::dialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* page = reinterpret_cast<AddonPageBase*>(GetWindowLongPtrA(dialog, DWLP_USER));
  switch (message) {
    case WM_INITDIALOG:
      SetWindowLongPtrA(dialog, DWLP_USER, lParam);
      reinterpret_cast<AddonPageBase*>(lParam)->onInit(dialog);
      return TRUE;
    case WM_COMMAND:
      if (page) page->onCommand(LOWORD(wParam), HIWORD(wParam));
      return TRUE;
    case WM_DESTROY:
      // The values of a closed dialog are never stored by a later one.
      if (page && page->dialog_ == dialog) {
        page->dialog_ = nullptr;
        page->presenter_.reset();
      }
      break;
  }
  return FALSE;
}

void AddonPageBase::onInit(HWND dialog) {
  dialog_ = dialog;
  if (!presenter_) return;
  presenter_->show();
  presenter_->modified = false;
  for (const PageControl& control : presenter_->controls())
    if (control.kind == PageControlKind::Text && control.textLimit)
      SendDlgItemMessageA(dialog, control.id, EM_LIMITTEXT, control.textLimit, 0);
  refresh();
}

void AddonPageBase::onCommand(int32_t id, UINT notification) {
  if (refreshing_ || !presenter_) return;
  if (id == IDHELP && notification == BN_CLICKED) {
    if (entry_.helpTopic && addon().helpFile) addon().helpFile->showTopic(static_cast<uint32_t>(entry_.helpTopic));
    return;
  }
  for (const PageControl& control : presenter_->controls()) {
    if (control.id != id) continue;
    if (control.kind == PageControlKind::KeyField && notification == BN_CLICKED) {
      captureKeyFor(id);
    } else if (control.kind == PageControlKind::List && notification == LBN_DBLCLK) {
      if (behaviour_.command) behaviour_.command(*presenter_, dialog_, id);
    } else if (control.kind == PageControlKind::Button && notification == BN_CLICKED) {
      if (!behaviour_.command || !behaviour_.command(*presenter_, dialog_, id)) presenter_->changed(id);
    } else if (pull(control, notification)) {
      presenter_->changed(id);
    } else {
      return;
    }
    // What is being typed stays as typed; everything else shows the presenter's state.
    const bool typing = control.kind == PageControlKind::Number || control.kind == PageControlKind::Text;
    refresh(typing ? id : 0);
    return;
  }
}

bool AddonPageBase::pull(const PageControl& control, UINT notification) {
  switch (control.kind) {
    case PageControlKind::Check:
      if (notification != BN_CLICKED) return false;
      if (control.flag) *control.flag = IsDlgButtonChecked(dialog_, control.id) == BST_CHECKED;
      else *control.value = IsDlgButtonChecked(dialog_, control.id) == BST_CHECKED ? 1 : 0;
      return true;
    case PageControlKind::Radio:
      if (notification != BN_CLICKED) return false;
      *control.value = control.radioValue;
      return true;
    case PageControlKind::Number:
      if (notification != EN_CHANGE) return false;
      *control.value = numberOf(controlText(dialog_, control.id));
      return true;
    case PageControlKind::Text: {
      if (notification != EN_CHANGE) return false;
      const std::string text = controlText(dialog_, control.id);
      *control.text = control.textLimit ? text.substr(0, control.textLimit) : text;
      return true;
    }
    case PageControlKind::List:
      if (notification != LBN_SELCHANGE) return false;
      *control.selected = static_cast<int32_t>(SendDlgItemMessageA(dialog_, control.id, LB_GETCURSEL, 0, 0));
      return true;
    default:
      return false;
  }
}

void AddonPageBase::refresh(int32_t except) {
  if (!presenter_ || !dialog_) return;
  refreshing_ = true;
  for (const PageControl& control : presenter_->controls()) {
    EnableWindow(GetDlgItem(dialog_, control.id), presenter_->enabled(control.id));
    if (control.id == except) continue;
    switch (control.kind) {
      case PageControlKind::Check:
      case PageControlKind::Radio:
        CheckDlgButton(dialog_, control.id, checked(control) ? BST_CHECKED : BST_UNCHECKED);
        break;
      case PageControlKind::Number:
        setControlText(dialog_, control.id, std::to_string(*control.value));
        break;
      case PageControlKind::Text:
      case PageControlKind::Static:
      case PageControlKind::KeyField:
        setControlText(dialog_, control.id, *control.text);
        break;
      case PageControlKind::List:
        fillList(GetDlgItem(dialog_, control.id), control);
        break;
      case PageControlKind::Button:
        break;
    }
  }
  refreshing_ = false;
}

void AddonPageBase::captureKeyFor(int32_t id) {
  uint32_t code = 0;
  std::string text;
  if (!captureKey(instance_, GetAncestor(dialog_, GA_ROOT), addon().hooks.get(), &code, &text)) return;
  presenter_->keyCaptured(id, code, text);
}
