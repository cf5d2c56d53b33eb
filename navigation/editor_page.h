// The editor options page as a presenter: the values its controls show, the
// check of the column size, and what storing them changes. The dialog only
// moves values between its controls and these fields.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "navigation/quickfind_settings.h"
#include "navigation/source_scanner.h"

// The page's controls, in the order of their hints.
enum EditorPageControl {
  kEditorEnabled,
  kEditorSorted,
  kEditorSaveBuffer,
  kEditorSize,
  kEditorFunctionMask,
  kEditorIncludeMask,
  kEditorRecurse,
  kEditorLeftSide,
  kEditorRightSide,
  kEditorKeyFunction,
  kEditorKeyMethod,
  kEditorKeyClass,
  kEditorKeyCross,
  kEditorControlCount
};

class EditorPagePresenter {
 public:
  static constexpr const char* kDescription = "Set Top Editor Menu options";
  static constexpr int32_t kHelpTopic = 12;
  static constexpr size_t kKeyTextLimit = 80;

  // The settings are borrowed for the page's life.
  EditorPagePresenter(MenuSettings& menus, QuickFindSettings& quickFind) : menus_(menus), quickFind_(quickFind) {}

  // The help text the IDE shows while control has the focus; empty past the end.
  static std::string hint(int control);

  // Fills the fields from the settings.
  void show();

  bool enabled = true;
  bool sorted = true;
  bool saveBuffer = false;  // shown, never loaded nor stored
  int32_t size = 50;
  std::string functionMask;
  std::string includeMask;
  bool recurse = true;
  bool leftSide = true;
  std::array<uint16_t, 4> keys{};
  std::array<std::string, 4> keyTexts;

  // What the key capture dialog returned for the shortcut of command (function,
  // method, class, cross reference); the text is cut at kKeyTextLimit.
  void setKey(QuickCommand command, uint16_t keyCode, const std::string& text);

  // False, after telling the user with a box, when the size is outside 10 to 99.
  bool check() const;

  // Writes the fields into the settings; true when the editors' frames must be
  // repainted: Enabled changed, or it is on and the side changed.
  bool store();

 private:
  MenuSettings& menus_;
  QuickFindSettings& quickFind_;
};
