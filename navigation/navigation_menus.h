// The navigation popups as menu models: functions, includes, QuickFind,
// method results and "Edit Documentation".
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>

#include "foundation/command_ranges.h"
#include "foundation/kstring.h"
#include "foundation/menu_model.h"
#include "foundation/tableau.h"
#include "navigation/function_scan.h"

constexpr uint32_t kFindFunctionId = 190;
constexpr uint32_t kFindMethodId = 191;
constexpr uint32_t kFindClassId = 192;
constexpr uint32_t kCrossReferenceId = 193;
constexpr uint32_t kEditDocumentationId = 177;
constexpr uint32_t kMethodResultsId = 184;

// Each popup below numbers at most as many entries as its identifier range
// holds, then counts the rest with MenuItem::more at the end of its main popup.
//
// Free functions in the main popup, each run of adjacent methods of one class
// in a submenu titled by the class; item i is 1000 + i. A popup starts a new
// column after every columnHeight items (never when columnHeight is 0).
MenuModel functionsMenu(const Tableau<Fnc>& functions, int32_t columnHeight);

// Item i is 700 + i, in one column.
MenuModel includesMenu(const Tableau<String>& includes);

// The four QuickFind commands; keys[i] != 0 adds a tab and keyTexts[i] to item i
// (function, method, class, cross reference).
MenuModel quickFindMenu(const std::array<uint16_t, 4>& keys, const std::array<std::string, 4>& keyTexts);

MenuModel editDocumentationMenu();

// Item i is 800 + i with the text of result i.
template <typename Results>
MenuModel resultsMenu(const Results& results) {
  MenuModel menu;
  const int32_t shown = std::min(results.count(), kQuickFindResultCommands.size());
  for (int32_t i = 0; i < shown; ++i)
    menu.items.push_back(MenuItem::command(kQuickFindResultCommands.id(i), results[i]->text()));
  if (shown < results.count()) menu.items.push_back(MenuItem::more(results.count() - shown));
  return menu;
}
