// The get dialog's buttons.
#include "groupware/gw_get_presenter.h"

#include "foundation/os.h"
#include "groupware/lock_file.h"

void GwGetPresenter::fillList() { fillGetList(list_, roots_, settings_.filters.str()); }

void GwGetPresenter::asAdvised() {
  changeRequests([](EltGWget& element, bool) {
    if (element.advice != kAdviceError) element.request = element.advice;
  });
}

void GwGetPresenter::clear() {
  changeRequests([](EltGWget& element, bool) { element.request = kGetNothing; });
}

void GwGetPresenter::refresh() {
  changeRequests([](EltGWget& element, bool bySelection) {
    if (element.advice == kAdviceError) return;
    if (bySelection)
      element.request = kGetNothing;
    else if (element.age != kAgeSame)
      element.request = kGetRefresh;
  });
}

void GwGetPresenter::getAndLock() {
  changeRequests([](EltGWget& element, bool bySelection) {
    if (element.advice != kAdviceError && element.locked == 0 && (bySelection || element.age != kAgeSame))
      element.request = kGetGet;
  });
}

bool GwGetPresenter::get() {
  uint64_t total = 0;
  if (!selectRequested([](const EltGWget& element) { return element.request != kGetNothing; }, &total)) return false;
  // An empty name when the system cannot tell it: the lock is then taken without a record.
  std::string user = os().userName().substr(0, kMaxUserName);
  runAction(total, settings_.mailOnGet, "Groupware GET : project ",
            [this, &user](GwTransfer& transfer, const EltGWget& element) {
              transfer.get(element, user, refuseOthersLocks);
            });
  return true;
}
