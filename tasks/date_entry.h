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

// How readCheckedDate took a date.
enum class CheckedDate {
  Refused,       // not a date, or a day that its month does not have
  AsWritten,     // the year was written in full
  CenturyAdded,  // a year of one or two digits, read as readUserDate reads it: 1900 + year
};

// A typed date read strictly, for a host that can refuse one: "YYYY-MM-DD", or
// "D/M/Y" with day and month in the order dayFirst gives. A four-digit year
// (1601 to 9999, as a SYSTEMTIME holds them) is taken as written. Only year,
// month and day of *date are set, and nothing when the date is refused.
CheckedDate readCheckedDate(const std::string& text, bool dayFirst, SystemTime* date);
