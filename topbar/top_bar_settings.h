// The top bar's settings ("TopBar"): what it shows, where, and how its menus are built.
#pragma once

#include <cstdint>

struct TopBarSettings {
  bool newShell = true;      // the Windows 95 look: decides the margins' defaults
  int32_t enabled = 1;       // "Enabled"
  int32_t hideWithIde = 1;   // "HideWithBCW"
  int32_t hideWithView = 0;  // "HideWithView"
  int32_t alwaysOnTop = 0;   // "AlwaysOnTop"
  int32_t editOtherView = 0;  // "EditOtherView"
  int32_t leftMargin = -1;   // "LeftMargin", pixels
  int32_t rightMargin = 58;  // "RightMargin", pixels
  int32_t menuSize = 50;     // "MenuSize", items per column
  int32_t construction = 0;  // "Hierarchical": 0 linear, 1 hierarchical, 2 no menu

  // Defaults for the look, then what the store holds.
  static TopBarSettings read(bool newShell);
  void write() const;
};
