// The general behaviours' options ("General") and their portable rules: the
// auto-save countdown and the General page's check.
#pragma once

#include <cstdint>
#include <string>

struct GeneralOptions {
  int32_t clearOnMake = 1;          // "ClearOnMake"
  int32_t closeOnMake = 1;          // "CloseOnMake": the message window
  int32_t closeProjectOnMake = 1;   // "CloseProjectOnMake"
  int32_t iconizeStatusOnMake = 1;  // "IconizeStatusOnMake"
  int32_t viewOnOpen = 0;           // "ViewOnOpen"
  int32_t timerSave = 1;            // "TimerSave"
  int32_t timerCount = 5;           // "TimerCount", minutes
  int32_t unic = 1;                 // "Unic": one IDE at a time

  static GeneralOptions read();
  void write() const;
};

// Counts the bar's one-second ticks towards the next auto-save.
class AutoSaveCountdown {
 public:
  // True on the tick that completes the period (TimerCount minutes), which
  // restarts the count; never while auto-save is off.
  bool tick(const GeneralOptions& options);
  // Opening a project and the IDE's own save command restart the count.
  void reset() { ticks_ = 0; }

 private:
  int32_t ticks_ = 0;
};

// "Auto-save (5 min) : a.cpp, b.h.", for the buffers just saved.
std::string autoSaveStatusText(int32_t timerCount, const std::string& savedNames);

// The General page's check: 0 < period < 61, else the box (owned by the page)
// and false; 0 is refused although the box names it.
bool checkAutoSavePeriod(int32_t minutes);
