// Task: one work item of a project, with its binary record and its list-row text.
#pragma once

#include <cstdint>
#include <string>

#include "foundation/basic.h"
#include "foundation/kstring.h"
#include "foundation/os.h"

enum TaskState : int32_t { kToDo = 0, kCoded = 1, kTested = 2, kEnded = 3 };
constexpr int32_t kTaskStateCount = 4;

// "to do", "coded", "tested", "ended"; the upper-case forms mark public tasks.
// A state outside 0..3 (read from a damaged file) gives "?".
const char* stateWord(int32_t state, bool upperCase);

class Task : public Basic {
 public:
  // The defaults of a new task; both dates are the current local date and time.
  Task();

  String name;
  String type;
  int32_t state = kToDo;
  int32_t isPublic = 0;
  int32_t priority = 10;
  SystemTime start;
  SystemTime end;
  String text;  // lines separated by CR LF

  // name TAB type TAB state word TAB priority TAB start TAB end, dates in the
  // user's short-date format.
  void appendRowText(std::string* out) const;

  // The record: version 0, name, type, state, the public flag twice, priority,
  // both dates and the text.
  int fWrite(ByteStream& file) override;
  // 0 on a record version other than 0 or a record cut short; 1 otherwise.
  int fRead(ByteStream& file) override;
};

// The user's short date of a task date.
std::string shortDate(const SystemTime& date);
