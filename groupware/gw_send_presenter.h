// The send dialog as a presenter: the project's writable files against their
// server copies, the request buttons and "SEND !".
#pragma once

#include "groupware/gw_list_presenter.h"

class GwSendPresenter : public GwListPresenter<EltGWsend> {
 public:
  GwSendPresenter(Host& host, Mail& mail, const GroupwareSettings& settings)
      : GwListPresenter(host, mail, settings) {}

  // Fills the list; false, with nothing listed, when the project has no server directory.
  bool open() { return openList(); }

  // The buttons. A "CONFLICT" request is reset only by "Clear" with no row
  // selected; "Update" on selected rows clears them, as it always has.
  void clear();          // 102
  void update();         // 103
  void sendAndUnlock();  // 104
  // "SEND !" (105): false when no row had a request.
  bool send();

 protected:
  void fillList() override;
  std::string rowText(const EltGWsend& element) const override { return sendRowText(element, roots_); }
};
