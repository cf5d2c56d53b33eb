// The editor options page's fields, check and storing.
#include "navigation/editor_page.h"

#include "foundation/alert.h"

std::string EditorPagePresenter::hint(int control) {
  static const char* const kHints[kEditorControlCount] = {
      "Activate function/class menu on right click in the editor title bar",
      "Sort function/class reference",
      "Save buffer on menu popup",
      "Set size of one column in the editor menu",
      "Set filter for source research",
      "Set filter for include research",
      "Set option for recurse research",
      "Put buttons at the left side of the title bar",
      "Put buttons at the right side of the title bar",
      "Set shortkey for \"Find as function\"",
      "Set shortkey for \"Find as method\"",
      "Set shortkey for \"Find as class\"",
      "Set shortkey for \"Cross reference\"",
  };
  return control >= 0 && control < kEditorControlCount ? kHints[control] : std::string();
}

void EditorPagePresenter::show() {
  enabled = menus_.enabled;
  sorted = menus_.sorted;
  size = menus_.size;
  functionMask = quickFind_.functionMask;
  includeMask = quickFind_.includeMask;
  recurse = quickFind_.recurse;
  leftSide = quickFind_.leftSide;
  keys = quickFind_.keys;
  keyTexts = quickFind_.keyTexts;
}

void EditorPagePresenter::setKey(QuickCommand command, uint16_t keyCode, const std::string& text) {
  keys[command] = keyCode;
  keyTexts[command] = text.substr(0, kKeyTextLimit);
}

bool EditorPagePresenter::check() const {
  if (size >= 10 && size <= 99) return true;
  alert("Menu size must be between 10 and 99.", "Kesto Addon error", kAlertIconExclamation);
  return false;
}

bool EditorPagePresenter::store() {
  const bool repaint = enabled != menus_.enabled || (enabled && leftSide != quickFind_.leftSide);
  menus_.enabled = enabled;
  menus_.sorted = sorted;
  menus_.size = size;
  quickFind_.functionMask = functionMask;
  quickFind_.includeMask = includeMask;
  quickFind_.recurse = recurse;
  quickFind_.leftSide = leftSide;
  quickFind_.keys = keys;
  quickFind_.keyTexts = keyTexts;
  return repaint;
}
