// Reading and writing the "QuickFind" section.
#include "navigation/quickfind_settings.h"

#include "foundation/settings.h"

namespace {

constexpr const char* kSection = "QuickFind";
const char* const kKeyNames[4] = {"KeyFunction", "KeyMethod", "KeyClass", "KeyCross"};
const char* const kTextNames[4] = {"TxtFunction", "TxtMethod", "TxtClass", "TxtCross"};

}  // namespace

QuickFindSettings QuickFindSettings::read() {
  QuickFindSettings values;
  SettingsStore& store = settings();
  store.readString(kSection, "FunctionMask", &values.functionMask, "*.cpp;*.cc;*.c");
  store.readString(kSection, "IncludeMask", &values.includeMask, "*.h;*.rh");
  values.recurse = store.readInteger(kSection, "Recurse", 1) != 0;
  values.leftSide = store.readInteger(kSection, "LeftSide", 1) != 0;
  for (size_t i = 0; i < 4; ++i) values.keys[i] = static_cast<uint16_t>(store.readInteger(kSection, kKeyNames[i], 0));
  for (size_t i = 0; i < 4; ++i) store.readString(kSection, kTextNames[i], &values.keyTexts[i], "???");
  return values;
}

void QuickFindSettings::write() const {
  SettingsStore& store = settings();
  store.writeString(kSection, "FunctionMask", functionMask);
  store.writeString(kSection, "IncludeMask", includeMask);
  for (size_t i = 0; i < 4; ++i) store.writeString(kSection, kTextNames[i], keyTexts[i]);
  store.writeInteger(kSection, "Recurse", recurse ? 1 : 0);
  store.writeInteger(kSection, "LeftSide", leftSide ? 1 : 0);
  for (size_t i = 0; i < 4; ++i) store.writeInteger(kSection, kKeyNames[i], keys[i]);
}
