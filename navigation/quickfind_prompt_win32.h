// QuickFind's text prompt: the editor's selection, else a typed text.
#pragma once

#include <windows.h>

#include <string>

class SearchHistory;

// The search text for a QuickFind command. The selection of the editor's text
// child ("EditWindClass") is read through the clipboard, whose text is put
// back; with no selection the "dlgGETDATA" dialog asks for the text, captioned
// title, offering the history. Empty when there is none (the command then
// ends); otherwise the text enters the history. owner owns the dialog.
std::string promptSearchText(HINSTANCE module, HWND owner, HWND editor, const char* title, SearchHistory* history);
