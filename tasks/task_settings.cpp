// The "Tasks" settings section of the task list.
#include "foundation/settings.h"
#include "tasks/task_list.h"

namespace {

constexpr const char* kSection = "Tasks";
constexpr const char* kDefaultTypes = "Design;Evolution;Bug;Documentation";
// The type string is read into a buffer of this many characters, zero included.
constexpr size_t kTypesBuffer = 512;

const char* const kFlashKeys[kTaskStateCount] = {"FlashToDo", "FlashCoded", "FlashTested", "FlashEnded"};

}  // namespace

void TaskList::loadSettings() {
  const int32_t flashDefaults[kTaskStateCount] = {1, 1, 1, 0};
  for (int32_t i = 0; i < kTaskStateCount; ++i)
    flashFlags[i] = settings().readInteger(kSection, kFlashKeys[i], flashDefaults[i]);
  mainOn = settings().readInteger(kSection, "MainOn", 1);
  keyIsDelivery = settings().readInteger(kSection, "KeyIsDelivery", 1);
  endedReadOnly = settings().readInteger(kSection, "EndedReadOnly", 1);
  autoFlash = settings().readInteger(kSection, "AutoFlash", 1);
  std::string text;
  settings().readString(kSection, "Types", &text, kDefaultTypes);
  // A value too long for the buffer reads as missing.
  if (text.size() >= kTypesBuffer) text = kDefaultTypes;
  setTypes(splitTypes(text));
}

void TaskList::saveSettings() {
  for (int32_t i = 0; i < kTaskStateCount; ++i) settings().writeInteger(kSection, kFlashKeys[i], flashFlags[i]);
  settings().writeInteger(kSection, "MainOn", mainOn);
  settings().writeInteger(kSection, "KeyIsDelivery", keyIsDelivery);
  settings().writeInteger(kSection, "EndedReadOnly", endedReadOnly);
  settings().writeInteger(kSection, "AutoFlash", autoFlash);
  settings().writeString(kSection, "Types", joinTypes(typeNames()));
}

std::string joinTypes(const std::vector<std::string>& names) {
  std::string text;
  for (size_t i = 0; i < names.size(); ++i) text += (i ? ";" : "") + names[i];
  return text;
}

std::vector<std::string> splitTypes(const std::string& text) {
  std::vector<std::string> names;
  size_t from = 0;
  while (from < text.size()) {
    size_t cut = text.find(';', from);
    if (cut == std::string::npos) cut = text.size();
    names.push_back(text.substr(from, cut - from));
    from = cut + 1;
  }
  return names;
}
