// The "Quick add node..." dialog: a modal view over the quick add presenter.
#pragma once

#include <windows.h>

#include "project/host.h"

// Runs the dialog owned by owner for the node current of the host's tree top
// (as projectRoot() gave it). Returns the new node, or null when the dialog
// was cancelled or the project refused the node.
const ProjectNode* runQuickAddDialog(HINSTANCE instance, HWND owner, Host& host, const ProjectNode& top,
                                     const ProjectNode& current);
