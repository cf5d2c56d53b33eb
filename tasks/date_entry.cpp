// Reading a typed date the way the task dialog reads it.
#include "tasks/date_entry.h"

#include <cstdio>

bool userDatesPutDayFirst() {
  SystemTime sample;
  sample.year = 1996;
  sample.month = 11;
  sample.day = 22;
  sample.dayOfWeek = 5;
  std::string text = os().formatDate(sample, DateForm::Short, LocaleChoice::User);
  return !text.empty() && text[0] == '2';
}

SystemTime readUserDate(const std::string& text) {
  SystemTime date = os().localTime();
  bool dayFirst = userDatesPutDayFirst();
  int first = dayFirst ? date.day : date.month;
  int second = dayFirst ? date.month : date.day;
  int year = date.year;
  std::string field = text.substr(0, 79);
  int typed = std::sscanf(field.c_str(), "%d/%d/%d", &first, &second, &year);
  date.day = static_cast<uint16_t>(dayFirst ? first : second);
  date.month = static_cast<uint16_t>(dayFirst ? second : first);
  // Two-digit years on purpose: 95 and 1995 both give 1995, 2001 gives 1901.
  // A year left out keeps today's.
  if (typed >= 3) date.year = static_cast<uint16_t>(1900 + year % 100);
  return date;
}
