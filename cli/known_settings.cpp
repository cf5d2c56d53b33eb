// The table of the settings the add-on and kesto read.
#include "cli/known_settings.h"

#include "cli/sendmail_transport.h"
#include "foundation/regedit_text.h"
#include "groupware/groupware_settings.h"
#include "html/html_settings.h"

const std::vector<KnownSetting>& knownSettings() {
  static const std::vector<KnownSetting> kSettings = {
      {"General", "ClearOnMake", true, "1"},
      {"General", "CloseOnMake", true, "1"},
      {"General", "CloseProjectOnMake", true, "1"},
      {"General", "IconizeStatusOnMake", true, "1"},
      {"General", "ViewOnOpen", true, "0"},
      {"General", "TimerSave", true, "1"},
      {"General", "TimerCount", true, "5"},
      {"General", "Unic", true, "1"},
      {"Menus", "Enabled", true, "1"},
      {"Menus", "Sorted", true, "1"},
      {"Menus", "Size", true, "50"},
      {"QuickFind", "FunctionMask", false, "*.cpp;*.cc;*.c"},
      {"QuickFind", "IncludeMask", false, "*.h;*.rh"},
      {"QuickFind", "Recurse", true, "1"},
      {"QuickFind", "LeftSide", true, "1"},
      {"QuickFind", "KeyFunction", true, "0"},
      {"QuickFind", "KeyMethod", true, "0"},
      {"QuickFind", "KeyClass", true, "0"},
      {"QuickFind", "KeyCross", true, "0"},
      {"QuickFind", "TxtFunction", false, "???"},
      {"QuickFind", "TxtMethod", false, "???"},
      {"QuickFind", "TxtClass", false, "???"},
      {"QuickFind", "TxtCross", false, "???"},
      {"TopBar", "Enabled", true, "1"},
      {"TopBar", "HideWithBCW", true, "1"},
      {"TopBar", "HideWithView", true, "0"},
      {"TopBar", "AlwaysOnTop", true, "0"},
      {"TopBar", "EditOtherView", true, "0"},
      {"TopBar", "LeftMargin", true, "-1"},
      {"TopBar", "RightMargin", true, "58"},
      {"TopBar", "MenuSize", true, "50"},
      {"TopBar", "Hierarchical", true, "0"},
      {"TopBar", "MaxIDE", true, "10"},
      {"TopBar", "MaxINC", true, "50"},
      {"Completion", "Enabled", true, "1"},
      {"Completion", "KeyCode", true, "222"},
      {"Completion", "TextCode", false, "???"},
      {"Mail", "Control", true, "0"},
      {"Mail", "Sendmail", false, kSendmailDefault},
      {"Tasks", "FlashToDo", true, "1"},
      {"Tasks", "FlashCoded", true, "1"},
      {"Tasks", "FlashTested", true, "1"},
      {"Tasks", "FlashEnded", true, "0"},
      {"Tasks", "MainOn", true, "1"},
      {"Tasks", "KeyIsDelivery", true, "1"},
      {"Tasks", "EndedReadOnly", true, "1"},
      {"Tasks", "AutoFlash", true, "1"},
      {"Tasks", "Types", false, "Design;Evolution;Bug;Documentation"},
      {"Groupware", "Enabled", true, "1"},
      {"Groupware", "MailOnSend", true, "1"},
      {"Groupware", "MailOnGet", true, "0"},
      {"Groupware", "Filters", false, GroupwareSettings::kDefaultFilters},
      {"HTML", "Filters", false, HtmlSettings::kDefaultFilters},
      {"Make", "BuildNumber", true, "0"},
  };
  return kSettings;
}

const KnownSetting* findKnownSetting(const std::string& section, const std::string& name) {
  for (const KnownSetting& setting : knownSettings())
    if (foldedCase(setting.section) == foldedCase(section) && foldedCase(setting.name) == foldedCase(name))
      return &setting;
  return nullptr;
}
