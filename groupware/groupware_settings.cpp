// Reading and writing the "Groupware" section.
#include "groupware/groupware_settings.h"

#include "foundation/settings.h"

namespace {

constexpr const char* kSection = "Groupware";

}  // namespace

void GroupwareSettings::load() {
  enabled = settings().readInteger(kSection, "Enabled", 1);
  mailOnSend = settings().readInteger(kSection, "MailOnSend", 1);
  mailOnGet = settings().readInteger(kSection, "MailOnGet", 0);
  std::string text;
  settings().readString(kSection, "Filters", &text, kDefaultFilters);
  filters = text;
}

void GroupwareSettings::save() const {
  settings().writeInteger(kSection, "Enabled", enabled);
  settings().writeInteger(kSection, "MailOnGet", mailOnGet);
  settings().writeInteger(kSection, "MailOnSend", mailOnSend);
  settings().writeString(kSection, "Filters", filters.str());
}
