// The editor page's bindings over the editor page presenter.
#include "navigation/editor_option_page.h"

std::vector<PageControl> EditorOptionPage::controls() {
  using H = EditorPagePresenter;
  std::vector<PageControl> bound = {
      checkControl(idOf(kEditorEnabled), H::hint(kEditorEnabled), &presenter_.enabled),
      checkControl(idOf(kEditorSorted), H::hint(kEditorSorted), &presenter_.sorted),
      checkControl(idOf(kEditorSaveBuffer), H::hint(kEditorSaveBuffer), &presenter_.saveBuffer),
      numberControl(idOf(kEditorSize), H::hint(kEditorSize), &presenter_.size),
      textControl(idOf(kEditorFunctionMask), H::hint(kEditorFunctionMask), &presenter_.functionMask),
      textControl(idOf(kEditorIncludeMask), H::hint(kEditorIncludeMask), &presenter_.includeMask),
      checkControl(idOf(kEditorRecurse), H::hint(kEditorRecurse), &presenter_.recurse),
      radioControl(idOf(kEditorLeftSide), H::hint(kEditorLeftSide), &side_, 1),
      radioControl(idOf(kEditorRightSide), H::hint(kEditorRightSide), &side_, 0),
  };
  for (int key = 0; key < 4; ++key) {
    const auto control = static_cast<EditorPageControl>(kEditorKeyFunction + key);
    bound.push_back(keyControl(idOf(control), H::hint(control), &presenter_.keyTexts[static_cast<size_t>(key)]));
  }
  return bound;
}

void EditorOptionPage::show() {
  presenter_.show();
  side_ = presenter_.leftSide ? 1 : 0;
  repaint_ = false;
}

void EditorOptionPage::changed(int32_t) {
  presenter_.leftSide = side_ == 1;
  modified = true;
}

void EditorOptionPage::keyCaptured(int32_t id, uint32_t code, const std::string& text) {
  const int32_t key = id - idOf(kEditorKeyFunction);
  if (key < 0 || key > 3) return;
  presenter_.setKey(static_cast<QuickCommand>(key), static_cast<uint16_t>(code), text);
  modified = true;
}

void EditorOptionPage::store() {
  repaint_ = presenter_.store();
  menus_.write();
  quickFind_.write();
}
