// The terminal's progress bar.
#include "cli/progress_bar.h"

#include <cstdio>

void ProgressBar::show(const std::string& label, uint64_t done, uint64_t total) {
  int percent = total == 0 || done >= total ? 100 : static_cast<int>(done * 100 / total);
  if (percent == lastPercent_ && label == lastLabel_) return;
  lastPercent_ = percent;
  lastLabel_ = label;
  int filled = percent * kWidth / 100;
  std::fprintf(stderr, "\r\033[K[%s%s] %3d%% %s", std::string(filled, '#').c_str(),
               std::string(kWidth - filled, ' ').c_str(), percent, label.c_str());
  std::fflush(stderr);
}

void ProgressBar::interrupt() {
  if (lastPercent_ < 0) return;
  std::fprintf(stderr, "\r\033[K");
  std::fflush(stderr);
  lastPercent_ = -1;
}
