// Each transfer puts the target in place through a replacement that carries
// the mode the request gives it, then sets the attributes that the request
// gives the other copy. A server copy is written, and its lock taken, under
// its advisory lock.
#include "groupware/gw_transfer.h"

#include "foundation/alert.h"
#include "foundation/os.h"
#include "groupware/lock_file.h"
#include "groupware/tree_scan.h"

namespace {

// The path the failure is about: the source for opening and reading, the target otherwise.
const std::string& failedPath(CopyFailure failure, const std::string& from, const std::string& to) {
  return failure == CopyFailure::OpenSource || failure == CopyFailure::ReadSource ? from : to;
}

bool isReadOnly(const std::string& path) {
  FileAttributes attributes;
  return os().attributes(path, &attributes, nullptr) && attributes.readOnly;
}

}  // namespace

bool GwTransfer::copy(const std::string& from, const std::string& to, FinalMode mode) {
  std::string err;
  // A new file may sit in a folder that the other tree does not have yet; the
  // roots themselves were checked when the list was made.
  std::string folder = directoryOf(to);
  if (!folder.empty() && !os().exists(folder)) os().makeDirectories(folder, nullptr);
  CopyFailure failure = copyFileWithProgress(from, to, mode, progress_, &err);
  if (failure == CopyFailure::None) return true;
  ++failures_;
  if (!err.empty()) host_.showStatus(err);
  alert(copyFailureText(failure) + failedPath(failure, from, to), "Kesto Addon error", kAlertIconHand);
  return false;
}

std::unique_ptr<OsLock> GwTransfer::lockServerCopy(const std::string& server) {
  std::string folder = directoryOf(server);
  if (!folder.empty() && !os().exists(folder)) os().makeDirectories(folder, nullptr);
  std::string err;
  std::unique_ptr<OsLock> lock = os().lock(server, &err);
  if (!lock) {
    ++failures_;
    host_.showStatus(err);
  }
  return lock;
}

bool GwTransfer::setReadOnly(const std::string& path, bool readOnly) {
  std::string err;
  if (!os().exists(path) || os().setReadOnlyOrReplace(path, readOnly, &err)) return true;
  ++failures_;
  host_.showStatus(err);
  return false;
}

bool GwTransfer::freeForUser(const std::string& server, const std::string& name, const std::string& user) {
  if (!isReadOnly(server)) return true;
  std::string holder;
  std::string err;
  if (readLockFile(server, &holder, &err) == LockRecord::Read && !user.empty() && holder == user) return true;
  ++failures_;
  host_.showStatus(name + " is locked by " + (holder.empty() ? "an unknown user" : holder));
  return false;
}

void GwTransfer::send(const EltGWsend& element) {
  if (element.request != kSendUpdate && element.request != kSendSend) return;
  std::string local = element.path.str();
  std::string name = listedName(roots_.project, local);
  std::string server = joinPath(roots_.server, name);
  std::unique_ptr<OsLock> lock = lockServerCopy(server);
  if (!lock) return;
  bool keepsLock = element.request == kSendUpdate;
  bool copied = copy(local, server, keepsLock ? FinalMode::ReadOnly : FinalMode::Writable);
  // A failed copy moves the lock all the same.
  if (!copied) setReadOnly(server, keepsLock);
  if (!keepsLock) setReadOnly(local, true);
  if (copied) report_ += name + (keepsLock ? " is refreshed\n" : " is delivered and unlocked\n");
}

void GwTransfer::get(const EltGWget& element, const std::string& user, bool refuseOthersLocks) {
  if (element.request != kGetRefresh && element.request != kGetGet) return;
  std::string server = element.path.str();
  std::string name = listedName(roots_.server, server);
  std::string local = joinPath(roots_.project, name);
  if (element.request == kGetRefresh) {
    bool wasWritable = os().exists(local) && !isReadOnly(local);
    copy(server, local, wasWritable ? FinalMode::Writable : FinalMode::ReadOnly);
    return;
  }
  // Checking that the copy is free, making it read-only and writing the record
  // are one step under its lock: of two gets at once, exactly one takes it.
  std::unique_ptr<OsLock> lock = lockServerCopy(server);
  if (!lock) return;
  if (refuseOthersLocks && !freeForUser(server, name, user)) return;
  bool copied = copy(server, local, FinalMode::Writable);
  if (!copied) setReadOnly(local, false);
  if (!isReadOnly(server) && !setReadOnly(server, true)) {
    host_.showStatus("the lock of " + name + " was not taken");
    return;
  }
  std::string err;
  if (!user.empty() && !writeLockFile(server, user, &err)) {
    ++failures_;
    host_.showStatus(err);
  }
  // The lock is taken even when the copy failed, so the report says so.
  report_ += name + " is locked\n";
}
