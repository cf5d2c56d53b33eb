// The opening check and the mail of the two groupware dialogs.
#include "groupware/gw_list_presenter.h"

#include "foundation/alert.h"
#include "foundation/os.h"
#include "groupware/tree_scan.h"
#include "navigation/search_places.h"
#include "tasks/task_notification.h"

bool groupwareRoots(Host& host, const GroupwareSettings& settings, GwRoots* roots) {
  if (settings.server.empty()) {
    alert("You must specify a server directory (options dialog)\nbefore calling this function !",
          "Kesto AddOn error", kAlertIconExclamation);
    return false;
  }
  SearchPlaces places = searchPlaces(host, "");
  roots->project = normalizeRoot(places.projectDirectory);
  roots->server = normalizeRoot(searchDirectory(places, settings.server.str()));
  FileAttributes server;
  if (!os().attributes(roots->server, &server, nullptr) || !server.isDirectory) {
    alert("Server directory " + roots->server + " does not exist", "Kesto AddOn error", kAlertIconExclamation);
    return false;
  }
  return true;
}

GwActionReport actionReport(Host& host, const std::string& subjectStart, const std::string& text) {
  const std::string projectFile = host.projectFile();
  return {projectFile, subjectStart + projectNameOf(projectFile), text};
}

bool mailGroupwareReport(Host& host, Mail& mail, int32_t flag, const GwActionReport& report) {
  if (flag == 0 || report.text.empty() || mail.recipients.count() == 0) return true;
  return mail.send(host, report.subject, report.text, "") != 0;
}
