// The groupware reports, shown in the message window as the delivery's are.
#include "groupware/gw_reports.h"

#include "groupware/lock_file.h"
#include "groupware/tree_scan.h"

namespace {

const MessageGroup kGroupwareGroup{"Groupware", "&Groupware"};

bool isCurrent(Host& host, const GwActionReport& report) {
  if (!report.projectFile.empty() && report.projectFile == host.projectFile()) return true;
  host.showStatus("No groupware send or get in this project yet");
  return false;
}

}  // namespace

bool showGroupwareReport(Host& host, const GwActionReport& report) {
  if (!isCurrent(host, report)) return false;
  const Host::MessageHandle parent = host.addMessage(kGroupwareGroup, 0, report.subject);
  size_t start = 0;
  for (size_t end; (end = report.text.find('\n', start)) != std::string::npos; start = end + 1)
    host.addMessage(kGroupwareGroup, parent, report.text.substr(start, end - start));
  if (start < report.text.size()) host.addMessage(kGroupwareGroup, parent, report.text.substr(start));
  return true;
}

bool mailGroupwareReportAgain(Host& host, Mail& mail, const GwActionReport& report) {
  if (!isCurrent(host, report)) return false;
  if (mail.recipients.count() == 0) {
    host.showStatus("No mail recipient in this project");
    return false;
  }
  return mail.send(host, report.subject, report.text.empty() ? "Nothing was exchanged." : report.text, "") != 0;
}

void showServerLocks(Host& host, const GwRoots& roots, const std::string& filters) {
  GWgetList list;
  fillGetList(list, roots, filters);
  const Host::MessageHandle parent = host.addMessage(kGroupwareGroup, 0, "Locks on " + roots.server);
  int32_t locked = 0;
  for (int32_t i = 0; i < list.count(); ++i) {
    const EltGWget& element = *list[i];
    if (!element.locked) continue;
    ++locked;
    std::string holder;
    std::string err;
    switch (readLockFile(element.path.str(), &holder, &err)) {
      case LockRecord::Absent: holder = "nobody on record"; break;
      case LockRecord::Damaged: holder = "a damaged record (" + err + ")"; break;
      case LockRecord::Read: break;
    }
    host.addMessage(kGroupwareGroup, parent,
                    listedName(roots.server, element.path.str()) + ": locked by " + holder + ", " + ageWord(element.age));
  }
  if (locked == 0) host.addMessage(kGroupwareGroup, parent, "No file is locked");
}
