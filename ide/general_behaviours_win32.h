// The conveniences around the IDE's own windows: clearing and closing them
// while a Make runs and putting them back after it, the project window at
// opening, and the auto-save of modified editors.
#pragma once

#include <windows.h>

#include "project/general_options.h"

// The bar's one-second timer, which drives the auto-save.
constexpr UINT_PTR kBarTimer = 1;

class GeneralBehaviours {
 public:
  // Reads the "General" options; writes them back when destroyed. With "Unic"
  // on and another IDE running, shows that IDE and ends this process.
  GeneralBehaviours();
  ~GeneralBehaviours() { options.write(); }
  GeneralBehaviours(const GeneralBehaviours&) = delete;
  GeneralBehaviours& operator=(const GeneralBehaviours&) = delete;

  GeneralOptions options;

  // Clear, close and minimise, each as its option says.
  void makeStarted();
  // Puts back what makeStarted closed or minimised.
  void makeEnded();
  // The project window, when asked for; the auto-save count restarts.
  void projectOpened();
  // One second of the bar's timer: saves the modified editors once a period.
  void timerTick(bool projectOpen);
  void resetAutoSave() { countdown_.reset(); }

 private:
  RECT messageRect_{};
  RECT projectRect_{};
  HWND closedMessages_ = nullptr;
  HWND closedProject_ = nullptr;
  HWND minimisedStatus_ = nullptr;
  AutoSaveCountdown countdown_;
};
