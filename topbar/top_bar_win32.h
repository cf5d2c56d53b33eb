// The top bar window's behaviour: its menus from the bar model, its placement,
// expansion while a menu is open, the status texts and the commands that belong to the bar.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>

#include "topbar/bar_commands.h"
#include "topbar/bar_geometry.h"
#include "topbar/bar_menu.h"
#include "topbar/recent_files.h"
#include "topbar/top_bar_page.h"
#include "topbar/top_bar_settings.h"

class TopBar {
 public:
  // Reads the "TopBar" settings; the bar window is the add-on's. The recent
  // lists are read from the add-on's slot when used: they load after the bar.
  TopBar(HWND bar, bool newShell);
  // Writes the "TopBar" settings.
  ~TopBar() { settings.write(); }
  TopBar(const TopBar&) = delete;
  TopBar& operator=(const TopBar&) = delete;

  TopBarSettings settings;

  // One menu row at the margins.
  void placeNormal();
  // Every row of the wrapped menu bar, measured the first time.
  void expand();
  void collapse();
  bool expanded() const { return expanded_; }

  // Builds the menus anew from the recent lists and the open project.
  void rebuildMenu();
  const BarMenu& menu() const { return menu_; }
  // Refills the header submenu (the first submenu of the first menu) from the
  // recent headers; a missing piece is named on the status line.
  void refreshHeaderMenu();

  // After the options page was stored: the menus built anew, then the bar
  // placed, shown or hidden and moved in or out of the topmost band as the changes say.
  void applyStoredPage(const TopBarPageChanges& changes);

  // The status text of a highlighted item.
  void showItemStatus(UINT id);
  // The bar's own commands: rebuild, recent projects and headers, tools,
  // project files, options. False for the commands of other features.
  bool runCommand(BarCommand command, uint32_t index);

 private:
  ScreenMetrics screen() const;
  void setHeight(int32_t height);
  const RecentFiles& recent() const;
  // Project file n as the status line and the questions name it.
  std::string projectFileName(uint32_t n) const;
  // Opens project file n; with Alt alone offers Quick add beside it, with Ctrl
  // alone removes it from the project.
  void runProjectFile(uint32_t index);

  HWND bar_;
  BarMenu menu_;
  ProjectNode project_;  // the tree the menu's nodes point into
  bool expanded_ = false;
  int32_t expandedHeight_ = 0;  // 0 until measured; every rebuild forgets it
};
