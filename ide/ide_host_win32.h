// The features' Host inside the IDE: each service mapped onto the IDE's interfaces and Win32.
#pragma once

#include "project/host.h"

// The add-on's one Host; it holds nothing beyond the last project tree it built.
Host& ideHost();

// Takes a node of the tree that ideHost().projectRoot() last returned out of
// the IDE's project; false when the IDE refused or the node is not of that tree.
bool removeIdeProjectNode(const ProjectNode& node);
