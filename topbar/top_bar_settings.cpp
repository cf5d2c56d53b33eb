// Reading and writing the "TopBar" section.
#include "topbar/top_bar_settings.h"

#include "foundation/settings.h"

namespace {

constexpr const char* kSection = "TopBar";

// Each field with its key, in the order the add-on writes them.
struct Field {
  const char* key;
  int32_t TopBarSettings::*value;
};
constexpr Field kFields[] = {
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
  for (const Field& field : kFields) bar.*field.value = settings().readInteger(kSection, field.key, bar.*field.value);
  return bar;
}

void TopBarSettings::write() const {
  for (const Field& field : kFields) settings().writeInteger(kSection, field.key, this->*field.value);
}
