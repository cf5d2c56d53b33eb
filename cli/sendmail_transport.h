// The command-line host's mail transport: a sendmail-compatible program fed an
// Internet message on its standard input.
#pragma once

#include <ctime>
#include <string>

#include "project/host.h"

// The setting "Mail"/"Sendmail" and its default.
constexpr const char* kSendmailDefault = "/usr/sbin/sendmail -t -i";
std::string sendmailCommand();

// "local@domain" or "Name <local@domain>": what the mail program takes. A
// display name alone ("Bob Smith"), which MAPI would resolve, is none.
bool isMailAddress(const std::string& recipient);

// The whole message with CR LF line ends: From, To (every recipient), Subject
// (encoded when it holds bytes above 127), Date, the MIME headers of a
// UTF-8 plain text, a blank line and the note.
std::string composeInternetMessage(const MailMessage& message, const std::string& from, std::time_t when);

// Runs command through /bin/sh with message on its standard input. A command
// that the shell cannot find gives TransportMissing; any other failure Failed,
// with the exit status in *err.
MailResult runSendmail(const std::string& command, const std::string& message, std::string* err);
