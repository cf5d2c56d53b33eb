// Dates typed by the user, read in the order of the user's short-date format.
#pragma once

#include <string>

#include "foundation/os.h"

// True when the user's short dates put the day first (22 November 1996 starts with "2").
bool userDatesPutDayFirst();

// Reads "%d/%d/%d" from the first 79 characters: day and month in the user's
// order, then the year, stored as 1900 + year mod 100. Fields not typed, and
// the day of week and time of day, are those of the current local time. No
// range check: a month of 13 is stored as typed.
SystemTime readUserDate(const std::string& text);
