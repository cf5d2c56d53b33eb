// The "QuickFind" settings: masks, recursion, the side of the title-bar buttons
// and the four commands' shortcuts.
#pragma once

#include <array>
#include <cstdint>
#include <string>

// The commands in the order of their shortcuts and of the QuickFind popup.
enum QuickCommand { kQuickFunction = 0, kQuickMethod = 1, kQuickClass = 2, kQuickCross = 3 };

struct QuickFindSettings {
  std::string functionMask = "*.cpp;*.cc;*.c";  // "FunctionMask": source files
  std::string includeMask = "*.h;*.rh";         // "IncludeMask": header files
  bool recurse = true;                          // "Recurse": descend into subdirectories
  bool leftSide = true;                         // "LeftSide": title-bar buttons on the left
  std::array<uint16_t, 4> keys{};               // "Key...": key codes, 0 = none
  std::array<std::string, 4> keyTexts{"???", "???", "???", "???"};  // "Txt...": the keys' texts

  // From the "QuickFind" section, defaults for what is missing.
  static QuickFindSettings read();
  // In the order the add-on has always written them.
  void write() const;
};
