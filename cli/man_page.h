// kesto.1: the manual page, in man's roff, made from the command reference.
#pragma once

#include <string>

#include "cli/command_reference.h"

std::string manPage(const CommandReference& root, const std::string& version);
