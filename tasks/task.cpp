// The task record, its defaults and its row text.
#include "tasks/task.h"

#include "foundation/binary_io.h"

namespace {

const char* const kLowerWords[kTaskStateCount] = {"to do", "coded", "tested", "ended"};
const char* const kUpperWords[kTaskStateCount] = {"TO DO", "CODED", "TESTED", "ENDED"};

bool writeDate(ByteStream& file, const SystemTime& date) {
  const uint16_t fields[] = {date.year,   date.month,  date.dayOfWeek, date.day,
                             date.hour,   date.minute, date.second,    date.milliseconds};
  for (uint16_t field : fields)
    if (!writeU16(file, field)) return false;
  return true;
}

bool readDate(ByteStream& file, SystemTime* date) {
  uint16_t* fields[] = {&date->year, &date->month,  &date->dayOfWeek, &date->day,
                        &date->hour, &date->minute, &date->second,    &date->milliseconds};
  for (uint16_t* field : fields)
    if (!readU16(file, field)) return false;
  return true;
}

}  // namespace

const char* stateWord(int32_t state, bool upperCase) {
  if (state < 0 || state >= kTaskStateCount) return "?";
  return upperCase ? kUpperWords[state] : kLowerWords[state];
}

std::string shortDate(const SystemTime& date) { return os().formatDate(date, DateForm::Short, LocaleChoice::User); }

Task::Task() : name("New task"), type("Bug"), start(os().localTime()), end(start), text("Something to do") {}

void Task::appendRowText(std::string* out) const {
  *out += name.str() + '\t' + type.str() + '\t' + stateWord(state, isPublic != 0) + '\t' + std::to_string(priority) +
          '\t' + shortDate(start) + '\t' + shortDate(end);
}

int Task::fWrite(ByteStream& file) {
  bool ok = writeI32(file, 0) && name.fWrite(file) && type.fWrite(file) && writeI32(file, state) &&
            writeI32(file, isPublic) && writeI32(file, isPublic) && writeI32(file, priority) &&
            writeDate(file, start) && writeDate(file, end) && text.fWrite(file);
  return ok ? 1 : 0;
}

int Task::fRead(ByteStream& file) {
  int32_t version = 0;
  if (!readI32(file, &version) || version != 0) return 0;
  // The public flag is stored twice; the second copy is the one that counts.
  bool ok = name.fRead(file) && type.fRead(file) && readI32(file, &state) && readI32(file, &isPublic) &&
            readI32(file, &isPublic) && readI32(file, &priority) && readDate(file, &start) && readDate(file, &end) &&
            text.fRead(file);
  return ok ? 1 : 0;
}
