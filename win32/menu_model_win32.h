// The one road from a portable MenuModel to a Win32 menu.
#pragma once

#include <windows.h>

#include "foundation/menu_model.h"

// A menu destroyed with its owner (its submenus with it).
class OwnedMenu {
 public:
  explicit OwnedMenu(HMENU menu = nullptr) : menu_(menu) {}
  ~OwnedMenu() {
    if (menu_) DestroyMenu(menu_);
  }
  OwnedMenu(OwnedMenu&& other) noexcept : menu_(other.release()) {}
  OwnedMenu& operator=(OwnedMenu&& other) noexcept {
    if (this != &other) {
      if (menu_) DestroyMenu(menu_);
      menu_ = other.release();
    }
    return *this;
  }
  HMENU get() const { return menu_; }
  // Hands the menu over (to a window that takes it as its menu bar).
  HMENU release() {
    HMENU menu = menu_;
    menu_ = nullptr;
    return menu;
  }

 private:
  HMENU menu_;
};

// A popup menu holding the model's items; a null menu when the system refuses
// one. Popups become submenus, column breaks start a column with a bar.
OwnedMenu buildPopupMenu(const MenuModel& model);

// A menu bar holding the model's items (its popups become the bar's menus).
OwnedMenu buildMenuBar(const MenuModel& model);

// Empties an existing menu and fills it with the model's items. False when the
// system refused an item (the items before it stay).
bool replaceMenuItems(HMENU menu, const MenuModel& model);

// Shows the model as a popup at the screen point (x, y) and waits until it is
// closed; the chosen item's command arrives at owner as WM_COMMAND. False when
// the menu could not be built.
bool trackPopupMenu(const MenuModel& model, int x, int y, HWND owner);
