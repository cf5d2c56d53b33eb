// Building the navigation popups; the hosts turn them into real menus.
#include "navigation/navigation_menus.h"

#include <algorithm>

namespace {

bool startsColumn(int32_t count, int32_t columnHeight) { return columnHeight != 0 && count != 0 && count % columnHeight == 0; }

}  // namespace

MenuModel functionsMenu(const Tableau<Fnc>& functions, int32_t columnHeight) {
  MenuModel menu;
  int32_t mainCount = 0;
  int32_t subCount = 0;
  MenuItem submenu;
  bool submenuOpen = false;
  const Fnc* previous = nullptr;
  auto closeSubmenu = [&] {
    submenu.text = previous->className();
    submenu.columnBreak = startsColumn(mainCount, columnHeight);
    menu.items.push_back(std::move(submenu));
    ++mainCount;
    submenuOpen = false;
  };
  const int32_t shown = std::min(functions.count(), kFunctionCommands.size());
  for (int32_t i = 0; i < shown; ++i) {
    const Fnc& entry = *functions[i];
    if (submenuOpen && entry.className() != previous->className()) closeSubmenu();
    MenuItem item = MenuItem::command(kFunctionCommands.id(i), entry.name());
    if (entry.isMethod()) {
      if (!submenuOpen) {
        submenu = MenuItem::popup("");
        submenuOpen = true;
        subCount = 0;
      }
      item.columnBreak = startsColumn(subCount, columnHeight);
      submenu.children.push_back(std::move(item));
      ++subCount;
    } else {
      item.columnBreak = startsColumn(mainCount, columnHeight);
      menu.items.push_back(std::move(item));
      ++mainCount;
    }
    previous = &entry;
  }
  if (submenuOpen) closeSubmenu();
  if (shown < functions.count()) {
    menu.items.push_back(MenuItem::more(functions.count() - shown));
    menu.items.back().columnBreak = startsColumn(mainCount, columnHeight);
  }
  return menu;
}

MenuModel includesMenu(const Tableau<String>& includes) {
  MenuModel menu;
  const int32_t shown = std::min(includes.count(), kIncludeCommands.size());
  for (int32_t i = 0; i < shown; ++i)
    menu.items.push_back(MenuItem::command(kIncludeCommands.id(i), includes[i]->str()));
  if (shown < includes.count()) menu.items.push_back(MenuItem::more(includes.count() - shown));
  return menu;
}

MenuModel quickFindMenu(const std::array<uint16_t, 4>& keys, const std::array<std::string, 4>& keyTexts) {
  static const char* const texts[4] = {"Find as function... ", "Find as method... ", "Find as class... ",
                                       "Cross reference... "};
  MenuModel menu;
  for (size_t i = 0; i < 4; ++i) {
    if (i == 3) menu.items.push_back(MenuItem::separator());
    std::string text = texts[i];
    if (keys[i] != 0) text += "\t" + keyTexts[i];
    menu.items.push_back(MenuItem::command(kFindFunctionId + static_cast<uint32_t>(i), text));
  }
  return menu;
}

MenuModel editDocumentationMenu() {
  MenuModel menu;
  menu.items.push_back(MenuItem::command(kEditDocumentationId, "Edit Documentation"));
  return menu;
}
