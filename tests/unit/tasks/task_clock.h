// An OS layer with a fixed clock and a chosen short-date order, and a task maker, for task tests.
#pragma once

#include <cstdio>
#include <string>

#include "support/fault_os.h"
#include "tasks/task.h"

inline SystemTime makeDate(uint16_t year, uint16_t month, uint16_t day, uint16_t hour = 0) {
  SystemTime date;
  date.year = year;
  date.month = month;
  date.day = day;
  date.hour = hour;
  return date;
}

inline Task* makeTask(const char* name, int32_t state, int32_t isPublic = 0, int32_t priority = 10,
                      SystemTime start = makeDate(1996, 5, 1), SystemTime end = makeDate(1996, 5, 1)) {
  Task* task = new Task();
  task->name = name;
  task->state = state;
  task->isPublic = isPublic;
  task->priority = priority;
  task->start = start;
  task->end = end;
  task->text = std::string("about ") + name;
  return task;
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
    else
      std::snprintf(text, sizeof text, "%u/%u/%u", dayFirst ? d.day : d.month, dayFirst ? d.month : d.day, d.year);
    return text;
  }
};
