// The groupware send and get dialogs: modal views over their presenters.
#pragma once

#include <windows.h>

#include "delivery/mail.h"
#include "groupware/groupware_settings.h"
#include "groupware/gw_reports.h"
#include "project/host.h"

// Each shows the box that asks for a server directory when the project has
// none; otherwise runs its dialog until the user closes it. The report of the
// dialog's last action, when one ran, replaces *last.
void runGroupwareSendDialog(HINSTANCE instance, HWND owner, Host& host, Mail& mail, const GroupwareSettings& settings,
                            GwActionReport* last);
void runGroupwareGetDialog(HINSTANCE instance, HWND owner, Host& host, Mail& mail, const GroupwareSettings& settings,
                           GwActionReport* last);
