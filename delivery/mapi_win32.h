// Simple MAPI as the add-on's mail transport: the mail system is loaded for one sending only.
#pragma once

#include <windows.h>

#include <string>

#include "project/host.h"

// Loads "MAPI32.DLL", hands message to its MAPISendMail with owner as the
// parent of any dialog the mail system shows, and unloads it. err gets the
// failing step and MAPI's result code.
MailResult sendMapiMail(HWND owner, const MailMessage& message, std::string* err);
