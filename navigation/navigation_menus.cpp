// Building the navigation popups; the hosts turn them into real menus.
#include "navigation/navigation_menus.h"

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
  for (int32_t i = 0; i < functions.count(); ++i) {
    const Fnc& entry = *functions[i];
    if (submenuOpen && entry.className() != previous->className()) closeSubmenu();
    MenuItem item = MenuItem::command(kFirstFunctionId + static_cast<uint32_t>(i), entry.name());
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
  return menu;
}

MenuModel includesMenu(const Tableau<String>& includes) {
  MenuModel menu;
  for (int32_t i = 0; i < includes.count(); ++i)
    menu.items.push_back(MenuItem::command(kFirstIncludeId + static_cast<uint32_t>(i), includes[i]->str()));
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
