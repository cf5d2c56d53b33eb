// The once-a-day flash: the marker file and the texts of the two flash commands.
#include "tasks/flash.h"

#include <cctype>

#include "foundation/os.h"

namespace {

// The first whitespace-separated word, as "%s" reads it.
std::string firstWord(const std::string& text) {
  size_t from = 0;
  while (from < text.size() && std::isspace(static_cast<unsigned char>(text[from]))) ++from;
  size_t to = from;
  while (to < text.size() && !std::isspace(static_cast<unsigned char>(text[to]))) ++to;
  return text.substr(from, to - from);
}

}  // namespace

std::string flashDay() { return os().formatDate(os().systemTime(), DateForm::Short, LocaleChoice::User); }

bool shouldFlashAtProjectOpen(const TaskList& tasks, const std::string& markerPath) {
  if (!tasks.autoFlash) return false;
  std::string marker;
  if (!os().readTextFile(markerPath, &marker, nullptr)) return true;
  return firstWord(marker) != flashDay();
}

void writeFlashMarker(const std::string& markerPath) { os().writeTextFileAtomic(markerPath, flashDay() + "\n", nullptr); }

std::string flashTitle() {
  std::string date = os().formatDate(os().systemTime(), DateForm::Long, LocaleChoice::User);
  return "Flash : " + date.substr(0, 70);
}

bool FlashWindow::show(const std::string& markerPath, const std::string& text) {
  writeFlashMarker(markerPath);
  text_ = text;
  if (open_) return false;
  open_ = true;
  return true;
}

std::string automaticFlashText(TaskList& tasks) {
  String report;
  return tasks.todayReport(report) ? report.str() : std::string();
}

std::string flashOnDemandText(TaskList& tasks) {
  String report;
  tasks.todayReport(report);
  return report.str();
}
