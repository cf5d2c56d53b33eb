// Equality and the text form of menu models.
#include "foundation/menu_model.h"

namespace {

void describeItems(const std::vector<MenuItem>& items, const std::string& indent, std::string* out) {
  for (const MenuItem& item : items) {
    if (item.columnBreak) *out += indent + "--\n";
    switch (item.kind) {
      case MenuItem::Kind::Command:
        *out += indent + std::to_string(item.id) + " " + item.text + "\n";
        break;
      case MenuItem::Kind::Separator:
        *out += indent + "-\n";
        break;
      case MenuItem::Kind::Popup:
        *out += indent + item.text + "\n";
        describeItems(item.children, indent + "  ", out);
        break;
    }
  }
}

}  // namespace

bool operator==(const MenuItem& a, const MenuItem& b) {
  return a.kind == b.kind && a.id == b.id && a.text == b.text && a.columnBreak == b.columnBreak &&
         a.checked == b.checked && a.grayed == b.grayed && a.children == b.children;
}

std::string describeMenu(const MenuModel& menu) {
  std::string out;
  describeItems(menu.items, "", &out);
  return out;
}
