// The editor page of the options chapter: the editor page presenter's fields
// bound to the dialog's controls, and the settings written when it is stored.
#pragma once

#include "project/option_page.h"
#include "navigation/editor_page.h"

class EditorOptionPage : public OptionPage {
 public:
  // Control ids are kFirstControl plus the presenter's control index.
  static constexpr int32_t kFirstControl = 1010;

  EditorOptionPage(MenuSettings& menus, QuickFindSettings& quickFind)
      : menus_(menus), quickFind_(quickFind), presenter_(menus, quickFind) {}

  std::vector<PageControl> controls() override;
  void show() override;
  void changed(int32_t id) override;
  void keyCaptured(int32_t id, uint32_t code, const std::string& text) override;
  bool check() override { return presenter_.check(); }
  // Writes both settings sections; repaintNeeded() then tells whether the editors' frames must be redrawn.
  void store() override;
  bool repaintNeeded() const { return repaint_; }

 private:
  static int32_t idOf(EditorPageControl control) { return kFirstControl + control; }

  MenuSettings& menus_;
  QuickFindSettings& quickFind_;
  EditorPagePresenter presenter_;
  int32_t side_ = 1;  // the radio pair's value: 1 left, 0 right
  bool repaint_ = false;
};
