// The bar's commands that open the features' windows or start their work:
// tasks and flash, groupware send and get, the documentation, the completion key.
#pragma once

#include <windows.h>

// 171 task list, 172 automatic flash, 173 flash on demand.
void taskCommand(UINT id);
// 175 and 176.
void groupwareGetCommand();
void groupwareSendCommand();
// The groupware menu's "Report..." (177 from the bar), "Server report..." (178)
// and "Mail..." (174), all on the open project.
void groupwareReportCommand();
void groupwareServerReportCommand();
void groupwareMailCommand();
// 194 and 195; nothing without an open project.
void generateHtmlCommand();
void openHtmlCommand();
// 102: completes the word before the caret of the active editor.
void completionKeyCommand();
