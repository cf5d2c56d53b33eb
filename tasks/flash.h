// The flash report's once-a-day rule, its day marker and the window's state.
#pragma once

#include <string>

#include "tasks/task_list.h"

// Today's UTC date in the user's short-date format: the day the marker holds.
std::string flashDay();

// False when AutoFlash is off; otherwise true unless the first word of the
// marker file is today's flash day.
bool shouldFlashAtProjectOpen(const TaskList& tasks, const std::string& markerPath);

// Writes today's flash day and a line end; a failure is ignored, as a marker
// that cannot be written only lets the automatic flash run again.
void writeFlashMarker(const std::string& markerPath);

// "Flash : " and today's UTC date in the user's long-date format, at most 70 characters.
std::string flashTitle();

// The Flash window as the feature keeps it: at most one, whose text a second
// showing replaces. The host creates the window when show returns true.
class FlashWindow {
 public:
  // Writes the marker, then keeps the text. True when the window must be
  // created, false when the open one only takes the new text.
  bool show(const std::string& markerPath, const std::string& text);
  void closed() { open_ = false; }
  bool isOpen() const { return open_; }
  const std::string& text() const { return text_; }

 private:
  bool open_ = false;
  std::string text_;
};

// The report of the automatic flash (command 172): empty when no task is
// current, and then nothing is shown and no marker written.
std::string automaticFlashText(TaskList& tasks);
// The report of the flash on demand (command 173), "No task today !" included.
std::string flashOnDemandText(TaskList& tasks);
