// The send dialog's buttons.
#include "groupware/gw_send_presenter.h"

void GwSendPresenter::fillList() { fillSendList(list_, roots_, settings_.filters.str()); }

void GwSendPresenter::clear() {
  changeRequests([](EltGWsend& element, bool bySelection) {
    if (!bySelection || element.request != kSendConflict) element.request = kSendNothing;
  });
}

void GwSendPresenter::update() {
  changeRequests([](EltGWsend& element, bool bySelection) {
    if (element.request == kSendConflict) return;
    if (bySelection)
      element.request = kSendNothing;
    else if (element.age != kAgeSame)
      element.request = kSendUpdate;
  });
}

void GwSendPresenter::sendAndUnlock() {
  changeRequests([](EltGWsend& element, bool bySelection) {
    if (element.request != kSendConflict && (bySelection || element.age != kAgeSame)) element.request = kSendSend;
  });
}

bool GwSendPresenter::send() {
  uint64_t total = 0;
  auto requested = [](const EltGWsend& element) {
    return element.request == kSendUpdate || element.request == kSendSend;
  };
  if (!selectRequested(requested, &total)) return false;
  runAction(total, settings_.mailOnSend, "Groupware SEND : project ",
            [](GwTransfer& transfer, const EltGWsend& element) { transfer.send(element); });
  return true;
}
