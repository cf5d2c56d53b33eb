// The transfers of one send or get action: the copy of each chosen file with
// the attribute changes that move the locks, and the action's report. Each
// transfer that writes a server copy or takes its lock holds the server copy's
// advisory lock, so that two users at once never mix two versions and never
// both take one lock.
#pragma once

#include <memory>
#include <string>

#include "delivery/file_copy.h"
#include "groupware/gw_lists.h"
#include "project/host.h"

class GwTransfer {
 public:
  GwTransfer(Host& host, const GwRoots& roots, CopyProgress& progress)
      : host_(host), roots_(roots), progress_(progress) {}

  // "Update": the server copy stays read-only (the sender keeps the lock).
  // "Send": the server copy becomes writable and the local one read-only.
  // The copy carries its final mode from its first byte, so a run killed
  // midway never releases a lock. Other requests do nothing.
  void send(const EltGWsend& element);
  // "Refresh": the local copy keeps its former writability (read-only when it
  // is new). "Get": the local copy becomes writable, the server copy read-only,
  // and the lock file takes user's name unless it is empty. With
  // refuseOthersLocks, a server copy that someone else locked meanwhile is
  // left alone and counted as a failure; otherwise the lock is taken over.
  void get(const EltGWget& element, const std::string& user, bool refuseOthersLocks);

  // The report lines so far: one per file sent, one per lock taken.
  const std::string& report() const { return report_; }
  // Transfers that failed in part: a copy, a lock not taken or not released.
  int failures() const { return failures_; }

 private:
  // Copies, showing a failure as the delivery shows it; true when copied.
  bool copy(const std::string& from, const std::string& to, FinalMode mode);
  // The lock of a server copy; null after telling why on the status line.
  std::unique_ptr<OsLock> lockServerCopy(const std::string& server);
  // An attribute change on an existing file; a failure is told on the status line.
  bool setReadOnly(const std::string& path, bool readOnly);
  // False, after telling who holds it, when someone else has locked the server copy.
  bool freeForUser(const std::string& server, const std::string& name, const std::string& user);

  Host& host_;
  const GwRoots& roots_;
  CopyProgress& progress_;
  std::string report_;
  int failures_ = 0;
};
