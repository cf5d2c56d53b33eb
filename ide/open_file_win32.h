// The add-on's one way of opening a file in the IDE.
#pragma once

#include <windows.h>

#include <string>

// Brings an editor already showing path to the front (unless "EditOtherView"
// is on or Shift is held); otherwise runs the IDE's "EditText" tool on it. A
// tool result other than success is shown on the status line and fails.
bool openFileInIde(const std::string& path);

// Opens path as openFileInIde does and, when it opened, records it in the
// recent headers (which keep headers only).
bool openAndRecord(const std::string& path);

// An editor window has just been created: its file is recorded in the recent
// headers, unless another editor shows that file already (and "EditOtherView"
// is off and Shift is not held), which is then brought forward while the new
// view is closed.
void editorOpened(HWND editor);

// Activates the IDE's frame, as every command does before it opens something.
void activateIdeFrame();
