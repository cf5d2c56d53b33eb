// Integer options and arguments of the commands: decimal digits only, in range.
#pragma once

#include <CLI/CLI.hpp>

#include <cstdint>
#include <string>

// Decimal digits, perhaps after a minus sign, of a number that an int32_t holds.
bool isDecimalInt32(const std::string& text);

// Adds an option or positional argument (as CLI11 names them) that takes a
// decimal integer from minimum up to the largest int32_t. Left to CLI11 alone,
// "010" would be eight and "0x10" sixteen.
CLI::Option* addIntegerOption(CLI::App& command, const std::string& name, int32_t& value, const std::string& help,
                              int32_t minimum);
