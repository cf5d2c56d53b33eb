// What the send and get dialogs share: the check at opening, the rows and their
// selection, the request buttons' walk over the rows, and the steps around an
// action (selection, progress, refill, mail).
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "delivery/mail.h"
#include "foundation/alert.h"
#include "groupware/groupware_settings.h"
#include "groupware/gw_lists.h"
#include "groupware/gw_reports.h"
#include "groupware/gw_transfer.h"
#include "project/host.h"

// The open project's roots: its directory and its server directory (a relative
// one is taken from the project directory). False after the box that asks for a
// server directory when the project has none, or that says the one it has does
// not exist: a mistyped server directory is never created, so nobody believes
// he shared what went nowhere.
bool groupwareRoots(Host& host, const GroupwareSettings& settings, GwRoots* roots);

// The report of an action of the open project: subjectStart + the project
// name as its subject.
GwActionReport actionReport(Host& host, const std::string& subjectStart, const std::string& text);

// Mails report when flag is set, the report is not empty and the project has a
// recipient. False when that mail did not go out.
bool mailGroupwareReport(Host& host, Mail& mail, int32_t flag, const GwActionReport& report);

template <typename Elt>
class GwListPresenter {
 public:
  virtual ~GwListPresenter() = default;

  // The rows as the list box shows them, one per element in list order.
  const std::vector<std::string>& rows() const { return rows_; }
  const Tableau<Elt>& list() const { return list_; }
  const GwRoots& roots() const { return roots_; }
  // The report lines of the last action.
  const std::string& report() const { return last_.text; }
  // The last action's report with its subject; no project file before any action.
  const GwActionReport& lastAction() const { return last_; }
  // What failed in the last action: transfers in part, and its mail.
  int failures() const { return failures_; }

  bool isSelected(int32_t row) const { return row >= 0 && row < rowCount() && selected_[row]; }
  // Rows out of range are ignored.
  void select(int32_t row, bool on) {
    if (row >= 0 && row < rowCount()) selected_[row] = on;
  }

 protected:
  GwListPresenter(Host& host, Mail& mail, const GroupwareSettings& settings)
      : host_(host), mail_(mail), settings_(settings) {}

  virtual void fillList() = 0;
  virtual std::string rowText(const Elt& element) const = 0;

  int32_t rowCount() const { return static_cast<int32_t>(rows_.size()); }

  // Opening: false when the project has no server directory.
  bool openList() {
    if (!groupwareRoots(host_, settings_, &roots_)) return false;
    refill();
    return true;
  }

  // Fills the list again and rewrites every row; nothing stays selected.
  void refill() {
    fillList();
    rows_.clear();
    for (int32_t i = 0; i < list_.count(); ++i) rows_.push_back(rowText(*list_[i]));
    selected_.assign(rows_.size(), false);
  }

  // A request button: change(element, bySelection) on each selected row, or on
  // every row (bySelection false) when none is selected. Rows are rewritten in
  // place and keep their selection.
  void changeRequests(const std::function<void(Elt& element, bool bySelection)>& change) {
    bool bySelection = false;
    for (bool on : selected_) bySelection = bySelection || on;
    for (int32_t i = 0; i < list_.count(); ++i) {
      if (bySelection && !selected_[i]) continue;
      change(*list_[i], bySelection);
      rows_[i] = rowText(*list_[i]);
    }
  }

  // An action's selection step: exactly the rows whose element has a request
  // end up selected. Their total size, or false after "Nothing to do !".
  bool selectRequested(const std::function<bool(const Elt&)>& requested, uint64_t* total) {
    *total = 0;
    bool any = false;
    for (int32_t i = 0; i < list_.count(); ++i) {
      selected_[i] = requested(*list_[i]);
      if (!selected_[i]) continue;
      any = true;
      *total += list_[i]->size;
    }
    if (!any) alert("Nothing to do !", "Kesto AddOn error", kAlertIconHand);
    return any;
  }

  // Runs transfer on each selected element under one progress display of
  // total bytes, with the wait cursor; then refills the rows and mails the report.
  template <typename Transfer>
  void runAction(uint64_t total, int32_t mailFlag, const std::string& subjectStart, const Transfer& transfer) {
    host_.setBusy(true);
    {
      CopyProgress progress(host_, total);
      GwTransfer transferrer(host_, roots_, progress);
      for (int32_t i = 0; i < list_.count(); ++i)
        if (selected_[i]) transfer(transferrer, *list_[i]);
      last_ = actionReport(host_, subjectStart, transferrer.report());
      failures_ = transferrer.failures();
    }
    refill();
    host_.setBusy(false);
    if (!mailGroupwareReport(host_, mail_, mailFlag, last_)) ++failures_;
  }

  Host& host_;
  Mail& mail_;
  const GroupwareSettings& settings_;
  GwRoots roots_;
  Tableau<Elt> list_;

 private:
  std::vector<std::string> rows_;
  std::vector<bool> selected_;
  GwActionReport last_;
  int failures_ = 0;
};
