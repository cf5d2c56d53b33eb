// An OS layer with a fixed clock and a chosen short-date order, for task tests.
#pragma once

#include <cstdio>
#include <string>

#include "support/fault_os.h"

inline SystemTime makeDate(uint16_t year, uint16_t month, uint16_t day, uint16_t hour = 0) {
  SystemTime date;
  date.year = year;
  date.month = month;
  date.day = day;
  date.hour = hour;
  return date;
}

class ClockOs : public FaultOs {
 public:
  SystemTime local = makeDate(1996, 5, 15, 10);
  SystemTime utc = makeDate(1996, 5, 15, 8);
  bool dayFirst = false;

  SystemTime localTime() override { return local; }
  SystemTime systemTime() override { return utc; }
  std::string formatDate(const SystemTime& d, DateForm form, LocaleChoice) override {
    char text[64];
    if (form == DateForm::Long)
      std::snprintf(text, sizeof text, "long %u-%u-%u", d.year, d.month, d.day);
    else if (dayFirst)
      std::snprintf(text, sizeof text, "%u/%u/%u", d.day, d.month, d.year);
    else
      std::snprintf(text, sizeof text, "%u/%u/%u", d.month, d.day, d.year);
    return text;
  }
};
