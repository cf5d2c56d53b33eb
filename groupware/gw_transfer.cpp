// Each transfer makes the target writable before copying, since a read-only
// copy is a lock and the copy would otherwise be refused, then sets the
// attributes that the request gives the two copies.
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

bool isWritable(const std::string& path) {
  FileAttributes attributes;
  return os().attributes(path, &attributes, nullptr) && !attributes.readOnly;
}

}  // namespace

bool GwTransfer::copy(const std::string& from, const std::string& to) {
  std::string err;
  // A new file may sit in a folder that the other tree does not have yet.
  std::string folder = directoryOf(to);
  if (!folder.empty() && !os().exists(folder)) os().makeDirectories(folder, nullptr);
  CopyFailure failure = copyFileWithProgress(from, to, progress_, &err);
  if (failure == CopyFailure::None) return true;
  if (!err.empty()) host_.showStatus(err);
  alert(copyFailureText(failure) + failedPath(failure, from, to), "Kesto Addon error", kAlertIconHand);
  return false;
}

void GwTransfer::setReadOnly(const std::string& path, bool readOnly) {
  std::string err;
  if (os().exists(path) && !os().setReadOnly(path, readOnly, &err)) host_.showStatus(err);
}

void GwTransfer::send(const EltGWsend& element) {
  if (element.request != kSendUpdate && element.request != kSendSend) return;
  std::string local = element.path.str();
  std::string name = listedName(roots_.project, local);
  std::string server = joinPath(roots_.server, name);
  setReadOnly(server, false);
  bool copied = copy(local, server);
  if (element.request == kSendUpdate) {
    setReadOnly(server, true);
    if (copied) report_ += name + " is refreshed\n";
  } else {
    setReadOnly(server, false);
    setReadOnly(local, true);
    if (copied) report_ += name + " is delivered and unlocked\n";
  }
}

void GwTransfer::get(const EltGWget& element, const std::string& user) {
  if (element.request != kGetRefresh && element.request != kGetGet) return;
  std::string server = element.path.str();
  std::string name = listedName(roots_.server, server);
  std::string local = joinPath(roots_.project, name);
  bool wasWritable = isWritable(local);
  setReadOnly(local, false);
  copy(server, local);
  if (element.request == kGetRefresh) {
    setReadOnly(local, !wasWritable);
    return;
  }
  setReadOnly(local, false);
  setReadOnly(server, true);
  std::string err;
  if (!user.empty() && !writeLockFile(server, user, &err)) host_.showStatus(err);
  // The lock is taken even when the copy failed, so the report says so.
  report_ += name + " is locked\n";
}
