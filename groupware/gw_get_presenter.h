// The get dialog as a presenter: every server file against its local copy,
// with its lock and the advice, the request buttons and "GET !".
#pragma once

#include "groupware/gw_list_presenter.h"

class GwGetPresenter : public GwListPresenter<EltGWget> {
 public:
  GwGetPresenter(Host& host, Mail& mail, const GroupwareSettings& settings)
      : GwListPresenter(host, mail, settings) {}

  // Fills the list; false, with nothing listed, when the project has no server directory.
  bool open() { return openList(); }

  // The buttons. Rows advised "ERROR" are left alone by all but "Clear";
  // "Refresh" on selected rows clears them, as it always has.
  void asAdvised();    // 106
  void clear();        // 102
  void refresh();      // 103
  void getAndLock();   // 104, refused on locked rows
  // "GET !" (105): false when no row had a request. Locks taken carry the OS's user name.
  bool get();

  // A copy that someone else locked after the list was made: refused, or
  // taken over as the dialog always has.
  bool refuseOthersLocks = false;

 protected:
  void fillList() override;
  std::string rowText(const EltGWget& element) const override { return getRowText(element, roots_); }
};
