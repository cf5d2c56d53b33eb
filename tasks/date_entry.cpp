// Reading a typed date the way the task dialog reads it.
#include "tasks/date_entry.h"

#include <cstdio>
#include <vector>

namespace {

// The fields of text between separators; each must be 1 to 4 decimal digits.
bool numberFields(const std::string& text, char separator, std::vector<std::string>* fields) {
  fields->assign(1, std::string());
  for (char c : text) {
    if (c == separator) {
      fields->emplace_back();
    } else if (c >= '0' && c <= '9' && fields->back().size() < 4) {
      fields->back() += c;
    } else {
      return false;
    }
  }
  for (const std::string& field : *fields)
    if (field.empty()) return false;
  return true;
}

// The value of a field that numberFields checked.
int decimal(const std::string& digits) {
  int value = 0;
  for (char c : digits) value = value * 10 + (c - '0');
  return value;
}

int daysInMonth(int year, int month) {
  static const int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
  return month == 2 && leap ? 29 : kDays[month - 1];
}

}  // namespace

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

CheckedDate readCheckedDate(const std::string& text, bool dayFirst, SystemTime* date) {
  std::vector<std::string> fields;
  bool iso = text.find('-') != std::string::npos;
  if (!numberFields(text, iso ? '-' : '/', &fields) || fields.size() != 3) return CheckedDate::Refused;
  const std::string& yearText = iso ? fields[0] : fields[2];
  const std::string& dayText = iso ? fields[2] : fields[dayFirst ? 0 : 1];
  const std::string& monthText = iso ? fields[1] : fields[dayFirst ? 1 : 0];
  bool shortYear = yearText.size() <= 2 && !iso;
  if (dayText.size() > 2 || monthText.size() > 2 || (yearText.size() != 4 && !shortYear)) return CheckedDate::Refused;
  int year = decimal(yearText) + (shortYear ? 1900 : 0);
  int month = decimal(monthText);
  int day = decimal(dayText);
  if (year < 1601 || month < 1 || month > 12 || day < 1 || day > daysInMonth(year, month)) return CheckedDate::Refused;
  date->year = static_cast<uint16_t>(year);
  date->month = static_cast<uint16_t>(month);
  date->day = static_cast<uint16_t>(day);
  return shortYear ? CheckedDate::CenturyAdded : CheckedDate::AsWritten;
}
