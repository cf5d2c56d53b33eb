// The "General" section, the auto-save countdown and the period check.
#include "project/general_options.h"

#include "foundation/alert.h"
#include "foundation/settings.h"

namespace {

constexpr const char* kSection = "General";

constexpr IntegerSetting<GeneralOptions> kFields[] = {
    {"ClearOnMake", &GeneralOptions::clearOnMake},
    {"CloseOnMake", &GeneralOptions::closeOnMake},
    {"CloseProjectOnMake", &GeneralOptions::closeProjectOnMake},
    {"IconizeStatusOnMake", &GeneralOptions::iconizeStatusOnMake},
    {"ViewOnOpen", &GeneralOptions::viewOnOpen},
    {"TimerSave", &GeneralOptions::timerSave},
    {"TimerCount", &GeneralOptions::timerCount},
    {"Unic", &GeneralOptions::unic},
};

}  // namespace

GeneralOptions GeneralOptions::read() {
  GeneralOptions options;
  readIntegerSettings(kSection, kFields, &options);
  return options;
}

void GeneralOptions::write() const {
  writeIntegerSettings(kSection, kFields, *this);
}

bool AutoSaveCountdown::tick(const GeneralOptions& options) {
  if (!options.timerSave) return false;
  if (++ticks_ < options.timerCount * 60) return false;
  ticks_ = 0;
  return true;
}

std::string autoSaveStatusText(int32_t timerCount, const std::string& savedNames) {
  return "Auto-save (" + std::to_string(timerCount) + " min) : " + savedNames + ".";
}

bool checkAutoSavePeriod(int32_t minutes) {
  if (minutes > 0 && minutes < 61) return true;
  alert("Timer size must be between 0 and 60 min.", "Kesto Addon error", kAlertIconHand);
  return false;
}
