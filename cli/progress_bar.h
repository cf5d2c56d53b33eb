// A one-line progress bar on standard error, for long work on a terminal.
#pragma once

#include <cstdint>
#include <string>

class ProgressBar {
 public:
  static constexpr int kWidth = 40;

  // Redraws only when the percentage or the label changes.
  void show(const std::string& label, uint64_t done, uint64_t total);
  // Clears the line for other output; the next show draws the bar again.
  void interrupt();
  ~ProgressBar() { interrupt(); }

 private:
  int lastPercent_ = -1;
  std::string lastLabel_;
};
