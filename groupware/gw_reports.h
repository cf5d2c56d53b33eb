// The groupware menu's reports: the last send or get shown again or mailed on
// demand, and the locks that the server holds.
#pragma once

#include <string>

#include "delivery/mail.h"
#include "groupware/gw_lists.h"
#include "project/host.h"

// What the last send or get of a project reported, one line per file.
struct GwActionReport {
  std::string projectFile;  // the project it belongs to; empty before any action
  std::string subject;      // "Groupware SEND : project demo"
  std::string text;
};

// Puts the report of the open project's last action in the message window
// (its subject, then one message per line). False, with nothing shown, when
// that project has had no action yet in this session.
bool showGroupwareReport(Host& host, const GwActionReport& report);

// Mails the open project's last report to its recipients, whatever the mail
// switches of send and get say: the user asked for it. False when there is no
// report to mail, no recipient, or the mail did not go out; the status line
// says which of the first two.
bool mailGroupwareReportAgain(Host& host, Mail& mail, const GwActionReport& report);

// Lists in the message window every locked (read-only) server file matching
// filters, with the holder its ".lock" file names and its age against the
// local copy, under a header that names the server.
void showServerLocks(Host& host, const GwRoots& roots, const std::string& filters);
