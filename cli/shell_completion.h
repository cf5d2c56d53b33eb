// Completion scripts of bash, zsh and fish for kesto, made from its command reference.
#pragma once

#include <string>
#include <vector>

#include "cli/command_reference.h"

// The shells a script is written for: "bash", "zsh", "fish".
const std::vector<std::string>& completionShells();

// The script for shell, one of completionShells(); "" for another name.
std::string completionScript(const CommandReference& root, const std::string& shell);
