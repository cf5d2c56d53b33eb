// A portable popup menu: what the add-on turns into an HMENU and the CLI prints.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

struct MenuItem {
  enum class Kind { Command, Separator, Popup };

  Kind kind = Kind::Command;
  uint32_t id = 0;            // commands only
  std::string text;           // commands and popups
  bool columnBreak = false;   // starts a new column in its popup
  bool checked = false;
  bool grayed = false;
  std::vector<MenuItem> children;  // popups only

  static MenuItem command(uint32_t id, std::string text) {
    MenuItem item;
    item.id = id;
    item.text = std::move(text);
    return item;
  }
  static MenuItem separator() {
    MenuItem item;
    item.kind = Kind::Separator;
    return item;
  }
  static MenuItem popup(std::string text) {
    MenuItem item;
    item.kind = Kind::Popup;
    item.text = std::move(text);
    return item;
  }
  // The last item of a popup that stops at the end of its identifier range:
  // grayed, "... 31869 more" for the entries left out, and identifier 0, so
  // that it never arrives as a command.
  static MenuItem more(int32_t rest) {
    MenuItem item = command(0, "... " + std::to_string(rest) + " more");
    item.grayed = true;
    return item;
  }
};

struct MenuModel {
  std::vector<MenuItem> items;
};

bool operator==(const MenuItem& a, const MenuItem& b);
inline bool operator==(const MenuModel& a, const MenuModel& b) { return a.items == b.items; }

// One line per item, "ID TEXT"; a popup's title then its items indented by two
// blanks; "--" at an item's indentation just before an item that starts a new column.
std::string describeMenu(const MenuModel& menu);
