// The chapter's page table and its first page.
#include "ide/option_chapter.h"

const OptionPageEntry kOptionPages[kOptionPageCount] = {
    {"Kesto AddOn for Borland C++", "Set general Kesto AddOn options"},
    {"General options", "Set general options"},
    {"Editor menu", "Set Top Editor Menu options"},
    {"Top screen bar", "Set top screen bar options"},
    {"Keyword completion", "Set keyword completion options"},
    {"Project delivery", "Set project delivery options"},
    {"Mail", "set mail options"},
    {"Task management", "set task management options"},
    {"Groupware", "Set groupware options"},
    {"HTML generation", "Set HTML generation options"},
    {"Kesto Windows", "Set Kesto Windows options"},
};

std::vector<PageControl> FirstOptionPage::controls() {
  return {staticControl(kVersionTextControl, &version_), staticControl(kSystemTextControl, &system_)};
}
