// The chapter's page table and its first page.
#include "project/option_chapter.h"

const OptionPageEntry kOptionPages[kOptionPageCount] = {
    {"Kesto AddOn for Borland C++", "Set general Kesto AddOn options", 0},
    {"General options", "Set general options", 10},
    {"Editor menu", "Set Top Editor Menu options", 12},
    {"Top screen bar", "Set top screen bar options", 16},
    {"Keyword completion", "Set keyword completion options", 14},
    {"Project delivery", "Set project delivery options", 0},
    {"Mail", "set mail options", 0},
    {"Task management", "set task management options", 0},
    {"Groupware", "Set groupware options", 0},
    {"HTML generation", "Set HTML generation options", 0},
    {"Kesto Windows", "Set Kesto Windows options", 0},
};

std::vector<PageControl> FirstOptionPage::controls() {
  return {staticControl(kVersionTextControl, &version_), staticControl(kSystemTextControl, &system_)};
}
