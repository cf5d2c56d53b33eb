// TaskList: the tasks of the open project, their filtered and sorted view, the
// "Tasks" settings and the task file.
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

#include "foundation/kstring.h"
#include "foundation/tableau.h"
#include "tasks/task.h"

class TaskList : public Ensemble<Task> {
 public:
  static constexpr int32_t kFileVersion = 0;

  // Reads the "Tasks" settings.
  TaskList();

  // The tasks shown, filtered by the show flags and sorted; owns nothing.
  Tableau<Task> view;
  int32_t showFlags[kTaskStateCount] = {1, 1, 1, 1};
  int32_t reverse = 0;
  int32_t sortKey = 1;  // by start date
  String filePath;

  // From the "Tasks" settings.
  int32_t flashFlags[kTaskStateCount] = {1, 1, 1, 0};  // FlashToDo, FlashCoded, FlashTested, FlashEnded
  int32_t mainOn = 1;
  int32_t keyIsDelivery = 1;
  int32_t endedReadOnly = 1;
  int32_t autoFlash = 1;
  Tableau<String> types;

  void loadSettings();
  void saveSettings();

  // Reads the task file. A file whose header is bad leaves the list as it is;
  // a bad record ends the reading and keeps the tasks read before it. Rebuilds
  // the view after a read. A missing or empty file is no damage and reads nothing. False, with
  // the file named in *err, when it exists and cannot be read whole: it is then
  // damaged, and save() refuses to write over it, so that a repair can still
  // recover what lies after the damage.
  bool load(std::string* err = nullptr);
  // Writes the task file through a temporary file renamed into place, under
  // the file's lock. False with the reason in *err when it cannot be written,
  // or when the file read was damaged; the old file then stays.
  bool save(std::string* err);
  // The file form on an open stream (load and save use them; so does the fuzz target).
  bool readFrom(ByteStream& file);
  bool writeTo(ByteStream& file);

  void rebuildView();
  // Position of a task in the view; kNotFound when it is not shown.
  int32_t viewIndexOf(const Task* task) const { return view.indexOf(task); }

  // Appends the report of the tasks current today (UTC) in the flash states;
  // returns 1 when at least one task was written, 0 otherwise.
  int todayReport(String& out);

  // Number of owned tasks in a state, hidden ones included.
  int32_t countInState(int32_t state) const;
  std::vector<std::string> typeNames() const;
  void setTypes(const std::vector<std::string>& names);

 private:
  bool damagedFile_ = false;  // the file last loaded could not be read whole
};

// The type list as the options page edits it: names joined by ";", and split
// again keeping empty names between two ";" but not after the last one.
std::string joinTypes(const std::vector<std::string>& names);
std::vector<std::string> splitTypes(const std::string& text);

// True when a comes on or before b by month and day; years are ignored.
bool dayNotAfter(const SystemTime& a, const SystemTime& b);
