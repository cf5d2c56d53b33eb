// The transfers of one send or get action: the copy of each chosen file with
// the attribute changes that move the locks, and the action's report.
#pragma once

#include <string>

#include "delivery/file_copy.h"
#include "groupware/gw_lists.h"
#include "ide/host.h"

class GwTransfer {
 public:
  GwTransfer(Host& host, const GwRoots& roots, CopyProgress& progress)
      : host_(host), roots_(roots), progress_(progress) {}

  // "Update": the server copy stays read-only (the sender keeps the lock).
  // "Send": the server copy becomes writable and the local one read-only.
  // Other requests do nothing.
  void send(const EltGWsend& element);
  // "Refresh": the local copy keeps its former writability (read-only when it
  // is new). "Get": the local copy becomes writable, the server copy read-only,
  // and the lock file takes user's name unless it is empty.
  void get(const EltGWget& element, const std::string& user);

  // The report lines so far: one per file sent, one per lock taken.
  const std::string& report() const { return report_; }

 private:
  // Copies, showing a failure as the delivery shows it; true when copied.
  bool copy(const std::string& from, const std::string& to);
  // Attribute changes go on after a failed copy; a failure on an existing
  // file is told on the status line.
  void setReadOnly(const std::string& path, bool readOnly);

  Host& host_;
  const GwRoots& roots_;
  CopyProgress& progress_;
  std::string report_;
};
