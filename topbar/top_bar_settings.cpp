// Reading and writing the "TopBar" section.
#include "topbar/top_bar_settings.h"

#include "foundation/settings.h"

namespace {

constexpr const char* kSection = "TopBar";

// Each field with its key, in the order the add-on writes them.
constexpr IntegerSetting<TopBarSettings> kFields[] = {
    {"Enabled", &TopBarSettings::enabled},         {"HideWithBCW", &TopBarSettings::hideWithIde},
    {"HideWithView", &TopBarSettings::hideWithView}, {"AlwaysOnTop", &TopBarSettings::alwaysOnTop},
    {"EditOtherView", &TopBarSettings::editOtherView}, {"LeftMargin", &TopBarSettings::leftMargin},
    {"RightMargin", &TopBarSettings::rightMargin},   {"MenuSize", &TopBarSettings::menuSize},
    {"Hierarchical", &TopBarSettings::construction},
};

}  // namespace

TopBarSettings TopBarSettings::read(bool newShell) {
  TopBarSettings bar;
  bar.newShell = newShell;
  bar.leftMargin = newShell ? -1 : 17;
  bar.rightMargin = newShell ? 58 : 37;
  readIntegerSettings(kSection, kFields, &bar);
  return bar;
}

void TopBarSettings::write() const {
  writeIntegerSettings(kSection, kFields, *this);
}
