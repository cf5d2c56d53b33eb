// Building and tracking Win32 menus from menu models.
#include "win32/menu_model_win32.h"

namespace {

bool appendItems(HMENU menu, const std::vector<MenuItem>& items) {
  for (const MenuItem& item : items) {
    UINT flags = item.columnBreak ? MF_MENUBARBREAK : 0;
    if (item.checked) flags |= MF_CHECKED;
    if (item.grayed) flags |= MF_GRAYED;
    bool appended = false;
    switch (item.kind) {
      case MenuItem::Kind::Separator:
        appended = AppendMenuA(menu, flags | MF_SEPARATOR, 0, nullptr);
        break;
      case MenuItem::Kind::Command:
        appended = AppendMenuA(menu, flags | MF_STRING, item.id, item.text.c_str());
        break;
      case MenuItem::Kind::Popup: {
        OwnedMenu submenu(CreatePopupMenu());
        if (!submenu.get() || !appendItems(submenu.get(), item.children)) return false;
        // Once appended, the submenu belongs to its parent.
        appended = AppendMenuA(menu, flags | MF_POPUP, reinterpret_cast<UINT_PTR>(submenu.get()), item.text.c_str());
        if (appended) submenu.release();
        break;
      }
    }
    if (!appended) return false;
  }
  return true;
}

}  // namespace

OwnedMenu buildPopupMenu(const MenuModel& model) {
  OwnedMenu menu(CreatePopupMenu());
  if (menu.get() && !appendItems(menu.get(), model.items)) return OwnedMenu();
  return menu;
}

OwnedMenu buildMenuBar(const MenuModel& model) {
  OwnedMenu menu(CreateMenu());
  if (menu.get() && !appendItems(menu.get(), model.items)) return OwnedMenu();
  return menu;
}

bool replaceMenuItems(HMENU menu, const MenuModel& model) {
  for (int count = GetMenuItemCount(menu); count > 0; --count) DeleteMenu(menu, 0, MF_BYPOSITION);
  return appendItems(menu, model.items);
}

bool trackPopupMenu(const MenuModel& model, int x, int y, HWND owner) {
  OwnedMenu menu = buildPopupMenu(model);
  if (!menu.get()) return false;
  TrackPopupMenu(menu.get(), TPM_LEFTALIGN | TPM_LEFTBUTTON, x, y, 0, owner, nullptr);
  return true;
}
