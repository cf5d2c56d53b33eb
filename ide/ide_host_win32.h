// The features' Host inside the IDE: each service mapped onto the IDE's interfaces and Win32.
#pragma once

#include "ide/host.h"

// The add-on's one Host; it holds nothing beyond the last project tree it built.
Host& ideHost();
